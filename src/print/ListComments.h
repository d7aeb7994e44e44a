#pragma once

#include <QString>

#include <vector>

class TrendView;

// A comment as the comment list shows it: the date and time of its point, and its text.
struct ListComment {
    QString date;
    QString time;
    QString text;
};

// The comments of a view in the order of their time: the labels a user tied to a point.
std::vector<ListComment> listComments(const TrendView& view);
// Files and workbooks carry the comment block when the chart holds more than one label (the
// date line is always one of them).
bool hasCommentBlock(const TrendView& view);

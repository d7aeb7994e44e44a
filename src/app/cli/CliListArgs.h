#pragma once

#include <QString>
#include <QStringList>

class TrendCursors;
class TrendView;

namespace Cli {

// The options that export and print share: the output, the rows of the list (or the marker
// view), cursors, time span, skip and hidden channels; print adds the paper and the programs.
struct ExportArgs {
    QString out;
    QString rows; // all, cursors, visible; empty: visible with a time span, else all
    QString cursors, from, to, skip, hide;
    bool marker = false;
    QString paper, header, footer, pages;
    bool landscape = false;
};

// Takes those options out of the arguments; the rest are files and --gs. The print options are
// known only with `print`.
bool takeExportArgs(QStringList& args, ExportArgs& e, QString& error, bool print);
// The row set of the data list (1 all, 2 cursors, 3 visible); 0 with the reason in error.
int rowSetOf(const ExportArgs& e, QString& error);
// --cursors A,B: both 0 or a point of the recording.
bool placeCursors(TrendCursors& cursors, const QString& text, qint32 points, QString& error);
// --hide 1,3: those channels are switched off in the trend (no line, no symbol).
bool hideChannels(TrendView& view, const QString& text, QString& error);

} // namespace Cli

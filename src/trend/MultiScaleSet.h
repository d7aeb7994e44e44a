#pragma once

#include <QString>

#include <vector>

class TrendView;

// The logic of frmMultiScaleSet: one row per channel (up to 128) with its shown flag, name and
// the scale that its side strip uses.
class MultiScaleSet {
public:
    struct Row {
        bool shown = false;
        QString name;
        QString low; // empty for the hole
        QString high;
    };

    explicit MultiScaleSet(TrendView& view);

    std::vector<Row> rows; // row r is channel r + 1
    bool Check1 = false;   // the table replaces the channels' scales at the next load

    // A cell the grid accepts: empty, or a number of -300000..300000 with at most `decimals`
    // decimals, written with the locale's decimal sign.
    static bool acceptsCell(const QString& text, int decimals);

    // OK: 0 when taken (ScaleType 2, rows written back, strips redrawn); 582 when no row is
    // flagged, after showing the message (the dialog stays).
    int ok();

private:
    TrendView& v_;
};

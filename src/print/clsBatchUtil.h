#pragma once

#include <QString>

class PrintOutput;
class TrendView;
class clsBatchInfo;

// The batch report: one page of frames and texts with the trend chart on it, drawn on any
// output (printer, preview, PDF).
class clsBatchUtil {
public:
    // The output, the batch block and the view; the report's date format is the long date
    // format upper-cased with "MM" made "MMM", and " hh:nn" behind it.
    void Initialize(PrintOutput& out, const clsBatchInfo& batch, TrendView& view);
    QString dateFormat() const { return dateFormat_; }
    // The frames: a cell is the width of "W" and the text height in Courier New 10; the title
    // row at size 20.
    void DrawWaku();
    // The texts in their order, the pairs of the batch block, the chart and the boxes for
    // signatures. The file name is cut at "(".
    void DrawData(const QString& fileName);

    // The whole report as one document; false when the output failed.
    static bool print(PrintOutput& out, const clsBatchInfo& batch, TrendView& view,
                      const QString& fileName);

private:
    double x(double cells) const { return left_ + cells * cellW_; }
    double y(double cells) const { return top_ + cells * cellH_; }
    void text(double col, double row, const QString& s);

    PrintOutput* out_ = nullptr;
    const clsBatchInfo* batch_ = nullptr;
    TrendView* view_ = nullptr;
    QString dateFormat_;
    double cellW_ = 2.5, cellH_ = 4.5, left_ = 15, top_ = 15;
};

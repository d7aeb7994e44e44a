#pragma once

#include "analysis/CalcLines.h"

#include <QDialog>

class QTableWidget;
class TrendView;

// The calculation lines dialog: vaSpread1(0) for the whole data, vaSpread1(1) between the
// cursors; OK and preview build the marker series and apply the lines, cancel (or closing the
// window) puts back the lines read at load.
class frmCalcLineSet : public QDialog {
    Q_OBJECT
public:
    frmCalcLineSet(TrendView& view, QWidget* parent = nullptr);

    QTableWidget* vaSpread1(int which) const { return tables_[which]; }
    void preview();
    void ok();
    void reject() override;

private:
    void fillTable(int which);
    CalcLines::Set readTable(int which) const;
    void channelChosen(int which, int item);

    TrendView& view_;
    CalcLines lines_;
    QTableWidget* tables_[2];
};

// The view command that opens the dialog (beside the numbered commands of the tool bar).
inline constexpr int kCalcLinesCommand = 18;
// Connects that command of the trend views to this dialog.
void installCalcLines();

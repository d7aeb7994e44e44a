#pragma once

#include "trend/YAxesStyle.h"

#include <QDialog>

#include <array>

class QCheckBox;
class QTableWidget;

// The Y axes dialog: minimum, maximum, label and sub-grid interval of Y (vaSpread1) and Y2
// (vaSpread2), with the reversed and logarithmic flags. Preview and OK apply through YAxesStyle;
// Cancel, or closing the window, puts back what stood on open.
class frmYAxesStyle : public QDialog {
    Q_OBJECT
public:
    explicit frmYAxesStyle(TrendView& view, QWidget* parent = nullptr);

    void btnPreview_Click();
    void btnOK_Click();
    void reject() override;

private:
    QTableWidget* makeGrid(int axis);
    void readCells();

    YAxesStyle style_;
    std::array<QTableWidget*, 2> grids_{};
    QCheckBox* chkReversedY_;
    QCheckBox* chkLogY_;
    QCheckBox* chkReversedY2_;
};

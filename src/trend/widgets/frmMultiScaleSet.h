#pragma once

#include "trend/MultiScaleSet.h"

#include <QDialog>

class QCheckBox;
class QTableWidget;
class QTableWidgetItem;
class TrendView;

// The multi-scale rows of a view: one row per channel (up to 128) with "No.", the shown flag,
// the channel's name and the scale its side strip uses. A number cell outside what
// MultiScaleSet accepts goes back to its last text. OK needs one row shown (message 582).
class frmMultiScaleSet : public QDialog {
    Q_OBJECT
public:
    enum Column { kNo = 0, kShown, kName, kLow, kHigh, kColumnCount };

    explicit frmMultiScaleSet(TrendView& view, QWidget* parent = nullptr);

    QTableWidget* grid() const { return grid_; }
    // Scale cells left empty take the channel's own scale (a table that was never set).
    void fillEmptyScales();
    void btnOK_Click();

private:
    void cellChanged(QTableWidgetItem* item);

    TrendView& view_;
    MultiScaleSet set_;
    QTableWidget* grid_;
    QCheckBox* Check1_;
    bool filling_ = false;
};

#pragma once

#include "trend/AlarmSymbolSettings.h"

#include <QDialog>

class QCheckBox;
class QFrame;
class QProgressBar;
class QTableWidget;

// The alarm symbol dialog of a view: SpreadAlarm with symbol, colour and size per channel and
// level, chkShow, OK, Cancel and the preview. The rules are AlarmSymbolSettings'.
class frmAlarmSymbolSetting : public QDialog {
    Q_OBJECT
public:
    explicit frmAlarmSymbolSetting(TrendView& view, QWidget* parent = nullptr);

    AlarmSymbolSettings& settings() { return settings_; }

    void btnOK_Click();
    void btnCancel_Click();
    void btnPreview_Click();

private:
    void fillGrid();
    void takeCell(int row, int col);
    void chooseColor(int row, int col);
    void takeGrid();

    AlarmSymbolSettings settings_;
    QTableWidget* SpreadAlarm_;
    QCheckBox* chkShow_;
    QFrame* Frame6_;
    QProgressBar* ProgressBar1_;
    bool filling_ = false;
};

#pragma once

#include "trend/TimeAxisSetting.h"

#include <QDialog>

#include <array>

class QLabel;
class QLineEdit;
class QRadioButton;
class QTableWidget;

// The time axis dialog: which span of the recording the X axis shows, as a range of two times
// (SpreadDate) or as a start and a width in one of four units. The rules are TimeAxisSetting's;
// on OK the caller pushes the chosen span as a zoom level (TimeAxisSetting::apply).
class frmTimeAxisSetting : public QDialog {
    Q_OBJECT
public:
    explicit frmTimeAxisSetting(TrendView& view, QWidget* parent = nullptr);

    const TimeAxisSetting& setting() const { return setting_; }

    // OK: takes the cells into the logic; closes when it accepts, else its message stands.
    void btnOK_Click();

private:
    void modeChanged();
    void unitChosen(int unit);

    TimeAxisSetting setting_;
    QRadioButton* optRange_;
    QRadioButton* optSpan_;
    QTableWidget* SpreadDate_;
    std::array<QRadioButton*, 4> optTimeUnit_{};
    std::array<QLineEdit*, 4> txtNumeric_{};
};

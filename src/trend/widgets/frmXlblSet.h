#pragma once

#include "trend/XlblSet.h"

#include <QDialog>

class QLineEdit;
class QRadioButton;
class TrendView;

// The time axis label dialog: the label and sub-grid intervals in hours or days. An interval
// that is not a number leaves the labels to the chart (XlblSet).
class frmXlblSet : public QDialog {
    Q_OBJECT
public:
    explicit frmXlblSet(TrendView& view, QWidget* parent = nullptr);

    // OK: the intervals go to the view and the X axis is rebuilt; the dialog closes.
    void btnOK_Click();

private:
    QString unitText(qint32 points) const;
    void unitChanged();

    TrendView& view_;
    QLineEdit* txtLabel_;
    QLineEdit* txtSubGrid_;
    QRadioButton* optHours_;
    QRadioButton* optDays_;
    XlblSet::Unit shownUnit_ = XlblSet::Unit::Hours;
};

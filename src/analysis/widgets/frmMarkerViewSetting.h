#pragma once

#include <QDialog>

class QTableWidget;
class TrendView;

// The look of the two cursor lines (SpreadMarker: columns cursor A and B, rows colour, line
// pattern and width). OK writes the table into the two cursor series; Cancel changes nothing.
class frmMarkerViewSetting : public QDialog {
    Q_OBJECT
public:
    frmMarkerViewSetting(TrendView& view, QWidget* parent = nullptr);

    QTableWidget* SpreadMarker() const { return table_; }
    void btnOK();

private:
    TrendView& view_;
    QTableWidget* table_;
};

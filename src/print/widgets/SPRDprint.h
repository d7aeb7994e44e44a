#pragma once

#include "print/PrintSetting.h"

#include <QDialog>

class QComboBox;
class QDoubleSpinBox;
class QLineEdit;
class QSpinBox;
class QButtonGroup;

// The print settings dialog: printer (the system's printers and a PDF file), paper,
// orientation, range and pages, margins in millimetres, three header and three footer texts
// and their fonts. It edits a copy of the record and writes it back on OK.
class SPRDprint : public QDialog {
    Q_OBJECT
public:
    // printers: the names to offer besides the PDF file (the system's by default).
    SPRDprint(int pageCount, QWidget* parent = nullptr, const QStringList* printers = nullptr);

    const PrintSetting& setting() const { return setting_; }
    QComboBox* cboPrinter() const { return printer_; }
    QComboBox* cboSize() const { return size_; }
    void cmdOK();

private:
    PrintSetting setting_;
    QComboBox* printer_;
    QComboBox* size_;
    QButtonGroup* orientation_;
    QButtonGroup* range_;
    QSpinBox* from_;
    QSpinBox* to_;
    QDoubleSpinBox* margins_[4];
    QLineEdit* header_[3];
    QLineEdit* footer_[3];
};

// True when something can be printed to: always, as a PDF file can be written. An empty list of
// outputs (given for tests) gives message 564 and false.
bool IsPrinterInstalled(const QStringList* outputs = nullptr);

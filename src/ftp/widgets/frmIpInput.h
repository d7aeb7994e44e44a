#pragma once

#include <QDialog>

class QLineEdit;

// The address in four boxes of three characters: a value out of 0..255 is held at the bound,
// a full box moves on to the next. OK gives the padded address; Cancel the old text.
class frmIpInput : public QDialog {
    Q_OBJECT
public:
    explicit frmIpInput(const QString& address, QWidget* parent = nullptr);
    QString result() const;
    QLineEdit* box(int k) const { return boxes_[k]; }

    // Shows the dialog; gives the new address after OK, the old one after Cancel.
    static QString ShowModeress(QWidget* owner, const QString& address);

private:
    QLineEdit* boxes_[4];
};

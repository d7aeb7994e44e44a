#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QRadioButton;

// The data skip of file output and printing (SkipCount): every row (Option1), or the count of
// rows left out after each row written (Text1). OK takes the choice over; Cancel leaves it.
class frmSkipSet : public QDialog {
    Q_OBJECT
public:
    explicit frmSkipSet(QWidget* parent = nullptr);

    QRadioButton* Option1() const { return Option1_; }
    QRadioButton* Option2() const { return Option2_; }
    QLineEdit* Text1() const { return Text1_; }
    QLabel* Label1() const { return Label1_; }

    void accept() override;

private:
    QRadioButton* Option1_;
    QRadioButton* Option2_;
    QLineEdit* Text1_;
    QLabel* Label1_;
};

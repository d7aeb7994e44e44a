#pragma once

#include <QDialog>

class FTPFile;
class QCheckBox;
class QLineEdit;
class QTableWidget;

// The collection settings: the daily time and its flag, and the table of recorders (tag,
// address through frmIpInput, password, the recorder's folder found by browsing it, the PC
// folder). OK stores the flag, the times and the rows; Cancel stores nothing.
class ftpSetForm : public QDialog {
    Q_OBJECT
public:
    ftpSetForm(FTPFile& file, QWidget* parent = nullptr);

    // A time box on leaving: a number in 0..max is accepted, anything else gives back the last
    // accepted value; an empty box is left as it is.
    static QString acceptTime(const QString& text, int max, int& lastAccepted);

    QCheckBox* Check() const { return check_; }
    QLineEdit* hourBox() const { return hour_; }
    QLineEdit* minuteBox() const { return minute_; }
    QTableWidget* grid() const { return grid_; }
    void cmdOK();
    // The grid's double click and click actions by column (2 address, 4 browse, 6 PC folder).
    void cellActivated(int row, int column);

private:
    FTPFile& file_;
    QCheckBox* check_;
    QLineEdit* hour_;
    QLineEdit* minute_;
    QTableWidget* grid_;
    int lastHour_, lastMinute_;
};

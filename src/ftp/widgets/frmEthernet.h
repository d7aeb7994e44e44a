#pragma once

#include <QDialog>

class QComboBox;
struct FtpTable;

// The link settings of the collection: retries (cmbRetry, 0..20) and the wait between attempts
// (cmbWait: 1, 10, 20 ... 100 seconds). cmdSet stores both indices in the table; cmdClose
// stores nothing.
class frmEthernet : public QDialog {
    Q_OBJECT
public:
    frmEthernet(FtpTable& table, QWidget* parent = nullptr);
    QComboBox* cmbRetry() const { return retry_; }
    QComboBox* cmbWait() const { return wait_; }
    void cmdSet();

private:
    FtpTable& table_;
    QComboBox* retry_;
    QComboBox* wait_;
};

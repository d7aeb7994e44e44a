#pragma once

#include "ftp/ManualTransfer.h"

#include <QWidget>

class QFileSystemModel;
class QComboBox;
class QLabel;
class QLineEdit;
class QListView;
class QPushButton;
class QStatusBar;
class QTableView;
class QToolBar;
class QTreeView;

// The manual transfer window: the local side (places, folder tree, file list) and the remote
// list of a host of the user's choice, with CGet and CPut between them and Delete.
class ftpForm : public QWidget {
    Q_OBJECT
public:
    explicit ftpForm(QWidget* parent = nullptr, const QString& settingsPath = QString());
    ~ftpForm() override;

    static ftpForm* open(QWidget* owner);

    ManualTransfer& transfer() { return transfer_; }
    void connectHost();
    void disconnectHost();
    void CGet();
    void CPut();
    void Delete();

    QLineEdit* TAddress() const { return address_; }
    QPushButton* button(const char* name) const;
    QTableView* vaSpread1() const { return remote_; }

protected:
    void closeEvent(class QCloseEvent* event) override;

private:
    void syncState();
    QList<int> chosenRows() const;
    void setLocalDir(const QString& dir);

    ManualTransfer transfer_;
    QString settingsPath_;
    QLineEdit* address_;
    QLineEdit* user_;
    QLineEdit* password_;
    QComboBox* places_;
    QTreeView* Dir_;
    QListView* File_;
    QFileSystemModel* dirs_;
    QFileSystemModel* files_;
    QTableView* remote_;
    QLabel* Label5_;
    QStatusBar* StatusBar1_;
    QToolBar* Toolbar1_;
};

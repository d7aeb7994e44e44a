#pragma once

#include "ftp/FtpListModel.h"

#include <QDialog>
#include <QThread>

#include <functional>

class FTPFile;
class QTableView;

// The remote folder window: lists the server's current directory, enters folders named "DATA"
// and goes up, and hands back the chosen path for a row's VXDir. All FTP work runs on a worker
// thread, so the window keeps answering while a server is slow.
class ftpDir final : public QDialog {
    Q_OBJECT
public:
    explicit ftpDir(FTPFile& ftpFile, QWidget* parent = nullptr);
    ~ftpDir() override;

    // Connects as the connection test does and lists the start directory.
    void openAt(const QString& address, const QString& password);
    // What a double click on a row does: enter "DATA" folders, go up from row 0.
    void activateRow(int row);
    // After OK: the current directory & "/" & the active row's name, less its first character.
    QString chosenPath() const { return chosen_; }
    bool busy() const { return busy_; }
    // OK: keeps the chosen path and closes.
    void accept() override;
    const FtpListModel& listModel() const { return model_; }
    QTableView* table() const { return table_; }

Q_SIGNALS:
    // A listing arrived (ok false when the connection or the listing failed).
    void listingReady(bool ok);

private:
    struct Listing {
        bool ok = false;
        QString curDir;
        QList<FtpEntry> entries;
    };
    void runInBackground(std::function<Listing()> job);

    FTPFile& ftpFile_;
    FtpListModel model_;
    QTableView* table_ = nullptr;
    class QIdentityProxyModel* icons_ = nullptr;
    QThread thread_;
    QObject worker_;
    bool busy_ = false;
    QString chosen_;
};

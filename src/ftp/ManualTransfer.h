#pragma once

#include "ftp/FtpListModel.h"
#include "ftp/McWinFTP.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

// The manual transfer window without its window (ftpForm): a session of its own with any host,
// the remote list, and fetching, sending and deleting the chosen files. It speaks through
// ShowMsg. Every call blocks; the window runs it off the user interface thread.
class ManualTransfer {
public:
    // The factory address of a recorder, in the address box before FTPset.ini is read.
    static constexpr const char* kFactoryAddress = "192.168.1.1";
    static constexpr const char* kFactoryPassword = "lumar";

    ManualTransfer();

    QString TAddress = QString::fromLatin1(kFactoryAddress);
    QString TUserID;
    QString TPassword = QString::fromLatin1(kFactoryPassword);
    QString Dir; // the local folder
    FtpSettings& settings() { return ftp_.settings; }
    // Told the bytes of a running transfer; the window lets its events run there.
    std::function<void(qint64 done, qint64 total)>& progress() { return ftp_.progress; }

    bool connected() const { return ftp_.hFTP() != 0; }
    // An empty address gives message 568 and no attempt; a failed login message 569.
    bool Connect();
    void Disconnect();
    FtpListModel& remote() { return list_; }
    void list();
    // A double click on a row: a folder is entered, the way-up row goes up. False for a file.
    bool enter(int row);
    QString statusText() const { return ftp_.CurDir(); }

    // The selected remote rows that hold files; the transfer line ("<----" & name) is told to
    // `line`. Gives the number of files fetched; 570 and the name end it at the first failure,
    // 571 follows when a file came.
    int CGet(const QList<int>& rows, const std::function<void(const QString&)>& line = {});
    // The selected local files into the present remote folder; nothing at the server's root.
    int CPut(const QStringList& names, const std::function<void(const QString&)>& line = {});
    // Asks (message 572) and deletes the selected files; folders never.
    void Delete(const QList<int>& rows);

    // FTPset.ini: the address and the local folder (a folder that is gone falls back to home).
    void load(const QString& path);
    bool save(const QString& path) const;

private:
    QString localPath(const QString& name) const;

    McWinFTP ftp_;
    FtpListModel list_;
};

#pragma once

#include "ftp/FtpEntry.h"
#include "ftp/FtpSettings.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QList>
#include <QString>
#include <QtGlobal>

#include <atomic>
#include <functional>

// The FTP client of the system: one session at a time over one libcurl easy handle (so one
// control connection serves every call), a find cursor over the current remote directory and
// one error channel, FTPTrouble. Every call blocks; windows run it on a worker thread.
// libcurl keeps no current directory, so this class keeps it and checks each change on the
// server; every command names its directory in full.
class McWinFTP {
public:
    static constexpr qint32 kPassiveFlagWord = 0x8000000;
    static constexpr int kAttempts = 5;

    McWinFTP();
    ~McWinFTP();
    McWinFTP(const McWinFTP&) = delete;
    McWinFTP& operator=(const McWinFTP&) = delete;

    static QString ClassName() { return QStringLiteral("McWinFTP Class Module"); }
    static QString Version() { return QStringLiteral("0.9 b"); }

    QString RemoteHost;
    QString User;
    QString Password;
    qint32 RemotePort = 21;
    FtpSettings settings; // the waits; RemotePort is set by the caller

    bool PassiveFlag() const { return flagWord_ == kPassiveFlagWord; }
    void setPassiveFlag(bool passive) { flagWord_ = passive ? kPassiveFlagWord : 0; }
    quintptr hInternet() const { return quintptr(curl_); }
    int hFTP() const { return connected_ ? 1 : 0; }

    void OpenSession();
    void CloseSession();
    // transferType 1 is ASCII, any other value binary; result non-zero on success.
    void PutFile(const QString& local, const QString& remote, int transferType, int& result);
    // Fetched under a temporary name beside `local`, renamed into place only when complete.
    void GetFile(const QString& remote, const QString& local, bool failIfExists, int transferType,
                 int& result);
    void GetFile(const QByteArray& rawRemote, const QString& local, bool failIfExists,
                 int transferType, int& result);
    void RenameFile(const QString& oldName, const QString& newName, int& result);
    void DeleteFile(const QString& name, int& result);
    void CreateDir(const QString& name, int& result);
    void RemoveDir(const QString& name, int& result);

    QString CurDir() const { return curDir_; }
    void setCurDir(const QString& dir);

    void FindFile(const QString& pattern);
    void NextFile();
    const FtpEntry& File() const { return file_; }

    // Raised on every failure but the end of a listing, with the text and the number.
    std::function<void(const QString& text, int number)> FTPTrouble;
    // Reports the bytes of a transfer (done, total; total 0 when unknown).
    std::function<void(qint64 done, qint64 total)> progress;
    // Ends the running call, from any thread; the next call runs normally again.
    void cancel() { cancel_ = true; }

    int lastError() const { return lastError_; }
    QString lastErrorText() const { return lastErrorText_; }
    // The server's last reply line, for the texts of refusals.
    QString lastReply() const { return lastReply_; }

private:
    struct Request;
    int perform(const Request& request);
    bool retrieve(const QByteArray& remote, const QString& local, int transferType, int& curlCode);
    void report(int number, const QString& libraryText = QString());
    void reportCurl(int curlCode);
    bool quote(const QList<QByteArray>& commands);
    QByteArray baseUrl() const;
    QByteArray directoryUrl(const QString& absoluteDir) const;
    QByteArray absolutePath(const QByteArray& name) const;
    void resetHandle();
    bool ensureConnected();

    void* curl_ = nullptr;
    bool connected_ = false;
    qint32 flagWord_ = 0;
    QString host_;
    QString curDir_ = QStringLiteral("/");
    FtpEntry file_;
    QList<FtpEntry> listing_;
    qsizetype cursor_ = 0;
    std::atomic<bool> cancel_{false};
    int lastError_ = 0;
    QString lastErrorText_;
    QString lastReply_;
    qint64 lastMoved_ = 0;
    QElapsedTimer sinceMoved_;
    bool stalled_ = false;

    friend struct McWinFTPCallbacks;
};

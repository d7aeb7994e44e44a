#pragma once

#include "ftp/FtpSettings.h"
#include "ftp/FtpTable.h"
#include "ftp/McWinFTP.h"

#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>
#include <memory>

class FtpListModel;

// What one row's collection did, beside its result, for the command line and the log.
struct FtpRowDetail {
    int filesFetched = 0;
    bool failed = false;      // the session, the login or a transfer failed
    QString errorText;        // the text of that failure
    QStringList skippedNames; // remote names that are no plain file names
};

// The collection table and the work on one row: fetching its new files, testing its
// connection and listing a remote directory. Owns one McWinFTP, made on first use.
class FTPFile {
public:
    static constexpr const char* kUser = "anonymous";

    FtpTable table;
    FtpSettings settings;                      // the port and the waits of every session
    std::atomic<bool> StopRequested{false};    // checked between files
    std::function<void()> letUserInterfaceRun; // called before each file

    void FTPDataInit() { table = FtpTable{}; }
    bool FTPDataFi(const QString& path = ftpDataSetPath()) { return readFtpDataSet(path, table); }
    bool FTPDataFo(const QString& path = ftpDataSetPath()) const {
        return writeFtpDataSet(path, table);
    }

    // Fetches every remote file of a row whose size differs from the local copy. result 1 when
    // at least one file came and none failed; lastDetail() tells more.
    void GetFile(int row, bool failIfExists, int transferType, int& result);
    const FtpRowDetail& lastDetail() const { return detail_; }

    // Connects to a row as a test and closes again; true when the login worked.
    bool FTPConect(int row);
    // Connects and lists the start directory into `model`; the session stays open for browsing.
    void FTPConectTEST(const QString& address, const QString& password, bool& result,
                       FtpListModel* model = nullptr);
    // Closes the session and drops the client, so that the next use starts fresh.
    void FTPConectClose();
    // Fills the model from the server's current directory.
    void MakeFileList(FtpListModel& model);
    // The entries of the server's current directory, for a model filled on another thread.
    QList<FtpEntry> currentListing();

    QString CurDir() { return ftp().CurDir(); }
    void setCurDir(const QString& dir) { ftp().setCurDir(dir); }

    McWinFTP& ftp();
    // Cancels the running call of the client, from any thread.
    void cancel();

private:
    bool open(const QString& address, const QString& password);
    void fetchListing(const QString& prefix, bool failIfExists, int transferType, int& result);

    std::unique_ptr<McWinFTP> ftp_;
    std::atomic<McWinFTP*> running_{nullptr};
    FtpRowDetail detail_;
};

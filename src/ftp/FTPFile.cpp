#include "ftp/FTPFile.h"

#include "base/AppPaths.h"
#include "base/LogObject.h"
#include "base/VbFormat.h"
#include "base/clsLibrary.h"
#include "ftp/FtpErrors.h"
#include "ftp/FtpListModel.h"

#include <QFileInfo>
#include <QThread>

McWinFTP& FTPFile::ftp() {
    if (!ftp_) {
        ftp_ = std::make_unique<McWinFTP>();
        running_ = ftp_.get();
    }
    return *ftp_;
}

void FTPFile::cancel() {
    if (McWinFTP* client = running_.load()) client->cancel();
}

void FTPFile::FTPConectClose() {
    running_ = nullptr;
    if (ftp_) ftp_->CloseSession();
    ftp_.reset();
}

bool FTPFile::open(const QString& address, const QString& password) {
    McWinFTP& client = ftp();
    client.RemoteHost = address;
    client.RemotePort = settings.port;
    client.settings = settings;
    client.User = QLatin1String(kUser);
    client.Password = password;
    client.setPassiveFlag(false);
    client.OpenSession();
    return client.hFTP() != 0;
}

bool FTPFile::FTPConect(int row) {
    const FtpRow* r = table.row(row);
    if (!r) return false;
    const bool ok = open(r->IPAddress, r->Password);
    ftp().CloseSession();
    return ok;
}

void FTPFile::FTPConectTEST(const QString& address, const QString& password, bool& result,
                            FtpListModel* model) {
    if (letUserInterfaceRun) letUserInterfaceRun();
    result = open(address, password);
    if (result && model) MakeFileList(*model);
}

QList<FtpEntry> FTPFile::currentListing() {
    McWinFTP& client = ftp();
    QList<FtpEntry> entries;
    for (client.FindFile(QStringLiteral("*.*")); !client.File().Eof; client.NextFile())
        entries.append(client.File());
    return entries;
}

void FTPFile::MakeFileList(FtpListModel& model) {
    const QList<FtpEntry> entries = currentListing();
    model.setListing(ftp().CurDir(), entries);
}

void FTPFile::GetFile(int row, bool failIfExists, int transferType, int& result) {
    result = 0;
    detail_ = FtpRowDetail{};
    const FtpRow* r = table.row(row);
    if (!r) {
        detail_ = {0, true, QStringLiteral("row %1 is outside 1..30").arg(row), {}};
        return;
    }
    if (!open(r->IPAddress, r->Password)) {
        detail_.failed = true;
        detail_.errorText = ftp().lastErrorText();
        return;
    }
    const QString prefix = withTrailingSlash(r->PCDir);
    // Each level on its own; a leading "/" gives an empty first level that fails and is only
    // reported, so the next level is taken from the start directory.
    for (const QString& piece : r->VXDir.split(QLatin1Char('/'))) ftp().setCurDir(piece);
    clsLibrary::makeDir(r->PCDir);
    QThread::msleep(100);
    fetchListing(prefix, failIfExists, transferType, result);
}

void FTPFile::fetchListing(const QString& prefix, bool failIfExists, int transferType,
                           int& result) {
    McWinFTP& client = ftp();
    for (client.FindFile(QStringLiteral("*.*")); !client.File().Eof; client.NextFile()) {
        const FtpEntry entry = client.File();
        if (!isPlainFileName(entry.rawName)) {
            detail_.skippedNames.append(entry.Name);
            LogWrite(QStringLiteral("FTP: remote name skipped: ") + entry.Name);
            continue;
        }
        const QString local = prefix + entry.Name;
        const QFileInfo info(local);
        const qint64 localSize = info.isFile() ? info.size() : 0;
        if (localSize == VbFormat::roundHalfEven(entry.Size)) continue;
        if (letUserInterfaceRun) letUserInterfaceRun();
        if (StopRequested.exchange(false)) {
            result = 0;
            return; // the session stays open until the window closes it
        }
        int fetched = 0;
        client.GetFile(entry.rawName, local, failIfExists, transferType, fetched);
        if (!fetched) {
            result = 0;
            detail_.failed = true;
            detail_.errorText = client.lastErrorText();
            break;
        }
        result = 1;
        ++detail_.filesFetched;
    }
    client.CloseSession();
}

#include "ftp/ManualTransfer.h"

#include "base/LanguageTable.h"
#include "base/ShowMsg.h"
#include "base/TimeBase.h"
#include "ftp/FtpTable.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

ManualTransfer::ManualTransfer() : Dir(QDir::homePath()) {}

bool ManualTransfer::Connect() {
    if (TAddress.trimmed().isEmpty()) {
        ShowMsg(kMsgWarning, MsgText(568), QString());
        return false;
    }
    ftp_.RemoteHost = TAddress.trimmed();
    ftp_.RemotePort = ftp_.settings.port;
    const QString user = TUserID.trimmed();
    ftp_.User = user.isEmpty() ? QStringLiteral("anonymous") : user;
    ftp_.Password = TPassword;
    ftp_.setPassiveFlag(false);
    ftp_.OpenSession();
    if (!connected()) {
        ShowMsg(kMsgWarning, MsgText(569), QString());
        return false;
    }
    list();
    return true;
}

void ManualTransfer::Disconnect() {
    ftp_.CloseSession();
    list_.setListing(QStringLiteral("/"), {});
}

void ManualTransfer::list() {
    QList<FtpEntry> entries;
    for (ftp_.FindFile(QStringLiteral("*.*")); !ftp_.File().Eof; ftp_.NextFile())
        entries.append(ftp_.File());
    list_.setListing(ftp_.CurDir(), entries);
}

bool ManualTransfer::enter(int row) {
    if (!connected()) return false;
    if (row == 0) {
        ftp_.setCurDir(QStringLiteral("../"));
    } else {
        const FtpEntry* e = list_.entryAt(row);
        if (!e || !e->isDirectory()) return false;
        ftp_.setCurDir(e->Name);
    }
    list();
    return true;
}

QString ManualTransfer::localPath(const QString& name) const {
    return Dir.endsWith(QLatin1Char('/')) ? Dir + name : Dir + QLatin1Char('/') + name;
}

int ManualTransfer::CGet(const QList<int>& rows, const std::function<void(const QString&)>& line) {
    if (!connected()) return 0;
    int fetched = 0;
    QString failed;
    for (int row : rows) {
        const FtpEntry* e = list_.entryAt(row);
        if (!e || e->isDirectory()) continue; // folders are never fetched
        if (!e->Date) {                       // a date that cannot be read stops before the file
            failed = e->Name;
            break;
        }
        if (line) line(QStringLiteral("<----") + e->Name);
        int result = 0;
        ftp_.GetFile(e->rawName, localPath(e->Name), false, 2, result);
        if (!result) {
            failed = e->Name;
            break;
        }
        // The listed time as the local file's times (Linux keeps no creation time to set).
        const TimeBase::CalendarTime t = TimeBase::fromSeconds(*e->Date);
        const QDateTime when(QDate(t.year, t.month, t.day), QTime(t.hour, t.minute, t.second));
        QFile file(localPath(e->Name));
        if (file.open(QIODevice::ReadWrite)) {
            file.setFileTime(when, QFileDevice::FileModificationTime);
            file.setFileTime(when, QFileDevice::FileAccessTime);
        }
        ++fetched;
    }
    if (!failed.isEmpty()) ShowMsg(kMsgWarning, MsgText(570) + QStringLiteral("\r\n") + failed);
    if (line) line(QString());
    if (fetched > 0) ShowMsg(kMsgInformation, MsgText(571));
    return fetched;
}

int ManualTransfer::CPut(const QStringList& names,
                         const std::function<void(const QString&)>& line) {
    int sent = 0;
    for (const QString& name : names) {
        // ". " in the first row: the server's root, where nothing is sent.
        if (list_.data(list_.index(0, 0), Qt::DisplayRole).toString() == QLatin1String(". ")) break;
        if (line) line(QStringLiteral("---->") + name);
        int result = 0;
        ftp_.PutFile(localPath(name), name, 2, result);
        if (!result) {
            ShowMsg(kMsgWarning, MsgText(570) + QStringLiteral("\r\n") + name);
            break;
        }
        ++sent;
    }
    if (line) line(QString());
    // The list and message 571 follow every end of the loop, the root and a failure included,
    // as the window has always done it.
    if (connected()) list();
    ShowMsg(kMsgInformation, MsgText(571));
    return sent;
}

void ManualTransfer::Delete(const QList<int>& rows) {
    if (!connected()) return;
    if (ShowMsg(kMsgOkCancel, MsgText(572)) == 2) return;
    for (int row : rows) {
        const FtpEntry* e = list_.entryAt(row);
        if (!e || e->isDirectory()) continue;
        int result = 0;
        ftp_.DeleteFile(e->Name, result); // the result is not looked at
    }
    list();
}

void ManualTransfer::load(const QString& path) {
    FtpManualSettings s;
    if (!readFtpSet(path, s)) return; // missing, empty or damaged: the factory address stays
    if (!s.IPaddress.trimmed().isEmpty()) TAddress = s.IPaddress.trimmed();
    if (!s.PASSNAME.isEmpty()) Dir = QDir(s.PASSNAME).exists() ? s.PASSNAME : QDir::homePath();
}

bool ManualTransfer::save(const QString& path) const {
    FtpManualSettings s;
    s.IPaddress = TAddress.trimmed();
    s.PASSNAME = Dir;
    return writeFtpSet(path, s);
}

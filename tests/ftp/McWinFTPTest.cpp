// The FTP client against a real server on 127.0.0.1: both modes, the commands, the current
// directory and the faults.
#include "FtpFixture.h"

#include "ftp/FtpErrors.h"

#include <QElapsedTimer>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

struct Trouble {
    QString text;
    int number = 0;
};

class McWinFTPTest : public FtpFixture {
protected:
    void connect(McWinFTP& ftp, const char* password = kPassword) {
        prepare(ftp, password);
        ftp.FTPTrouble = [this](const QString& text, int number) {
            troubles.append({text, number});
        };
        ftp.OpenSession();
    }
    QList<Trouble> troubles;
};

TEST_F(McWinFTPTest, ClassFacts) {
    McWinFTP ftp;
    EXPECT_EQ(McWinFTP::ClassName(), u"McWinFTP Class Module"_s);
    EXPECT_EQ(McWinFTP::Version(), u"0.9 b"_s);
    EXPECT_EQ(ftp.RemotePort, 21);
    EXPECT_NE(ftp.hInternet(), 0u);
    EXPECT_EQ(ftp.hFTP(), 0);
    EXPECT_FALSE(ftp.PassiveFlag());
    ftp.setPassiveFlag(true);
    EXPECT_TRUE(ftp.PassiveFlag());
}

TEST_F(McWinFTPTest, BinaryFilesComeBackByteIdenticalInBothModes) {
    writeFile(remotePath(u"DATA/in.bin"_s), binaryPattern());
    startServer();
    for (const bool passive : {false, true}) {
        SCOPED_TRACE(passive ? "passive" : "active");
        McWinFTP ftp;
        ftp.setPassiveFlag(passive);
        connect(ftp);
        ASSERT_EQ(ftp.hFTP(), 1);
        EXPECT_EQ(ftp.CurDir(), u"/"_s);
        ftp.setCurDir(u"/DATA"_s);
        EXPECT_EQ(ftp.CurDir(), u"/DATA"_s);

        int result = 0;
        const QString got = localPath(passive ? u"p.bin"_s : u"a.bin"_s);
        ftp.GetFile(u"in.bin"_s, got, true, 2, result);
        EXPECT_EQ(result, 1);
        EXPECT_EQ(readFile(got), binaryPattern());
        ftp.GetFile(u"in.bin"_s, got, true, 2, result); // may not replace it
        EXPECT_EQ(result, 0);
        EXPECT_EQ(ftp.lastError(), FtpErrors::kFileExists);

        ftp.PutFile(got, u"up.bin"_s, 2, result);
        EXPECT_EQ(result, 1);
        EXPECT_EQ(readFile(remotePath(u"DATA/up.bin"_s)), binaryPattern());
        ftp.RenameFile(u"up.bin"_s, u"moved.bin"_s, result);
        EXPECT_EQ(result, 1);
        EXPECT_TRUE(QFileInfo::exists(remotePath(u"DATA/moved.bin"_s)));
        ftp.DeleteFile(u"moved.bin"_s, result);
        EXPECT_EQ(result, 1);
        EXPECT_FALSE(QFileInfo::exists(remotePath(u"DATA/moved.bin"_s)));
        ftp.CreateDir(u"NEW"_s, result);
        EXPECT_EQ(result, 1);
        EXPECT_TRUE(QFileInfo(remotePath(u"DATA/NEW"_s)).isDir());
        ftp.RemoveDir(u"NEW"_s, result);
        EXPECT_EQ(result, 1);
        EXPECT_FALSE(QFileInfo::exists(remotePath(u"DATA/NEW"_s)));
        ftp.DeleteFile(u"nothing-here"_s, result);
        EXPECT_EQ(result, 0);
        ASSERT_FALSE(troubles.isEmpty());
        EXPECT_EQ(troubles.last().number, FtpErrors::kServerRefused);
        EXPECT_TRUE(troubles.last().text.startsWith(u"550"_s))
            << troubles.last().text.toStdString();

        ftp.setCurDir(u"../"_s);
        EXPECT_EQ(ftp.CurDir(), u"/"_s);
        ftp.CloseSession();
        EXPECT_EQ(ftp.hFTP(), 0);
    }
}

TEST_F(McWinFTPTest, CurrentDirectoryChangesAreCheckedOnTheServer) {
    QDir().mkpath(remotePath(u"DATA/SUB"_s));
    writeFile(remotePath(u"DATA/SUB/f.txt"_s), "abc");
    startServer();
    McWinFTP ftp;
    connect(ftp);
    ftp.setCurDir(u"\\DATA"_s);
    ftp.setCurDir(u"SUB"_s);
    EXPECT_EQ(ftp.CurDir(), u"/DATA/SUB"_s);
    troubles.clear();
    ftp.setCurDir(u"MISSING"_s);
    EXPECT_EQ(ftp.CurDir(), u"/DATA/SUB"_s);
    ASSERT_EQ(troubles.size(), 1);
    EXPECT_EQ(troubles[0].number, FtpErrors::kServerRefused);
    ftp.setCurDir(QString());
    EXPECT_EQ(troubles.size(), 2);
    EXPECT_EQ(ftp.CurDir(), u"/DATA/SUB"_s);

    ftp.FindFile(u"*.*"_s);
    ASSERT_FALSE(ftp.File().Eof);
    EXPECT_EQ(ftp.File().Name, u"f.txt"_s);
    EXPECT_EQ(ftp.File().Size, 3);
    EXPECT_TRUE(ftp.File().Date.has_value());
    ftp.NextFile();
    EXPECT_TRUE(ftp.File().Eof);
    ftp.NextFile();
    EXPECT_TRUE(ftp.File().Eof);

    ftp.setCurDir(u"../"_s);
    ftp.FindFile(u"*.*"_s);
    ASSERT_FALSE(ftp.File().Eof);
    EXPECT_EQ(ftp.File().Attr, FtpEntry::kDirectory);
    EXPECT_EQ(ftp.File().Size, 0);

    QDir().mkpath(remotePath(u"EMPTY"_s));
    ftp.setCurDir(u"../EMPTY"_s);
    troubles.clear();
    ftp.FindFile(u"*.*"_s);
    EXPECT_TRUE(ftp.File().Eof);
    EXPECT_TRUE(troubles.isEmpty()); // the end of a listing raises nothing
}

TEST_F(McWinFTPTest, RefusedAndBadLoginLeaveNoSession) {
    McWinFTP closed;
    prepare(closed);
    QElapsedTimer clock;
    clock.start();
    closed.OpenSession();
    EXPECT_EQ(closed.hFTP(), 0);
    EXPECT_EQ(closed.lastError(), FtpErrors::kCannotConnect);
    EXPECT_LT(clock.elapsed(), 1500);

    McWinFTP blank;
    prepare(blank);
    blank.RemoteHost = u"   .   .   .   "_s;
    blank.OpenSession();
    EXPECT_EQ(blank.hFTP(), 0);
    EXPECT_EQ(blank.lastError(), FtpErrors::kNameNotResolved);

    startServer();
    McWinFTP wrong;
    connect(wrong, "not the password");
    EXPECT_EQ(wrong.hFTP(), 0);
    ASSERT_EQ(troubles.size(), 1);
    EXPECT_EQ(troubles[0].number, FtpErrors::kServerRefused);
    EXPECT_EQ(troubles[0].text, u"530 Login incorrect."_s);
}

TEST_F(McWinFTPTest, DroppedOrStalledTransfersLeaveNothingHalfWritten) {
    const QByteArray content(64 * 1024, 'n');
    writeFile(remotePath(u"f.bin"_s), content);
    for (const auto fault : {FtpTestServer::Fault::Drop, FtpTestServer::Fault::Stall}) {
        SCOPED_TRACE(fault == FtpTestServer::Fault::Drop ? "drop" : "stall");
        writeFile(localPath(u"f.bin"_s), "older copy");
        startServer(fault);
        McWinFTP ftp;
        connect(ftp);
        ASSERT_EQ(ftp.hFTP(), 1);
        int result = 1;
        ftp.GetFile(u"f.bin"_s, localPath(u"f.bin"_s), false, 2, result);
        EXPECT_EQ(result, 0);
        EXPECT_EQ(readFile(localPath(u"f.bin"_s)), "older copy");
        EXPECT_EQ(localFiles(), QStringList{u"f.bin"_s});
        EXPECT_NE(ftp.lastError(), FtpErrors::kNoMoreFiles);
    }
}

TEST_F(McWinFTPTest, ASilentServerEndsByTheTimeout) {
    startServer(FtpTestServer::Fault::NeverGreet);
    McWinFTP ftp;
    QElapsedTimer clock;
    clock.start();
    connect(ftp);
    EXPECT_EQ(ftp.hFTP(), 0);
    EXPECT_EQ(ftp.lastError(), FtpErrors::kTimeout);
    EXPECT_LT(clock.elapsed(), 10000);
}

} // namespace

// Collecting the files of one row over a real server.
#include "FtpFixture.h"

#include "ftp/FTPFile.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

class FTPFileTest : public FtpFixture {
protected:
    void SetUp() override {
        writeFile(remotePath(u"DATA/a.vxf"_s), "remote-a");
        writeFile(remotePath(u"DATA/b.qdf"_s), "remote-b-grown");
        writeFile(remotePath(u"DATA/c.txt"_s), "c");
        QDir().mkpath(remotePath(u"DATA/SUB"_s));
        QDir().mkpath(remotePath(u"EMPTY"_s));
        startServer();
        ftpFile.settings = shortWaits(port());
        FtpRow& row = *ftpFile.table.row(1);
        row.IPAddress = u"127.  0.  0.  1"_s;
        row.Password = QString::fromLatin1(kPassword);
        row.VXDir = u"DATA"_s;
        row.PCDir = localPath(u"pc/new"_s);
    }
    int collect(int rowNumber = 1) {
        int result = -1;
        ftpFile.GetFile(rowNumber, false, 2, result);
        return result;
    }
    QString pc(const QString& name) const { return localPath(u"pc/new/"_s + name); }
    FTPFile ftpFile;
};

TEST_F(FTPFileTest, FetchesWhatDiffersInSizeOnly) {
    writeFile(pc(u"a.vxf"_s), "local-a!"); // same size, other content: left alone
    writeFile(pc(u"b.qdf"_s), "remote-b"); // the remote one grew
    EXPECT_EQ(collect(), 1);
    EXPECT_EQ(ftpFile.lastDetail().filesFetched, 2);
    EXPECT_FALSE(ftpFile.lastDetail().failed);
    EXPECT_EQ(readFile(pc(u"a.vxf"_s)), "local-a!");
    EXPECT_EQ(readFile(pc(u"b.qdf"_s)), "remote-b-grown");
    EXPECT_EQ(readFile(pc(u"c.txt"_s)), "c");
    EXPECT_FALSE(QFileInfo::exists(pc(u"SUB"_s)));

    // Everything present: nothing new, which is result 0 without a failure.
    EXPECT_EQ(collect(), 0);
    EXPECT_EQ(ftpFile.lastDetail().filesFetched, 0);
    EXPECT_FALSE(ftpFile.lastDetail().failed);
}

TEST_F(FTPFileTest, LeadingSlashAndEmptyFolder) {
    ftpFile.table.row(1)->VXDir = u"/DATA"_s; // the empty first level fails and is only reported
    EXPECT_EQ(collect(), 1);
    EXPECT_EQ(ftpFile.lastDetail().filesFetched, 3);

    ftpFile.table.row(1)->VXDir = u"EMPTY"_s;
    ftpFile.table.row(1)->PCDir = localPath(u"pc/empty"_s);
    EXPECT_EQ(collect(), 0);
    EXPECT_FALSE(ftpFile.lastDetail().failed);
    EXPECT_TRUE(QFileInfo(localPath(u"pc/empty"_s)).isDir());
}

TEST_F(FTPFileTest, AStopTakesEffectBetweenFiles) {
    int calls = 0;
    ftpFile.letUserInterfaceRun = [&] {
        if (++calls == 2) ftpFile.StopRequested = true;
    };
    EXPECT_EQ(collect(), 0);
    EXPECT_EQ(ftpFile.lastDetail().filesFetched, 1);
    EXPECT_FALSE(ftpFile.StopRequested);
    EXPECT_EQ(ftpFile.ftp().hFTP(), 1); // the session stays open after a stop
    ftpFile.FTPConectClose();
}

TEST_F(FTPFileTest, NamesThatAreNoFileNamesAreSkipped) {
    writeFile(remotePath(u"DATA/bad\\name"_s), "x");
    EXPECT_EQ(collect(), 1);
    EXPECT_EQ(ftpFile.lastDetail().skippedNames, QStringList{u"bad\\name"_s});
    EXPECT_FALSE(QFileInfo::exists(pc(u"bad\\name"_s)));
    EXPECT_FALSE(QFileInfo::exists(pc(u"name"_s)));
}

TEST_F(FTPFileTest, ConnectionTestsAndBadRows) {
    EXPECT_TRUE(ftpFile.FTPConect(1));
    ftpFile.table.row(2)->IPAddress = u"127.0.0.1"_s;
    ftpFile.table.row(2)->Password = u"wrong"_s;
    EXPECT_FALSE(ftpFile.FTPConect(2));
    EXPECT_EQ(collect(2), 0);
    EXPECT_TRUE(ftpFile.lastDetail().failed);
    EXPECT_EQ(ftpFile.lastDetail().errorText, u"530 Login incorrect."_s);
    EXPECT_EQ(collect(31), 0);
    EXPECT_TRUE(ftpFile.lastDetail().failed);

    bool ok = false;
    ftpFile.FTPConectTEST(u"127.0.0.1"_s, QString::fromLatin1(kPassword), ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(ftpFile.CurDir(), u"/"_s);
    ftpFile.FTPConectClose();
}

} // namespace

#include "FtpFixture.h"

#include "base/LanguageTable.h"
#include "ftp/IpInput.h"
#include "ftp/ManualTransfer.h"
#include "support/RecordingMessageSink.h"

#include <QFileInfo>

namespace {

class ManualTransferTest : public FtpFixture {
protected:
    void SetUp() override {
        writeFile(remotePath("a.vxf"), "AAAA");
        writeFile(remotePath("b.txt"), "BB");
        writeFile(remotePath("sub/c.qdf"), "C");
        startServer();
        t.settings() = shortWaits(port());
        t.TAddress = QStringLiteral("127.0.0.1");
        t.TPassword = QString::fromLatin1(kPassword);
        t.Dir = local.path();
    }
    // The model row of a remote name (the way up is row 0).
    int rowOf(const QString& name) {
        for (int r = 1; r < t.remote().rowCount(); ++r)
            if (t.remote().entryAt(r)->Name == name) return r;
        return -1;
    }

    RecordingMessageSink sink;
    ManualTransfer t;
};

TEST_F(ManualTransferTest, ConnectingTheAddressTheUserAndThePassword) {
    t.TAddress = QStringLiteral("   ");
    EXPECT_FALSE(t.Connect());
    ASSERT_EQ(sink.calls().size(), 1);
    EXPECT_EQ(sink.last().text, MsgText(568));
    t.TAddress = QStringLiteral("127.0.0.1");
    t.TPassword = QStringLiteral("wrong");
    EXPECT_FALSE(t.Connect());
    EXPECT_EQ(sink.last().text, MsgText(569));
    t.TPassword = QString::fromLatin1(kPassword);
    t.TUserID = QStringLiteral("  "); // logs in as anonymous
    ASSERT_TRUE(t.Connect());
    EXPECT_GE(rowOf("a.vxf"), 1);
    EXPECT_EQ(t.statusText(), QStringLiteral("/"));
    t.Disconnect();
    EXPECT_FALSE(t.connected());
    EXPECT_EQ(t.remote().rowCount(), 1);
}

TEST_F(ManualTransferTest, FetchingTheChosenFilesButNeverAFolder) {
    ASSERT_TRUE(t.Connect());
    sink.clear();
    QStringList lines;
    const int fetched = t.CGet({rowOf("a.vxf"), rowOf("sub"), rowOf("b.txt")},
                               [&](const QString& l) { lines << l; });
    EXPECT_EQ(fetched, 2);
    EXPECT_EQ(localFiles(), (QStringList{"a.vxf", "b.txt"}));
    EXPECT_EQ(readFile(localPath("a.vxf")), QByteArray("AAAA"));
    EXPECT_TRUE(lines.contains(QStringLiteral("<----a.vxf")));
    ASSERT_EQ(sink.calls().size(), 1);
    EXPECT_EQ(sink.last().text, MsgText(571));
    // The local file takes the listed time (to the minute the listing gives).
    const FtpEntry* a = t.remote().entryAt(rowOf("a.vxf"));
    const QDateTime local = QFileInfo(localPath("a.vxf")).lastModified();
    const TimeBase::CalendarTime listed = TimeBase::fromSeconds(*a->Date);
    EXPECT_EQ(local.date(), QDate(listed.year, listed.month, listed.day));
    EXPECT_EQ(local.time().hour(), listed.hour);
    EXPECT_EQ(local.time().minute(), listed.minute);
}

TEST_F(ManualTransferTest, SendingIntoAFolderAndNothingAtTheRoot) {
    writeFile(localPath("up.dat"), "UP");
    ASSERT_TRUE(t.Connect());
    sink.clear();
    EXPECT_EQ(t.CPut({QStringLiteral("up.dat")}), 0); // the root
    EXPECT_FALSE(QFile::exists(remotePath("up.dat")));
    EXPECT_EQ(sink.last().text, MsgText(571));
    ASSERT_TRUE(t.enter(rowOf("sub")));
    EXPECT_EQ(t.CPut({QStringLiteral("up.dat")}), 1);
    EXPECT_EQ(readFile(remotePath("sub/up.dat")), QByteArray("UP"));
    EXPECT_GE(rowOf("up.dat"), 1);
    ASSERT_TRUE(t.enter(0)); // the way up
    EXPECT_GE(rowOf("sub"), 1);
}

TEST_F(ManualTransferTest, DeletingAsksFirstAndLeavesFolders) {
    ASSERT_TRUE(t.Connect());
    sink.setAnswer(2); // Cancel
    t.Delete({rowOf("a.vxf")});
    EXPECT_TRUE(QFile::exists(remotePath("a.vxf")));
    EXPECT_EQ(sink.last().text, MsgText(572));
    sink.setAnswer(1);
    t.Delete({rowOf("a.vxf"), rowOf("sub")});
    EXPECT_FALSE(QFile::exists(remotePath("a.vxf")));
    EXPECT_TRUE(QFile::exists(remotePath("sub/c.qdf")));
    EXPECT_EQ(rowOf("a.vxf"), -1);
}

TEST_F(ManualTransferTest, TheSettingsFileKeepsTheAddressAndTheFolder) {
    const QString ini = localPath("FTPset.ini");
    t.TAddress = QStringLiteral(" 10.  0.  0.  1 ");
    ASSERT_TRUE(t.save(ini));
    ManualTransfer other;
    other.load(ini);
    EXPECT_EQ(other.TAddress, QStringLiteral("10.  0.  0.  1"));
    EXPECT_EQ(other.Dir, local.path());
    writeFile(localPath("empty.ini"), "");
    ManualTransfer fresh;
    fresh.load(localPath("empty.ini"));
    EXPECT_EQ(fresh.TAddress, QString::fromLatin1(ManualTransfer::kFactoryAddress));
}

// A server that drops the connection in mid-file: 570 with the name and no half file.
class ManualTransferDrop : public FtpFixture {};

TEST_F(ManualTransferDrop, ALostServerLeavesNoHalfFile) {
    writeFile(remotePath("big.vxf"), QByteArray(200000, 'x'));
    startServer(FtpTestServer::Fault::Drop);
    RecordingMessageSink sink;
    ManualTransfer t;
    t.settings() = shortWaits(port());
    t.TAddress = QStringLiteral("127.0.0.1");
    t.TPassword = QString::fromLatin1(kPassword);
    t.Dir = local.path();
    ASSERT_TRUE(t.Connect());
    int row = -1;
    for (int r = 1; r < t.remote().rowCount(); ++r)
        if (t.remote().entryAt(r)->Name == QLatin1String("big.vxf")) row = r;
    ASSERT_GE(row, 1);
    EXPECT_EQ(t.CGet({row}), 0);
    ASSERT_FALSE(sink.calls().isEmpty());
    EXPECT_EQ(sink.last().text, MsgText(570) + "\r\nbig.vxf");
    EXPECT_TRUE(localFiles().isEmpty());
}

TEST(IpInput, BoxesClampAndPad) {
    EXPECT_EQ(IpInput::clamp("300"), "255");
    EXPECT_EQ(IpInput::clamp("-4"), "0");
    EXPECT_EQ(IpInput::clamp("17"), "17");
    EXPECT_EQ(IpInput::join(IpInput::split("")), "   .   .   .   ");
    EXPECT_EQ(IpInput::join(IpInput::split("10.0.0.1")), " 10.  0.  0.  1");
    EXPECT_EQ(IpInput::split(" 192 .168.1.20.9"), (QStringList{"192", "168", "1", "20"}));
}

} // namespace

// `recview collect`: one pass over the table's rows, its output, exit status and the table
// written back.
#include "FtpFixture.h"

#include "base/LanguageTable.h"
#include "ftp/FtpTable.h"

#include <QCoreApplication>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

struct VerbRun {
    int exitCode = -1;
    QString out;
};

class CollectVerbTest : public FtpFixture {
protected:
    void SetUp() override {
        writeFile(remotePath(u"DATA/a.vxf"_s), "aaaa");
        writeFile(remotePath(u"DATA/b.vxf"_s), "bbbbbb");
        QDir().mkpath(remotePath(u"EMPTY"_s));
        startServer();
        FtpTable table;
        setRow(table, 1, u"furnace"_s, u"DATA"_s, kPassword);
        setRow(table, 2, u"empty"_s, u"EMPTY"_s, kPassword);
        setRow(table, 3, u"locked"_s, u"DATA"_s, "wrong");
        table.row(4)->Tag = u"no folder"_s;
        ASSERT_TRUE(writeFtpDataSet(settingsPath(), table));
    }
    void setRow(FtpTable& table, int n, const QString& tag, const QString& dir, const char* pw) {
        FtpRow& row = *table.row(n);
        row.Tag = tag;
        row.IPAddress = u"127.  0.  0.  1"_s;
        row.Password = QString::fromLatin1(pw);
        row.VXDir = dir;
        row.PCDir = localPath(u"pc%1"_s.arg(n));
    }
    QString settingsPath() const { return localPath(u"FTPDataSet.ini"_s); }
    VerbRun collect(QStringList args) {
        QProcess p;
        p.start(QCoreApplication::applicationDirPath() + u"/../recview"_s,
                QStringList{u"collect"_s, u"--settings"_s, settingsPath()} + args);
        p.waitForFinished(60000);
        return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1,
                QString::fromUtf8(p.readAllStandardOutput())};
    }
    QStringList portArgs() const { return {u"--port"_s, QString::number(port())}; }
};

TEST_F(CollectVerbTest, OnePassOverTheConfiguredRows) {
    const QString done = MsgText(13), notCollected = MsgText(496);
    const VerbRun first = collect(portArgs());
    EXPECT_EQ(first.exitCode, 1); // row 3 could not log in
    EXPECT_EQ(first.out, u"row 1\tfurnace\t%1\t2\t\n"
                         u"row 2\tempty\t%2\t0\t\n"
                         u"row 3\tlocked\t%2\t0\t530 Login incorrect.\n"_s.arg(done, notCollected));
    EXPECT_EQ(readFile(localPath(u"pc1/b.vxf"_s)), "bbbbbb");

    FtpTable table;
    ASSERT_TRUE(readFtpDataSet(settingsPath(), table));
    EXPECT_FALSE(table.row(1)->Time.isEmpty());
    EXPECT_TRUE(table.row(2)->Time.isEmpty());
    EXPECT_TRUE(table.row(3)->Time.isEmpty());
    EXPECT_EQ(readFile(settingsPath()).count("\r\n"), 216);

    // Everything present: nothing new is no failure.
    const VerbRun second =
        collect(portArgs() + QStringList{u"--row"_s, u"1"_s, u"--row"_s, u"2"_s});
    EXPECT_EQ(second.exitCode, 0);
    EXPECT_EQ(second.out, u"row 1\tfurnace\t%1\t0\t\nrow 2\tempty\t%1\t0\t\n"_s.arg(notCollected));
}

// --manual runs the rules of "collect all": rows after the first get one attempt, so the locked
// row fails at once without the table's wait.
TEST_F(CollectVerbTest, TheManualRulesGiveTheSameRows) {
    const QString done = MsgText(13), notCollected = MsgText(496);
    const VerbRun run = collect(portArgs() + QStringList{u"--manual"_s});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.out.startsWith(u"row 1\tfurnace\t%1\t2\t\n"_s.arg(done)))
        << run.out.toStdString();
    EXPECT_TRUE(run.out.contains(u"row 3\tlocked\t%1\t0\t"_s.arg(notCollected)));
}

TEST_F(CollectVerbTest, BadUsageTouchesNothing) {
    const QByteArray before = readFile(settingsPath());
    const QList<QStringList> bad = {
        {u"--port"_s, u"0"_s}, {u"--port"_s, u"65536"_s}, {u"--row"_s, u"31"_s},
        {u"--row"_s, u"0"_s},  {u"--row"_s, u"4"_s},      {u"--bogus"_s},
        {u"--port"_s},
    };
    for (const QStringList& args : bad) {
        SCOPED_TRACE(args.join(u' ').toStdString());
        const VerbRun run = collect(args);
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_TRUE(run.out.isEmpty());
    }
    EXPECT_EQ(readFile(settingsPath()), before);
    EXPECT_FALSE(QFileInfo::exists(localPath(u"pc1"_s)));
}

TEST_F(CollectVerbTest, ARefusedHostFailsTheRow) {
    const VerbRun run =
        collect({u"--port"_s, QString::number(FtpTestServer::closedPort()), u"--row"_s, u"1"_s});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.out.startsWith(u"row 1\tfurnace\t%1\t0\t"_s.arg(MsgText(496))));
}

} // namespace

// Start-up: application paths, the small start files, the operation mode and the order of steps.
#include "app/AppPaths.h"
#include "app/GSMode.h"
#include "app/PathChecks.h"
#include "app/StartFiles.h"
#include "app/SubMain.h"
#include "app/ViewSlots.h"
#include "app/clsCommon.h"
#include "app/clsLibrary.h"
#include "support/RecordingMessageSink.h"

#include "TestTables.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

QStringList readLines(const QString& path) {
    QStringList lines;
    TextFile::readLines(path, lines);
    return lines;
}

class StartupTest : public ::testing::Test {
protected:
    void SetUp() override {
        loadEnglishMessages(tables.path(),
                            {{204, QStringLiteral("Group")}, {268, QStringLiteral("Viewer")}});
        setAppPath(0, program.path() + QLatin1Char('/'));
        setAppPath(3, work.path() + QLatin1Char('/'));
        setAppPath(4, work.path() + QLatin1Char('/'));
    }
    void writeWork(const char* name, const QByteArray& bytes) {
        ASSERT_TRUE(
            TextFile::writeAtomically(work.path() + QLatin1Char('/') + QLatin1String(name), bytes));
    }
    QTemporaryDir tables, program, work;
};

TEST_F(StartupTest, TrailingSlashIsAddedOnce) {
    EXPECT_EQ(withTrailingSlash(QStringLiteral("/")), QLatin1String("/"));
    EXPECT_EQ(withTrailingSlash(QStringLiteral("/opt/recview")), QLatin1String("/opt/recview/"));
    EXPECT_EQ(withTrailingSlash(QStringLiteral("/opt/recview/")), QLatin1String("/opt/recview/"));
    EXPECT_TRUE(programDirectory().endsWith(QLatin1Char('/')));
}

TEST_F(StartupTest, WorkDirectoriesAreMadeBelowTheDataFolder) {
    const QString data = work.path() + QStringLiteral("/data");
    setWorkPaths(data, 0);
    EXPECT_EQ(AppPaths(1), data + QStringLiteral("/analysis/TrndSet/"));
    EXPECT_EQ(AppPaths(4), data + QStringLiteral("/analysis/"));
    ASSERT_TRUE(createWorkDirectories());
    for (int i = 1; i <= 4; ++i) EXPECT_TRUE(DirExists(AppPaths(i))) << i;
    setWorkPaths(data, 4);
    EXPECT_EQ(AppPaths(3), data + QStringLiteral("/ZUW/analysis/WK/"));
    EXPECT_TRUE(DirExists(data + QStringLiteral("/ZUW")));
    EXPECT_EQ(AppPaths(5), QString());
}

TEST_F(StartupTest, FileAndDirectoryTests) {
    writeWork("f.txt", "x");
    const QString file = work.path() + QStringLiteral("/f.txt");
    const struct {
        QString path;
        bool file;
        bool dir;
    } cases[] = {
        {QString(), false, false},
        {file, true, false},
        {file + QLatin1Char('/'), true, false},
        {work.path() + QStringLiteral("/f.*"), false, false},
        {work.path() + QStringLiteral("/f?txt"), false, false},
        {work.path(), false, true},
        {QStringLiteral("/"), false, true},
        {work.path() + QStringLiteral("/none"), false, false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(FileExists(c.path), c.file) << c.path.toStdString();
        EXPECT_EQ(DirExists(c.path), c.dir) << c.path.toStdString();
    }
}

TEST_F(StartupTest, FirstFreeViewIsTheSmallestFreeNumber) {
    clearViewSlots();
    EXPECT_EQ(FirstFreeView(), 1);
    setViewInUse(0, true);
    setViewInUse(2, true);
    EXPECT_EQ(FirstFreeView(), 2);
    for (int slot = 0; slot < 10; ++slot) setViewInUse(slot, true);
    EXPECT_EQ(FirstFreeView(), 0);
    setViewInUse(9, false);
    EXPECT_EQ(FirstFreeView(), 10);
    clearViewSlots();
}

TEST_F(StartupTest, GroupNamesDefaultForMissingOrEmptyFile) {
    LoadGroupNames();
    const QStringList expected = {QStringLiteral("Group1"), QStringLiteral("Group2"),
                                  QStringLiteral("Group3"), QStringLiteral("Group4"),
                                  QStringLiteral("Group5"), QStringLiteral("Group6"),
                                  QStringLiteral("Group7"), QStringLiteral("Group8"),
                                  QStringLiteral("Group9"), QStringLiteral("Group10")};
    EXPECT_EQ(readLines(work.path() + QStringLiteral("/GName.ini")), expected);
    EXPECT_EQ(GroupNames(10), QLatin1String("Group10"));

    writeWork("GName.ini", "");
    setGroupName(1, QStringLiteral("changed"));
    LoadGroupNames();
    EXPECT_EQ(GroupNames(1), QLatin1String("Group1"));

    writeWork("GName.ini", "  Boiler A \r\nLine 2\n\n4\n5\n6\n7\n8\n9\n10\neleven\n");
    LoadGroupNames();
    EXPECT_EQ(GroupNames(1), QLatin1String("Boiler A"));
    EXPECT_EQ(GroupNames(3), QString());
    EXPECT_EQ(GroupNames(10), QLatin1String("10"));
    EXPECT_EQ(GroupNames(11), QString());
}

TEST_F(StartupTest, ShowPointsStopAtTheFirstBadLine) {
    LoadShowPoints(); // no file: nothing changes, nothing fails
    writeWork("ShowPoints.ini", "1, 2\n 30 ,40\nx,5\n7,8\n");
    LoadShowPoints();
    EXPECT_EQ(ShowPointsA(0), 1);
    EXPECT_EQ(ShowPointsB(1), 40);
    EXPECT_EQ(ShowPointsA(2), 0); // the bad line and all after it are not read
    EXPECT_EQ(ShowPointsA(3), 0);

    QByteArray eleven;
    for (int n = 1; n <= 11; ++n)
        eleven += QByteArray::number(n) + "," + QByteArray::number(-n) + "\n";
    writeWork("ShowPoints.ini", eleven);
    LoadShowPoints();
    EXPECT_EQ(ShowPointsA(9), 10);
    EXPECT_EQ(ShowPointsB(9), -10);
    EXPECT_EQ(ShowPointsA(10), 0);
}

TEST_F(StartupTest, LastDirectoryIsTheLastNonEmptyLine) {
    EXPECT_EQ(ReadLastDirectory(), AppPaths(0));
    writeWork("DPASS.ini", "");
    EXPECT_EQ(ReadLastDirectory(), AppPaths(0));
    writeWork("DPASS.ini", "/old\n  /data/run 2  \n   \n\n");
    EXPECT_EQ(ReadLastDirectory(), QLatin1String("/data/run 2"));
    SaveLastDirectory(QStringLiteral("/new/place"));
    EXPECT_EQ(readLines(work.path() + QStringLiteral("/DPASS.ini")),
              QStringList{QStringLiteral("/new/place")});
    EXPECT_EQ(ReadLastDirectory(), QLatin1String("/new/place"));
}

TEST_F(StartupTest, GSModeIsChosenByTheFileAlone) {
    EXPECT_EQ(selectOperationMode(), 0);
    EXPECT_EQ(GSMode().GSTitleSuffix, QString());

    ASSERT_TRUE(TextFile::writeAtomically(AppPaths(0) + QStringLiteral("GSmode.ini"),
                                          "[frmMain]\nTitle=\"ja\"#\" en\ttitle \"#ko\n"));
    EXPECT_EQ(selectOperationMode(), 34);
    EXPECT_EQ(clsCommon::shared().OperationMode(), 34);
    EXPECT_EQ(GSMode().GSTitleSuffix, QLatin1String(" MOVRA for GS"));
    EXPECT_EQ(GSMode().GSMainTitle, QLatin1String("en\ntitle"));
    EXPECT_EQ(mainWindowTitle(QStringLiteral("normal")), QLatin1String("en\ntitle"));

    // An empty file selects GS mode too; the missing title is reported once.
    RecordingMessageSink sink;
    ASSERT_TRUE(TextFile::writeAtomically(AppPaths(0) + QStringLiteral("GSmode.ini"), ""));
    EXPECT_EQ(selectOperationMode(), 34);
    ASSERT_EQ(sink.calls().size(), 1);
    EXPECT_EQ(sink.last().flags, 48);
    EXPECT_EQ(sink.last().title, QLatin1String("gblnGetINI"));
    EXPECT_TRUE(
        sink.last().text.startsWith(QStringLiteral("INIファイルが正しく設定されていません。\n")));
    EXPECT_TRUE(sink.last().text.endsWith(QStringLiteral("  キー名　　　　: Title\n[gblnGetINI]")));
    QFile::remove(AppPaths(0) + QStringLiteral("GSmode.ini"));
    selectOperationMode();
}

TEST_F(StartupTest, BothWaysOfReadingTheTitleFileAgree) {
    GSMode().GSModePath = AppPaths(0);
    ASSERT_TRUE(TextFile::writeAtomically(AppPaths(0) + QStringLiteral("GSmode.ini"),
                                          "; [frmMain]\n[Other]\nTitle=no\n[FRMMAIN]\n"
                                          "Caption=x\ntitle = a#b ; note\n"));
    RecordingMessageSink sink;
    for (const bool whole : {false, true}) {
        clsLibrary::gblnGetINIReadsWholeFile() = whole;
        QString value;
        EXPECT_TRUE(
            clsLibrary::gblnGetINI(QStringLiteral("frmMain"), QStringLiteral("Title"), value));
        EXPECT_TRUE(value.startsWith(QLatin1String("a#b"))) << whole;
        EXPECT_FALSE(
            clsLibrary::gblnGetINI(QStringLiteral("frmMain"), QStringLiteral("Missing"), value));
    }
    clsLibrary::gblnGetINIReadsWholeFile() = false;
    EXPECT_EQ(sink.calls().size(), 2);
}

// Records the steps in the order start-up takes them.
class RecordingHost final : public StartupHost {
public:
    bool second = false;
    QString command;
    int files = 0;
    QStringList steps;
    QString clickFile;

    bool anotherInstanceRunning() override {
        steps << QStringLiteral("instance?");
        return second;
    }
    QString commandLine() override { return command; }
    int ParseCommandFiles(const QString&) override {
        steps << (FileExists(clickFile) ? QStringLiteral("parse with stale file")
                                        : QStringLiteral("parse"));
        return files;
    }
    void WriteClickFile() override { steps << QStringLiteral("write click file"); }
    void showTrMdiForm() override { steps << QStringLiteral("TrMdiForm"); }
    void setHelpFile(const QString& path) override {
        steps << QStringLiteral("help ") + QFileInfo(path).fileName();
    }
    void setPrintDefaults() override { steps << QStringLiteral("print defaults"); }
    void showFrmMain() override {
        steps << (FileExists(AppPaths(3) + QStringLiteral("GName.ini"))
                      ? QStringLiteral("frmMain")
                      : QStringLiteral("frmMain without group names"));
    }
};

TEST_F(StartupTest, FirstInstanceTakesTheStepsInOrder) {
    RecordingHost host;
    host.command = QStringLiteral("/data/a.vxf");
    host.clickFile = userDataFolder() + QStringLiteral("/analysis/D_Click.ini");
    QDir().mkpath(userDataFolder() + QStringLiteral("/analysis"));
    ASSERT_TRUE(TextFile::writeAtomically(host.clickFile, "[stale]\n"));
    EXPECT_EQ(SubMain(host), StartResult::Started);
    EXPECT_EQ(host.steps, (QStringList{QStringLiteral("instance?"), QStringLiteral("TrMdiForm"),
                                       QStringLiteral("help DataAnalysis.chm"),
                                       QStringLiteral("print defaults"), QStringLiteral("parse"),
                                       QStringLiteral("frmMain")}));
    EXPECT_TRUE(AppStarted());
    for (int i = 1; i <= 4; ++i) EXPECT_TRUE(DirExists(AppPaths(i))) << i;
    EXPECT_TRUE(AppPaths(4).startsWith(userDataFolder()));
}

TEST_F(StartupTest, SecondInstanceHandsOverOnlyFilesItFound) {
    const struct {
        const char* command;
        int files;
        QStringList steps;
    } cases[] = {
        {"", 3, {QStringLiteral("instance?")}},
        {"/data/a.vxf", 0, {QStringLiteral("instance?"), QStringLiteral("parse")}},
        {"/data/a.vxf",
         1,
         {QStringLiteral("instance?"), QStringLiteral("parse"),
          QStringLiteral("write click file")}},
    };
    // The second process's own slots are empty even when the first has ten views open.
    clearViewSlots();
    for (const auto& c : cases) {
        RecordingHost host;
        host.second = true;
        host.command = QLatin1String(c.command);
        host.files = c.files;
        EXPECT_EQ(SubMain(host), StartResult::SecondInstanceEnded);
        EXPECT_EQ(host.steps, c.steps) << c.command << " " << c.files;
    }
}

} // namespace

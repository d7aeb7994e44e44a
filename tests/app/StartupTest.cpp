// Start-up: application paths, the small start files, the operation mode and the order of steps.
#include "app/StartFiles.h"
#include "app/SubMain.h"
#include "base/AppPaths.h"
#include "base/GSMode.h"
#include "base/PathChecks.h"
#include "base/clsCommon.h"
#include "base/clsLibrary.h"
#include "recording/ViewSlots.h"
#include "support/RecordingMessageSink.h"

#include "support/TestTables.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QStringList readLines(const QString& path) {
    QStringList lines;
    TextFile::readLines(path, lines);
    return lines;
}

class StartupTest : public ::testing::Test {
protected:
    void SetUp() override {
        loadEnglishMessages(tables.path(), {{204, u"Group"_s}, {268, u"Viewer"_s}});
        setAppPath(0, program.path() + u'/');
        setAppPath(3, work.path() + u'/');
        setAppPath(4, work.path() + u'/');
    }
    QString at(const QString& name) const { return work.path() + u'/' + name; }
    void writeWork(const QString& name, const QByteArray& bytes) {
        ASSERT_TRUE(TextFile::writeAtomically(at(name), bytes));
    }
    QTemporaryDir tables, program, work;
};

TEST_F(StartupTest, WorkDirectoriesLieBelowTheDataFolder) {
    EXPECT_EQ(withTrailingSlash(u"/opt/recview"_s), u"/opt/recview/"_s);
    const QString data = work.path() + u"/data"_s;
    setWorkPaths(data, 0);
    EXPECT_EQ(AppPaths(1), data + u"/analysis/TrndSet/"_s);
    setWorkPaths(data, 4);
    EXPECT_EQ(AppPaths(3), data + u"/ZUW/analysis/WK/"_s);
    EXPECT_EQ(AppPaths(5), QString());
}

TEST_F(StartupTest, AFileWithATrailingSlashStillExists) {
    writeWork(u"f.txt"_s, "x");
    EXPECT_TRUE(FileExists(at(u"f.txt/"_s)));
    EXPECT_FALSE(DirExists(at(u"f.txt/"_s)));
    EXPECT_FALSE(FileExists(work.path()));
}

TEST_F(StartupTest, GroupNamesDefaultForMissingOrEmptyFile) {
    LoadGroupNames();
    QStringList defaults;
    for (int n = 1; n <= 10; ++n) defaults << u"Group"_s + QString::number(n);
    EXPECT_EQ(readLines(at(u"GName.ini"_s)), defaults);
    EXPECT_EQ(GroupNames(10), u"Group10"_s);

    writeWork(u"GName.ini"_s, "");
    setGroupName(1, u"changed"_s);
    LoadGroupNames();
    EXPECT_EQ(GroupNames(1), u"Group1"_s);

    writeWork(u"GName.ini"_s, "  Boiler A \r\nLine 2\n\n4\n5\n6\n7\n8\n9\n10\neleven\n");
    LoadGroupNames();
    EXPECT_EQ(GroupNames(1), u"Boiler A"_s);
    EXPECT_EQ(GroupNames(3), QString());
    EXPECT_EQ(GroupNames(10), u"10"_s);
    EXPECT_EQ(GroupNames(11), QString());
}

TEST_F(StartupTest, ShowPointsStopAtTheFirstBadLineOrTheEleventh) {
    LoadShowPoints(); // no file: nothing changes, nothing fails
    writeWork(u"ShowPoints.ini"_s, "1, 2\n 30 ,40\nx,5\n7,8\n");
    LoadShowPoints();
    EXPECT_EQ(ShowPointsB(1), 40);
    EXPECT_EQ(ShowPointsA(3), 0); // the bad line and all after it are not read

    QByteArray eleven;
    for (int n = 1; n <= 11; ++n)
        eleven += QByteArray::number(n) + ',' + QByteArray::number(-n) + '\n';
    writeWork(u"ShowPoints.ini"_s, eleven);
    LoadShowPoints();
    EXPECT_EQ(ShowPointsA(9), 10);
    EXPECT_EQ(ShowPointsB(9), -10);
    EXPECT_EQ(ShowPointsA(10), 0);
}

TEST_F(StartupTest, LastDirectoryIsTheLastNonEmptyLine) {
    EXPECT_EQ(ReadLastDirectory(), AppPaths(0));
    writeWork(u"DPASS.ini"_s, "");
    EXPECT_EQ(ReadLastDirectory(), AppPaths(0));
    writeWork(u"DPASS.ini"_s, "/old\n  /data/run 2  \n   \n\n");
    EXPECT_EQ(ReadLastDirectory(), u"/data/run 2"_s);
    SaveLastDirectory(u"/new/place"_s);
    EXPECT_EQ(readLines(at(u"DPASS.ini"_s)), QStringList{u"/new/place"_s});
}

TEST_F(StartupTest, GSModeIsChosenByTheFileAlone) {
    const QString file = AppPaths(0) + u"GSmode.ini"_s;
    EXPECT_EQ(selectOperationMode(), 0);
    EXPECT_EQ(GSMode().GSTitleSuffix, QString());

    ASSERT_TRUE(TextFile::writeAtomically(file, "[frmMain]\nTitle=\"ja\"#\" en\ttitle \"#ko\n"));
    EXPECT_EQ(selectOperationMode(), 34);
    EXPECT_EQ(clsCommon::shared().OperationMode(), 34);
    EXPECT_EQ(GSMode().GSTitleSuffix, u" MOVRA for GS"_s);
    EXPECT_EQ(mainWindowTitle(u"normal"_s), u"en\ntitle"_s);

    // An empty file selects GS mode too; the missing title is reported once.
    RecordingMessageSink sink;
    ASSERT_TRUE(TextFile::writeAtomically(file, ""));
    EXPECT_EQ(selectOperationMode(), 34);
    ASSERT_EQ(sink.calls().size(), 1);
    EXPECT_EQ(sink.last().flags, 48);
    EXPECT_EQ(sink.last().title, u"gblnGetINI"_s);
    EXPECT_TRUE(sink.last().text.startsWith(u"INIファイルが正しく設定されていません。\n"_s));
    EXPECT_TRUE(sink.last().text.endsWith(u"  キー名　　　　: Title\n[gblnGetINI]"_s));
    QFile::remove(file);
    selectOperationMode();
}

TEST_F(StartupTest, TitleSectionIsFoundRegardlessOfCase) {
    GSMode().GSModePath = AppPaths(0);
    ASSERT_TRUE(TextFile::writeAtomically(
        AppPaths(0) + u"GSmode.ini"_s,
        "; [frmMain]\n[Other]\nTitle=no\n[FRMMAIN]\nCaption=x\ntitle = a#b ; note\n"));
    RecordingMessageSink sink;
    QString value;
    EXPECT_TRUE(clsLibrary::gblnGetINI(u"frmMain"_s, u"Title"_s, value));
    EXPECT_TRUE(value.startsWith(u"a#b"_s));
    EXPECT_FALSE(clsLibrary::gblnGetINI(u"frmMain"_s, u"Missing"_s, value));
    EXPECT_EQ(sink.calls().size(), 1);
}

// Records the steps in the order start-up takes them.
class RecordingHost final : public StartupHost {
public:
    bool second = false;
    QString command, clickFile;
    int files = 0;
    QStringList steps;

    bool anotherInstanceRunning() override {
        steps << u"instance?"_s;
        return second;
    }
    QString commandLine() override { return command; }
    int ParseCommandFiles(const QString&) override {
        steps << (FileExists(clickFile) ? u"parse with stale file"_s : u"parse"_s);
        return files;
    }
    void WriteClickFile() override { steps << u"write click file"_s; }
    void showTrMdiForm() override { steps << u"TrMdiForm"_s; }
    void setHelpFile(const QString& path) override {
        steps << u"help "_s + QFileInfo(path).fileName();
    }
    void setPrintDefaults() override { steps << u"print defaults"_s; }
    void showFrmMain() override {
        steps << (FileExists(AppPaths(3) + u"GName.ini"_s) ? u"frmMain"_s
                                                           : u"frmMain without group names"_s);
    }
};

TEST_F(StartupTest, FirstInstanceTakesTheStepsInOrder) {
    RecordingHost host;
    host.command = u"/data/a.vxf"_s;
    host.clickFile = userDataFolder() + u"/analysis/D_Click.ini"_s;
    QDir().mkpath(userDataFolder() + u"/analysis"_s);
    ASSERT_TRUE(TextFile::writeAtomically(host.clickFile, "[stale]\n"));
    EXPECT_EQ(SubMain(host), StartResult::Started);
    EXPECT_EQ(host.steps, (QStringList{u"instance?"_s, u"TrMdiForm"_s, u"help DataAnalysis.chm"_s,
                                       u"print defaults"_s, u"parse"_s, u"frmMain"_s}));
    EXPECT_TRUE(AppStarted());
    for (int i = 1; i <= 4; ++i) EXPECT_TRUE(DirExists(AppPaths(i))) << i;
    EXPECT_TRUE(AppPaths(4).startsWith(userDataFolder()));
}

TEST_F(StartupTest, SecondInstanceHandsOverOnlyFilesItFound) {
    const QStringList parsed{u"instance?"_s, u"parse"_s};
    const struct {
        const char* command;
        int files;
        QStringList steps;
    } cases[] = {{"", 3, {u"instance?"_s}}, // no arguments: ends silently
                 {"/data/a.vxf", 0, parsed},
                 {"/data/a.vxf", 1, parsed + QStringList{u"write click file"_s}}};
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

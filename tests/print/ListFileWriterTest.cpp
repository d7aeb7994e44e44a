#include "print/ListFileWriter.h"
#include "analysis/ListFixture.h"
#include "analysis/SkipCount.h"
#include "base/LanguageTable.h"
#include "base/Progress.h"
#include "print/ExportKind.h"
#include "print/ListWorkbookWriter.h"
#include "trend/TrendCursors.h"
#include "trend/TrendTimeAxis.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>

using namespace listtest;

namespace {

// As a std::string, so that a difference shows as text.
std::string readAll(const QString& path) {
    QFile f(path);
    return (f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<missing>")).toStdString();
}

// The line of sample s (1-based) as the list writes it: date, time, the given channel texts.
QByteArray rowLine(int s, const QStringList& channels, char sep) {
    const SampleTime t = SampleTimeText(s - 1, 1);
    return (QStringList{t.date, t.time} + channels).join(QLatin1Char(sep)).toUtf8() + "\r\n";
}

QByteArray headerLine(char sep, const char* first = "T1 [degC]", const char* second = "T2 [degC]") {
    return (QStringList{QString(), MsgText(77), QString::fromLatin1(first),
                        QString::fromLatin1(second)})
               .join(QLatin1Char(sep))
               .toUtf8() +
           "\r\n";
}

QString num(int tenths) {
    return QString::number(tenths / 10.0);
}

struct SkipGuard {
    ~SkipGuard() { SkipCount() = 0; }
};

class ListFile : public ::testing::Test {
protected:
    SkipGuard skip;
};

TEST_F(ListFile, EveryStepthRowWithCrLfAndNoBomInCsvAndText) {
    ListView v(twoChannels(10));
    SkipCount() = 2;
    for (const char* name : {"list.csv", "LIST.dat", "list.Csv"}) {
        const QString path = v.dir.path(QString::fromLatin1(name));
        const ExportKind::Kind kind = ExportKind::ofName(path);
        const char sep = ExportKind::separator(kind);
        EXPECT_EQ(sep, QByteArray(name).toUpper().endsWith("CSV") ? ',' : '\t') << name;
        ASSERT_TRUE(WriteListFile(*v.list, kind, path)) << name;
        QByteArray expected = headerLine(sep);
        for (int s : {1, 4, 7, 10}) expected += rowLine(s, {num(s), num(10 * s)}, sep);
        EXPECT_EQ(readAll(path), expected.toStdString()) << name;
    }
}

TEST_F(ListFile, AHiddenChannelKeepsItsHeaderFieldAndLeavesTheRows) {
    ListView v(twoChannels(3));
    v.grid.setColHidden(2, true);
    const QString path = v.dir.path("hidden.txt");
    ASSERT_TRUE(WriteListFile(*v.list, ExportKind::Txt, path));
    QByteArray expected = headerLine('\t');
    for (int s = 1; s <= 3; ++s) expected += rowLine(s, {num(10 * s)}, '\t');
    EXPECT_EQ(readAll(path), expected.toStdString());
}

TEST_F(ListFile, RowsBetweenTheCursorsAndStatusWordsAsTheGridShowsThem) {
    fixtures::VxfDescription d = twoChannels(20);
    d.rows[6][1].value = 32766; // BURN
    ListView v(d);
    TrendCursors cursors(*v.view);
    ASSERT_TRUE(cursors.place(1, 9));
    ASSERT_TRUE(cursors.place(2, 6));
    v.list->setRowSet(2);
    const QString path = v.dir.path("cursors.csv");
    ASSERT_TRUE(WriteListFile(*v.list, ExportKind::Csv, path));
    QByteArray expected = headerLine(',');
    for (int s = 6; s <= 9; ++s)
        expected += rowLine(s, {num(s), s == 7 ? QStringLiteral("BURN") : num(10 * s)}, ',');
    EXPECT_EQ(readAll(path), expected.toStdString());
}

TEST_F(ListFile, CommentBlockOnlyWhenTheChartHasMoreThanOneLabel) {
    ListView v(twoChannels(5));
    const QString path = v.dir.path("comments.csv");
    ChartLabels& labels = v.chart().labels();
    labels.clear();
    labels.add("Title");
    ASSERT_TRUE(WriteListFile(*v.list, ExportKind::Csv, path));
    EXPECT_EQ(readAll(path).find(MsgText(292).toStdString()), std::string::npos);

    ChartLabel& late = labels.add("Dropped");
    late.AttachDataIndex = {1, 4};
    late.Text = "late one";
    ChartLabel& early = labels.add("Dropped");
    early.AttachDataIndex = {2, 2};
    early.Text = "early";
    ASSERT_TRUE(WriteListFile(*v.list, ExportKind::Csv, path));
    const SampleTime t2 = SampleTimeText(1, 1), t4 = SampleTimeText(3, 1);
    const QByteArray block = "\r\n" + MsgText(292).toUtf8() + "\r\n" +
                             (MsgText(220) + "," + MsgText(77) + "," + MsgText(293)).toUtf8() +
                             "\r\n" + (t2.date + "," + t2.time + ",early\r\n").toUtf8() +
                             (t4.date + "," + t4.time + ",late one\r\n").toUtf8();
    EXPECT_TRUE(readAll(path).ends_with((rowLine(5, {num(5), num(50)}, ',') + block).toStdString()))
        << readAll(path);
}

TEST_F(ListFile, AFailedOrCancelledWriteLeavesTheOldFileAndNoTemporaryOne) {
    ListView v(twoChannels(300));
    const QString path = v.dir.path("old.csv");
    {
        QFile old(path);
        ASSERT_TRUE(old.open(QIODevice::WriteOnly));
        old.write("old contents");
    }
    class CancelAtOnce : public Progress {
        void setValue(int) override {}
        bool poll() override { return true; }
    } cancel;
    EXPECT_FALSE(WriteListFile(*v.list, ExportKind::Csv, path, &cancel));
    EXPECT_EQ(readAll(path), "old contents");
    EXPECT_FALSE(WriteListFile(*v.list, ExportKind::Csv, v.dir.path("no/such/folder/x.csv")));
    EXPECT_EQ(QDir(v.dir.path(QString())).entryList(QDir::Files | QDir::Hidden),
              QStringList({"list.vxf", "old.csv"}));
}

TEST(ExportKind, NamesSeparatorsAndTheCommaDecimalRule) {
    EXPECT_EQ(ExportKind::ofName("a.csv"), ExportKind::Csv);
    EXPECT_EQ(ExportKind::ofName("a.xcsv"), ExportKind::Csv); // the last three characters
    EXPECT_EQ(ExportKind::ofName("a.cs"), ExportKind::Txt);
    EXPECT_EQ(ExportKind::ofName("csv"), ExportKind::Csv);
    EXPECT_TRUE(ExportKind::isWorkbook("A.XLSX"));
    EXPECT_FALSE(ExportKind::isWorkbook("a.xls"));
    EXPECT_TRUE(ExportKind::csvAllowed("."));
    EXPECT_FALSE(ExportKind::csvAllowed(","));
    EXPECT_EQ(ExportKind::dialogFilter(","), MsgText(275) + "(*.txt)|*.txt|");
    EXPECT_EQ(ExportKind::dialogFilter("."),
              MsgText(274) + "(*.csv)|*.csv|" + MsgText(275) + "(*.txt)|*.txt|");
}

// The command line writes the very bytes of the window's command.
struct VerbRun {
    int exitCode;
    QString err;
};

VerbRun runExport(const QStringList& args) {
    QProcess p;
    p.start(QCoreApplication::applicationDirPath() + QStringLiteral("/../recview"),
            QStringList{QStringLiteral("export")} + args);
    p.waitForFinished(60000);
    return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1,
            QString::fromUtf8(p.readAllStandardError())};
}

// The first sheet of a workbook as stored, read by unzip.
std::string sheetXml(const QString& path) {
    QProcess p;
    p.start(QStringLiteral("unzip"),
            {QStringLiteral("-p"), path, QStringLiteral("xl/worksheets/sheet1.xml")});
    p.waitForFinished(60000);
    return p.readAllStandardOutput().toStdString();
}

TEST_F(ListFile, TheCommandLineWritesWhatTheWindowWrites) {
    ListView v(twoChannels(40));
    const QString file = v.dir.path("list.vxf");
    TrendCursors cursors(*v.view);
    ASSERT_TRUE(cursors.place(1, 30));
    ASSERT_TRUE(cursors.place(2, 12));
    v.list->setRowSet(2);
    v.grid.setColHidden(3, true);
    SkipCount() = 4;
    const QString window = v.dir.path("window.txt"), verb = v.dir.path("verb.txt");
    ASSERT_TRUE(WriteListFile(*v.list, ExportKind::Txt, window));
    const VerbRun run = runExport({file, "-o", verb, "--cursors", "30,12", "--rows", "cursors",
                                   "--hide", "2", "--skip", "4"});
    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_EQ(readAll(verb), readAll(window));
    EXPECT_EQ(QByteArray::fromStdString(readAll(verb)).count("\r\n"), 1 + 4); // rows 12, 17, 22, 27

    // A workbook from the command line holds the sheet the window's command makes.
    const QString windowBook = v.dir.path("window.xlsx"), verbBook = v.dir.path("verb.XLSX");
    QString error;
    ASSERT_TRUE(WriteListExcel(*v.list, windowBook, nullptr, error));
    EXPECT_EQ(runExport({file, "-o", verbBook, "--cursors", "30,12", "--rows", "cursors", "--hide",
                         "2", "--skip", "4"})
                  .exitCode,
              0);
    EXPECT_EQ(sheetXml(verbBook), sheetXml(windowBook));
    EXPECT_NE(sheetXml(windowBook).find("<row r=\"5\""), std::string::npos);

    const VerbRun bad = runExport({file, "-o", v.dir.path("x.csv"), "--cursors", "41,0"});
    EXPECT_EQ(bad.exitCode, 2);
    EXPECT_EQ(runExport({file, "-o", v.dir.path("x.csv"), "--rows", "some"}).exitCode, 2);
    EXPECT_EQ(runExport({file}).exitCode, 2);
    EXPECT_FALSE(QFile::exists(v.dir.path("x.csv")));
    const VerbRun unwritable = runExport({file, "-o", v.dir.path("no/such/x.csv")});
    EXPECT_EQ(unwritable.exitCode, 1);
    EXPECT_TRUE(unwritable.err.startsWith(MsgText(562))) << unwritable.err.toStdString();
    EXPECT_TRUE(unwritable.err.contains(v.dir.path("no/such/x.csv")));
}

} // namespace

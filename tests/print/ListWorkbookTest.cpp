#include "analysis/ListFixture.h"
#include "analysis/SkipCount.h"
#include "base/LanguageTable.h"
#include "print/ListWorkbookWriter.h"
#include "print/WorkbookLayout.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

using namespace listtest;

namespace {

// What python3-openpyxl reads in a workbook (tests/print/read_workbook.py).
QJsonObject readWorkbook(const QString& path, int rows = 3) {
    QProcess p;
    p.start(QStringLiteral("/usr/bin/python3"),
            {QStringLiteral(RECVIEW_SOURCE_DIR "/tests/print/read_workbook.py"), path,
             QString::number(rows)});
    p.waitForFinished(120000);
    const QByteArray out = p.readAllStandardOutput();
    EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
    return QJsonDocument::fromJson(out).object();
}

// Cell (row, col), 0-based, of a sheet read back: its text and its kind.
std::pair<QString, QString> cell(const QJsonObject& sheet, int row, int col) {
    const QJsonArray c = sheet["cells"].toArray()[row].toArray()[col].toArray();
    return {c[0].toString(), c[1].toString()};
}

struct SkipGuard {
    ~SkipGuard() { SkipCount() = 0; }
};

TEST(ListWorkbook, NumbersDatesStatusWordsAndALineChartWithMarkers) {
    fixtures::VxfDescription d = twoChannels(10);
    d.rows[1][1].value = 32766; // BURN in row 2 of channel 2
    ListView v(d);
    SeriesStyle style = v.chart().seriesStyle(1);
    style.symbol = Chart::SymbolShape::Diamond;
    v.chart().setSeriesStyle(1, style);
    v.chart().axisY().setMin(-5);
    v.chart().axisY().setMax(50);
    const QString path = v.dir.path("list.xlsx");
    QString error;
    ASSERT_TRUE(WriteListExcel(*v.list, path, nullptr, error)) << error.toStdString();
    const QJsonObject book = readWorkbook(path);
    const QJsonArray sheets = book["sheets"].toArray();
    ASSERT_EQ(sheets.size(), 1);
    const QJsonObject sheet = sheets[0].toObject();
    EXPECT_EQ(sheet["name"].toString(), QStringLiteral("list.vxf")); // the document's title
    EXPECT_EQ(sheet["rows"].toInt(), 11);
    EXPECT_EQ(sheet["columns"].toInt(), 4);
    EXPECT_EQ(cell(sheet, 0, 0).second, QString()); // date and time have no header
    EXPECT_EQ(cell(sheet, 0, 2).first, QStringLiteral("T1 [degC]"));
    EXPECT_EQ(cell(sheet, 1, 0).second, QStringLiteral("datetime"));
    EXPECT_EQ(cell(sheet, 1, 1).second, QStringLiteral("time"));
    EXPECT_EQ(cell(sheet, 1, 2), std::make_pair(QStringLiteral("0.1"), QStringLiteral("float")));
    EXPECT_EQ(cell(sheet, 2, 3), std::make_pair(QStringLiteral("BURN"), QStringLiteral("str")));
    const QJsonArray charts = book["charts"].toArray();
    ASSERT_EQ(charts.size(), 1);
    const QJsonObject chart = charts[0].toObject();
    EXPECT_TRUE(chart["line"].toBool());
    EXPECT_EQ(chart["series"].toInt(), 2);
    EXPECT_EQ(chart["markers"].toInt(), 1);
    EXPECT_EQ(chart["min"].toString(), QStringLiteral("-5"));
    EXPECT_EQ(chart["max"].toString(), QStringLiteral("50"));
    EXPECT_FALSE(QFile::exists(path + QStringLiteral(".tmp")));
    EXPECT_EQ(QDir(v.dir.path(QString())).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

TEST(ListWorkbook, ALogarithmicAxisLeavesValuesNotAboveZeroEmptyAndMakesNoChart) {
    fixtures::VxfDescription d = twoChannels(4);
    d.rows[2][0].value = -3; // -0.3 on channel 1
    d.rows[3][0].value = 0;
    ListView v(d);
    v.chart().axisY().setLogarithmic(true);
    const QString path = v.dir.path("log.xlsx");
    QString error;
    ASSERT_TRUE(WriteListExcel(*v.list, path, nullptr, error));
    const QJsonObject book = readWorkbook(path, 5);
    const QJsonObject sheet = book["sheets"].toArray()[0].toObject();
    EXPECT_EQ(cell(sheet, 1, 2).first, QStringLiteral("0.1"));
    EXPECT_EQ(cell(sheet, 3, 2).second, QString());
    EXPECT_EQ(cell(sheet, 4, 2).second, QString());
    EXPECT_EQ(cell(sheet, 4, 3).first, QStringLiteral("4")); // channel 2 stays
    EXPECT_TRUE(book["charts"].toArray().isEmpty());
}

TEST(ListWorkbook, RowsSplitOverSheetsWithNumberedUniqueNames) {
    SkipGuard skip;
    // 2 channels x 128,001 rows pass the cell limit: sheets of 20,000 rows.
    ListView v(fixtures::simpleVxf(2, 128001, 86400 * 40, 10, rowValue));
    v.chart().header().Text = QStringLiteral("Kiln: [A]/B");
    const QString path = v.dir.path("split.xlsx");
    QString error;
    ASSERT_TRUE(WriteListExcel(*v.list, path, nullptr, error));
    const QJsonArray sheets = readWorkbook(path, 2)["sheets"].toArray();
    ASSERT_EQ(sheets.size(), 7);
    EXPECT_EQ(sheets[0].toObject()["name"].toString(), QStringLiteral("1-Kiln_ _A__B"));
    EXPECT_EQ(sheets[6].toObject()["name"].toString(), QStringLiteral("7-Kiln_ _A__B"));
    for (int k = 0; k < 6; ++k) EXPECT_EQ(sheets[k].toObject()["rows"].toInt(), 20001) << k;
    EXPECT_EQ(sheets[6].toObject()["rows"].toInt(), 8001 + 1);
    // Sheet 2 starts with row 20,001 of the list: the value 2000.1 on channel 1.
    EXPECT_EQ(cell(sheets[1].toObject(), 1, 2).first, QStringLiteral("2000.1"));
}

TEST(ListWorkbook, OnlyTheFirst254GridColumnsAndTheCommentsBelowTheRows) {
    // Seven files of 43 channels with their own batch texts stand side by side: 301 channels.
    std::vector<std::pair<QString, QByteArray>> files;
    for (int f = 0; f < 7; ++f) {
        fixtures::VxfDescription d = fixtures::simpleVxf(43, 3, 86400 * 40, 10, rowValue);
        d.batchText = "LOT" + QByteArray::number(f);
        files.push_back({QStringLiteral("part%1.vxf").arg(f), fixtures::buildVxf(d)});
    }
    ListView v(files);
    ASSERT_EQ(v.grid.maxCols(), 302);
    ChartLabel& comment = v.chart().labels().add("Dropped");
    comment.AttachDataIndex = {1, 2};
    comment.Text = "checked";
    const QString path = v.dir.path("wide.xlsx");
    QString error;
    ASSERT_TRUE(WriteListExcel(*v.list, path, nullptr, error));
    const QJsonObject book = readWorkbook(path, 9);
    const QJsonObject sheet = book["sheets"].toArray()[0].toObject();
    EXPECT_EQ(sheet["columns"].toInt(), 2 + 253); // grid columns 2..254: channels 1..253
    EXPECT_EQ(book["charts"].toArray()[0].toObject()["series"].toInt(), 253);
    // Rows 1..4 are the header and the data; an empty row, then the comment block.
    EXPECT_EQ(cell(sheet, 5, 0).first, MsgText(292));
    EXPECT_EQ(cell(sheet, 6, 2).first, MsgText(293));
    EXPECT_EQ(cell(sheet, 7, 2).first, QStringLiteral("checked"));
}

TEST(WorkbookLayout, RowsPerSheetColumnsAndNames) {
    using namespace WorkbookLayout;
    EXPECT_EQ(rowCount(10, 3), 4); // rows 1, 4, 7, 10
    EXPECT_EQ(rowCount(0, 1), 0);
    EXPECT_EQ(rowsPerSheet(256000, 1), 32000);
    EXPECT_EQ(rowsPerSheet(256001, 1), 20000);
    EXPECT_EQ(rowsPerSheet(32000, 9), 20000);   // 180,000 cells
    EXPECT_EQ(rowsPerSheet(1000000, 64), 2500); // 20,000 halved three times
    EXPECT_EQ(rowsPerSheet(1000000, 500), 312); // 625 / 2 = 312.5, rounded half to even
    EXPECT_EQ(sheetCount(256001, 20000), 13);
    EXPECT_EQ(sheetCount(0, 32000), 1);
    EXPECT_EQ(sheetNames("", "a.vxf", 1), QStringList{"a.vxf"});
    const QString longName(40, QLatin1Char('n'));
    const QStringList two = sheetNames(longName, "", 2);
    EXPECT_EQ(two[0], QStringLiteral("1-") + QString(29, QLatin1Char('n')));
    EXPECT_EQ(two[1].size(), 31);
    EXPECT_NE(two[0], two[1]);
    const QStringList same = sheetNames(QString(31, QLatin1Char('x')), "", 1);
    EXPECT_EQ(same[0].size(), 31);
}

TEST(WorkbookLayout, NamesCutToTheSameTextAreMadeUnique) {
    // Sheets 10 and 1x cut alike only when the base is long: names stay distinct regardless.
    const QStringList names = WorkbookLayout::sheetNames(QString(40, QLatin1Char('z')), "", 12);
    QStringList lower;
    for (const QString& n : names) {
        EXPECT_LE(n.size(), 31);
        lower << n.toLower();
    }
    lower.removeDuplicates();
    EXPECT_EQ(lower.size(), 12);
}

} // namespace

#include "analysis/GridModel.h"
#include "analysis/ListFixture.h"
#include "analysis/SkipCount.h"
#include "print/clsSpreadPrint.h"

#include <QCoreApplication>
#include <QImage>
#include <QProcess>

using namespace listtest;

namespace {

// A plain grid of `cols` columns of `width` characters and `rows` rows.
void shape(GridModel& grid, int cols, double width, qint32 rows) {
    grid.setMaxCols(cols);
    grid.setMaxRows(rows);
    grid.setDefaultColWidth(width);
    for (int c = 0; c <= cols; ++c) grid.setColWidth(c, width);
}

constexpr double kCol10 = 10 * clsSpreadPrint::kMmPerChar; // 19 mm
constexpr double kCol20 = 20 * clsSpreadPrint::kMmPerChar; // 38 mm

TEST(SpreadPrint, ColumnPagesRepeatTheFrozenColumns) {
    GridModel grid;
    clsSpreadPrint p;
    p.Spread = &grid;
    shape(grid, 3, 10, 5); // 4 columns of 19 mm from 10 mm: one page on A4 (right edge 190)
    auto pages = p.columnPages(210);
    ASSERT_EQ(pages.size(), 1);
    EXPECT_EQ(pages[0].columns, (QVector<int>{0, 1, 2, 3}));
    EXPECT_EQ(pages[0].lefts, (QVector<double>{10, 10 + kCol10, 10 + 2 * kCol10, 10 + 3 * kCol10}));

    shape(grid, 11, 20, 5); // 38 mm columns: 0, 1 frozen; 2, 3, 4 would end at 200
    pages = p.columnPages(210);
    ASSERT_GE(pages.size(), 3);
    EXPECT_EQ(pages[0].columns, (QVector<int>{0, 1, 2, 3}));
    EXPECT_EQ(pages[1].columns.mid(0, 3), (QVector<int>{0, 1, 4}));
    EXPECT_DOUBLE_EQ(pages[1].lefts[2], 10 + 2 * kCol20 + 10); // the first new page gains 10
    EXPECT_EQ(pages[2].columns[2], pages[1].columns.last() + 1);
    EXPECT_DOUBLE_EQ(pages[2].lefts[2], 10 + 2 * kCol20);

    p.RightMargin = 300; // margins wider than the paper: still a column of its own a page
    pages = p.columnPages(210);
    EXPECT_EQ(pages.size(), 10);
    for (const auto& page : pages) EXPECT_EQ(page.columns.size(), 3);
}

TEST(SpreadPrint, RowPagesCountOnlyTheRowsOfTheStep) {
    GridModel grid;
    shape(grid, 2, 10, 100);
    clsSpreadPrint p;
    p.Spread = &grid;
    // Rows of 12 pt (5.29 mm) below a header row from 20 mm down to 277 mm: 47 a page.
    auto pages = p.rowPages(297);
    ASSERT_EQ(pages.size(), 3);
    EXPECT_EQ(pages[0].count, 47);
    EXPECT_EQ(pages[1].first, 48);
    EXPECT_EQ(pages[2].last, 100);
    EXPECT_EQ(pages[2].count, 6);
    p.RowStep = 2; // rows 1, 3, 5, ...: 50 rows
    pages = p.rowPages(297);
    ASSERT_EQ(pages.size(), 2);
    EXPECT_EQ(pages[1].first, 95);
    EXPECT_EQ(pages[1].count, 3);
    p.RowStep = 3; // 1, 4, ..., 100: 34 rows on one page
    EXPECT_EQ(p.rowPages(297).size(), 1);
    p.TopMargin = 400; // a row a page whatever the margins
    EXPECT_EQ(p.rowPages(297).size(), 34);
}

struct ToolRun {
    int code;
    QString out;
};

ToolRun tool(const QString& program, const QStringList& args) {
    QProcess p;
    p.start(program, args);
    p.waitForFinished(60000);
    return {p.exitCode(), QString::fromUtf8(p.readAllStandardOutput())};
}

int pageCount(const QString& pdf) {
    const QString info = tool(QStringLiteral("pdfinfo"), {pdf}).out;
    const qsizetype at = info.indexOf(QStringLiteral("Pages:"));
    return at < 0 ? -1 : info.mid(at + 6).section(QLatin1Char('\n'), 0, 0).trimmed().toInt();
}

TEST(SpreadPrint, AListPrintsToPdfPageForPage) {
    fixtures::VxfDescription d = twoChannels(120);
    d.rows[4][0].alarm1 = alarmByte(1);
    ListView v(d);
    const QString pdf = v.dir.path("list.pdf");
    const QString recview = QCoreApplication::applicationDirPath() + QStringLiteral("/../recview");
    const ToolRun run =
        tool(recview, {QStringLiteral("print"), v.dir.path("list.vxf"), QStringLiteral("-o"), pdf,
                       QStringLiteral("--skip"), QStringLiteral("1"), QStringLiteral("--header"),
                       QString::fromUtf8("/c印刷ヘッダー")});
    ASSERT_EQ(run.code, 0);
    // 60 rows of the step on pages of 43 rows (top margin 30): two row pages, one column page.
    EXPECT_EQ(pageCount(pdf), 2);
    const QString text =
        tool(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), pdf, QStringLiteral("-")})
            .out;
    EXPECT_TRUE(text.contains(QStringLiteral("1/2")));
    EXPECT_TRUE(text.contains(QString::fromUtf8("印刷ヘッダー")));
    const QStringList lines = text.split(QLatin1Char('\n'));
    QStringList numbers;
    for (const QString& line : lines) {
        const QString first = line.trimmed().section(QLatin1Char(' '), 0, 0);
        bool ok = false;
        first.toInt(&ok);
        if (ok && numbers.size() < 3) numbers << first;
    }
    EXPECT_EQ(numbers, (QStringList{"1", "3", "5"})); // the real sample numbers

    const ToolRun pages =
        tool(recview, {QStringLiteral("print"), v.dir.path("list.vxf"), QStringLiteral("-o"), pdf,
                       QStringLiteral("--pages"), QStringLiteral("2:2")});
    ASSERT_EQ(pages.code, 0);
    EXPECT_EQ(pageCount(pdf), 1);
    // The alarm cell of sample 5 is red on the page.
    ASSERT_EQ(
        tool(recview, {QStringLiteral("print"), v.dir.path("list.vxf"), QStringLiteral("-o"), pdf})
            .code,
        0);
    const QString png = v.dir.path("page");
    ASSERT_EQ(tool(QStringLiteral("pdftoppm"),
                   {QStringLiteral("-png"), QStringLiteral("-r"), QStringLiteral("100"),
                    QStringLiteral("-f"), QStringLiteral("1"), QStringLiteral("-l"),
                    QStringLiteral("1"), QStringLiteral("-singlefile"), pdf, png})
                  .code,
              0);
    const QImage image(png + QStringLiteral(".png"));
    ASSERT_FALSE(image.isNull());
    int red = 0, dark = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            if (c.red() > 180 && c.green() < 90 && c.blue() < 90) ++red;
            if (c.red() < 60 && c.green() < 60 && c.blue() < 60) ++dark;
        }
    EXPECT_GT(red, 5);
    EXPECT_GT(dark, 500); // the frame and the texts
    // A PDF that cannot be written: message 562 and a non-zero status.
    EXPECT_NE(tool(recview, {QStringLiteral("print"), v.dir.path("list.vxf"), QStringLiteral("-o"),
                             v.dir.path("no/such/x.pdf")})
                  .code,
              0);
}

} // namespace

#include "trend/PlotValue.h"
#include "TrendFixture.h"
#include "base/NumberText.h"
#include "trend/LineSeriesSource.h"
#include "trend/StoreColumnReader.h"

#include <gtest/gtest.h>

using namespace trendtest;

namespace {

// Every point of a line read in bulk, as the chart reads its series.
std::vector<double> series(const clsStorage& storage, const TrendLine& l, qint32 points,
                           bool percent) {
    LineSeriesSource source(storage, l, points, percent);
    std::vector<double> out(size_t(source.count()));
    source.values(0, source.count(), out.data());
    return out;
}

} // namespace

// Status words and blank cells are gaps; numbers carry the channel's decimals.
TEST(PlotValue, CellsBecomeNumbersOrHoles) {
    const struct {
        qint16 raw;
        double value;
    } cases[] = {{1234, 12.34}, {-5, -0.05}, {0, 0},      {kBurn, H},    {kOver, H},
                 {kNoData, H},  {kBlank, H}, {-32768, H}, {32760, 327.6}};
    std::vector<qint16> raw;
    for (const auto& c : cases) raw.push_back(c.raw);
    ViewState& v = makeView(1, {raw}, 2);
    trendState(1).Lines[1] = line(1);
    for (size_t i = 0; i < std::size(cases); ++i)
        EXPECT_EQ(PlotValue(1, qint32(i) + 1, 1), cases[i].value) << "raw " << cases[i].raw;
    // A line without a source or not enabled has no value.
    TrendLine off = line(1);
    off.enabled = 0;
    EXPECT_EQ(PlotValue(v.Storage, off, 1), H);
    EXPECT_EQ(PlotValue(v.Storage, line(0), 1), H);
    EXPECT_EQ(PlotValue(v.Storage, line(1), 99), H) << "row outside the store";
}

// The second operand: a column in error spoils the point; a constant that is not a number is
// ignored.
TEST(PlotValue, SecondOperand) {
    const ViewState& v = makeView(1, {{100, 200, 300}, {10, kBurn, 30}}, 0);
    TrendLine sum = line(1);
    sum.secondColumn = 2;
    EXPECT_EQ(PlotValue(v.Storage, sum, 1), 110);
    EXPECT_EQ(PlotValue(v.Storage, sum, 2), H) << "second operand BURN";
    sum.addFlag = false;
    EXPECT_EQ(PlotValue(v.Storage, sum, 3), 270);

    TrendLine constant = line(1);
    constant.constant = QStringLiteral("abc");
    EXPECT_EQ(PlotValue(v.Storage, constant, 1), 100);
    constant.constant = QStringLiteral(" 2.5 ");
    constant.addFlag = false;
    EXPECT_EQ(PlotValue(v.Storage, constant, 2), 197.5);
}

// The bulk series gives exactly PlotValue (and ScalePercent) at every point, whatever the cell
// format, for text cells, overlapping file segments and rows no file covered.
TEST(PlotValue, BulkSeriesEqualsCellTexts) {
    ViewState& v = makeView(1, {}, 0);
    clsStorage& s = v.Storage;
    s.setMaxCols(8);
    s.setMaxRows(40);
    writeRaw(s, 1, 1, {1, -2, kBurn, 4, 5, 6, 7, 8, 9, 10}, CellFormat::plain(1));
    writeRaw(s, 1, 6, {600, 700, kNoData}, CellFormat::plain(3)); // overlaps rows 6..8
    writeRaw(s, 1, 20, {1, 2, 3}, CellFormat::plain(7));          // odd decimals: text rule
    writeRaw(s, 2, 1, {0x0021, 0x0035, qint16(0x3FE0), qint16(0x7F60), 0x0100},
             CellFormat::float2(1));
    CellFormat tm{CellFormat::Kind::TmAnalog, 1, false, -50.0f, 150.0f};
    writeRaw(s, 3, 1, {-25000, 0, 25000, 32767, -32768}, tm);
    for (int r = 1; r <= 6; ++r)
        s.SetText(8, r, QStringList{"1.5", "OVER", "", "-3", "1E+308", "2E+3"}[r - 1]);

    // The later file wins where two overlap; rows no file covered are gaps.
    const std::vector<double> first = series(s, line(1), 40, false);
    EXPECT_EQ((std::vector<double>{first[5], first[7], first[8], first[12]}),
              (std::vector<double>{0.6, H, 0.9, H}));
    EXPECT_EQ(series(s, line(4), 40, false)[5], 2000);

    for (int ch = 1; ch <= 4; ++ch) {
        for (bool percent : {false, true}) {
            TrendLine l = line(ch, QStringLiteral("-10"), QStringLiteral("30"));
            if (ch == 2) l.secondColumn = 1;
            if (ch == 3) l.constant = QStringLiteral("0.25");
            const std::vector<double> bulk = series(s, l, 40, percent);
            for (int p = 1; p <= 40; ++p) {
                double expected = PlotValue(s, l, p);
                if (percent)
                    expected = ScalePercent(NumberText::doubleText(expected), l).toDouble();
                EXPECT_EQ(bulk[size_t(p - 1)], expected)
                    << "channel " << ch << " point " << p << " percent " << percent;
            }
        }
    }
}

// ScalePercent: the text of the value's percent, with its pass-through and hole rules.
TEST(PlotValue, ScalePercentRules) {
    const struct {
        const char *value, *low, *high, *expected;
    } cases[] = {
        {"50", "0", "200", "25"},
        {"1", "0", "3", "33.3333333333333"}, // through the 15-digit text
        {"5", "5", "5", "0"},                // empty scale, value at its low
        {"6", "5", "5", "1E+308"},           // empty scale, any other value
        {"12.30", "0", "1E+308", "12.30"},   // no high: unchanged
        {"1E+308", "0", "100", "1E+308"},    // the hole stays the hole
        {"0", "x", "100", "0"},              // zero with no low: unchanged
        {"150", "100", "0", "-50"},          // a falling scale
        {"1E+300", "0", "1E-300", "1E+300"}, // overflow: unchanged
        {"OVER", "0", "100", "OVER"},
    };
    for (const auto& c : cases) {
        const TrendLine l = line(1, QLatin1String(c.low), QLatin1String(c.high));
        EXPECT_EQ(ScalePercent(QLatin1String(c.value), l), QLatin1String(c.expected))
            << c.value << " in " << c.low << ".." << c.high;
    }
}

// ScaleStep: a percent span in engineering units at the channel's decimals, halves away from 0.
TEST(PlotValue, ScaleStepRoundsToDecimals) {
    const struct {
        const char *low, *high;
        double percent;
        int decimals;
        double expected;
    } cases[] = {
        {"0", "1", 33.333, 2, 0.33}, {"0", "10", 5, 0, 1},    {"0", "10", 15, 0, 2},
        {"-5", "5", 2.5, 4, 0.25},   {"0", "1", 0.004, 2, 0}, {"0", "100", H, 1, H},
        {"abc", "100", 10, 1, H},
    };
    for (const auto& c : cases) {
        const TrendLine l = line(1, QLatin1String(c.low), QLatin1String(c.high), c.decimals);
        EXPECT_EQ(ScaleStep(c.percent, l), c.expected)
            << c.low << ".." << c.high << " " << c.percent;
    }
}

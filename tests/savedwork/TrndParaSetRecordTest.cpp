#include "RecordTestSupport.h"

#include <limits>
#include <tuple>

using namespace RecordBytesAt;

namespace {

constexpr qint64 kStart = 23 * 86400LL * 365 + 12345; // some time in 2022/2023
constexpr int kLines = 373;
// The per-line arrays follow the fixed part; the scale low array and the tail as anchors.
constexpr int kEnabled = 78;
constexpr int kLow = kEnabled + (4 + 2 + 2 + 2 + 8) * kLines;
constexpr int kTail = kEnabled + 36 * kLines;

void fillView(int view) {
    ViewState& v = views(view);
    v.PointCount = std::numeric_limits<qint32>::max();
    v.ChannelCountOrig = -32768;
    v.SampleInterval = std::numeric_limits<qint32>::min();
    v.ViewStart = kStart;
    v.ViewStartMsec = 999;
    v.ViewShownPoints = 300;
    TrendViewState& t = trendState(view);
    t.CursorPoint = {3, 4};
    t.BarPosition = 14;
    t.TimeAxisChoice = {15, 16};
    t.ViewTail = {17, 18, 19, -20};
    for (int i = 0; i < kLines; ++i) {
        TrendLine& line = t.Lines[size_t(i)];
        line.sourceColumn = qint16(i);
        line.enabled = i % 2;
        line.addFlag = i % 3 != 0;
        line.secondColumn = qint16(372 - i);
        line.constant = QString::number(i) + QStringLiteral(".5");
        line.scaleLow = QString::number(-i);
        line.scaleHigh = QStringLiteral("1.7976931348623E+308");
        line.decimals = qint16(i % 5);
    }
}

} // namespace

using TrndParaSetRecordTest = RecordDirs;

TEST_F(TrndParaSetRecordTest, AnchorsStandAtTheirOffsetsAndTheViewRoundTrips) {
    fillView(kView);
    ASSERT_TRUE(WriteTrndParaSet(kView));
    const QByteArray b = readAll(AppPaths(1) + RecordNames::TrndParaSet);
    ASSERT_EQ(b.size(), 36 * 373 + 86);
    EXPECT_EQ(le(b, 0, 4), std::numeric_limits<qint32>::max());
    EXPECT_DOUBLE_EQ(f64(b, 34), 36526 + 23 * 365 + 12345 / 86400.0); // days since 1899-12-30
    EXPECT_EQ(le(b, kEnabled, 4), 0);
    EXPECT_EQ(le(b, kEnabled + 4, 4), 1);
    EXPECT_DOUBLE_EQ(f64(b, kLow + 8 * 200), -200);
    EXPECT_EQ(le(b, kTail + 6, 2), -20);

    const TrendViewState before = trendState(kView);
    carryOver(RecordNames::TrndParaSet);
    views(kView).clearRecording();
    trendState(kView).reset();
    ASSERT_TRUE(ReadTrndParaSet(kView));
    const ViewState& v = views(kView);
    EXPECT_EQ(std::tie(v.PointCount, v.ChannelCountOrig, v.SampleInterval, v.ViewStart,
                       v.ViewStartMsec, v.ViewShownPoints),
              std::make_tuple(std::numeric_limits<qint32>::max(), -32768,
                              std::numeric_limits<qint32>::min(), kStart, 999, 300));
    const TrendViewState& t = trendState(kView);
    EXPECT_EQ(
        std::tie(t.CursorPoint, t.BarPosition, t.TimeAxisChoice, t.ViewTail),
        std::tie(before.CursorPoint, before.BarPosition, before.TimeAxisChoice, before.ViewTail));
    EXPECT_EQ(t.Lines, before.Lines);
}

TEST_F(TrndParaSetRecordTest, AnEmptyScaleIsWrittenAsTheHoleAndStoredBack) {
    TrendLine& line = trendState(kView).Lines[4];
    line.scaleLow = QString();
    line.scaleHigh = QStringLiteral("  ");
    ASSERT_TRUE(WriteTrndParaSet(kView));
    EXPECT_EQ(line.scaleLow, QStringLiteral("1E+308"));
    EXPECT_EQ(line.scaleHigh, QStringLiteral("1E+308"));
    const QByteArray b = readAll(AppPaths(1) + RecordNames::TrndParaSet);
    EXPECT_EQ(f64(b, kLow + 8 * 4), 1E+308);
    EXPECT_EQ(f64(b, kLow + 8 * (kLines + 4)), 1E+308);

    carryOver(RecordNames::TrndParaSet);
    trendState(kView).reset();
    ASSERT_TRUE(ReadTrndParaSet(kView));
    EXPECT_EQ(trendState(kView).Lines[4].scaleLow, QStringLiteral("1E+308"));
    EXPECT_EQ(trendState(kView).Lines[4].scaleLow.toDouble(), 1E+308);
}

TEST_F(TrndParaSetRecordTest, AnOldLengthFileReadsTheLaterFieldsAsZero) {
    fillView(kView);
    QByteArray b(32 * 129 + 86, '\0');
    putLe(b, 0, 4, 1234);
    putLe(b, kEnabled + 4 * 3, 4, 1);
    writeAll(AppPaths(2) + RecordNames::TrndParaSet, b);
    ASSERT_TRUE(ReadTrndParaSet(kView));
    const TrendViewState& t = trendState(kView);
    EXPECT_EQ(views(kView).PointCount, 1234);
    EXPECT_EQ(t.Lines[3].enabled, 1);
    EXPECT_EQ(t.Lines[372].decimals, 0); // past the end of the file
    EXPECT_EQ(t.Lines[372].scaleHigh, QStringLiteral("0"));
    EXPECT_EQ(t.ViewTail, (std::array<qint16, 4>{}));
}

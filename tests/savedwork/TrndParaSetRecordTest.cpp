#include "RecordTestSupport.h"

#include "app/AppPaths.h"
#include "app/ViewSlots.h"
#include "recording/ViewTables.h"
#include "savedwork/OleDate.h"
#include "savedwork/RecordNames.h"
#include "savedwork/SavedWorkRecords.h"
#include "trend/TrendViewState.h"

#include <limits>

using namespace RecordBytesAt;

namespace {

constexpr qint64 kStart = 23 * 86400LL * 365 + 12345; // some time in 2022/2023
constexpr int kLines = 373;
// Offsets of the per-line arrays and the tail in the new layout.
constexpr int kEnabled = 78;
constexpr int kSource = kEnabled + 4 * kLines;
constexpr int kAdd = kSource + 2 * kLines;
constexpr int kSecond = kAdd + 2 * kLines;
constexpr int kConstant = kSecond + 2 * kLines;
constexpr int kLow = kConstant + 8 * kLines;
constexpr int kHigh = kLow + 8 * kLines;
constexpr int kDecimals = kHigh + 8 * kLines;
constexpr int kTail = kDecimals + 2 * kLines;

void fillView(int view) {
    ViewTables& v = views(view);
    v.PointCount = std::numeric_limits<qint32>::max();
    v.ChannelCount = 372;
    v.ChannelCountOrig = -32768;
    v.SampleInterval = std::numeric_limits<qint32>::min();
    v.ViewStart = kStart;
    v.ViewStartMsec = 999;
    v.ViewShownPoints = 300;
    TrendViewState& t = trendState(view);
    t.MarkerCalcValue = {-1, 2};
    t.CursorPoint = {3, 4};
    t.MarkerAutoCalc = 5;
    t.CalcLineChannel = {6, 7};
    t.TimeLabelInterval = {8, 9};
    t.BarPlacement = 10;
    t.ChartMouseFlag = 11;
    t.AxisLabelsOn = 12;
    t.MarkerViewFlag = 13;
    t.BarPosition = 14;
    t.TimeAxisChoice = {15, 16};
    t.ViewTail = {17, 18, 19, -20};
    setViewInUse(view - 1, true);
}

void fillLines(TrendViewState& t) {
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

struct FixedField {
    int offset;
    int width;
    qint64 value;
};

} // namespace

using TrndParaSetRecordTest = RecordDirs;

TEST_F(TrndParaSetRecordTest, FixedFieldsStandAtTheirOffsets) {
    fillView(kView);
    ASSERT_TRUE(WriteTrndParaSet(kView));
    const QByteArray b = readAll(AppPaths(1) + RecordNames::TrndParaSet);
    ASSERT_EQ(b.size(), 13514);
    const FixedField fields[] = {{0, 4, std::numeric_limits<qint32>::max()},
                                 {4, 4, -1},
                                 {8, 4, 2},
                                 {12, 4, 3},
                                 {16, 4, 4},
                                 {20, 2, 5},
                                 {22, 2, 6},
                                 {24, 2, 7},
                                 {26, 2, 372},
                                 {28, 2, -32768},
                                 {30, 4, std::numeric_limits<qint32>::min()},
                                 {42, 2, 999},
                                 {44, 4, 8},
                                 {48, 4, 9},
                                 {52, 2, -1},
                                 {54, 2, 10},
                                 {56, 2, 11},
                                 {58, 2, 12},
                                 {60, 2, 13},
                                 {62, 4, 14},
                                 {66, 4, 300},
                                 {70, 4, 15},
                                 {74, 4, 16},
                                 {kTail, 2, 17},
                                 {kTail + 2, 2, 18},
                                 {kTail + 4, 2, 19},
                                 {kTail + 6, 2, -20}};
    for (const FixedField& f : fields)
        EXPECT_EQ(le(b, f.offset, f.width), f.value) << "offset " << f.offset;
    EXPECT_DOUBLE_EQ(f64(b, 34), OleDate::fromSeconds2000(kStart));
}

TEST_F(TrndParaSetRecordTest, LineArraysFollowTheFixedPart) {
    fillLines(trendState(kView));
    ASSERT_TRUE(WriteTrndParaSet(kView));
    const QByteArray b = readAll(AppPaths(1) + RecordNames::TrndParaSet);
    for (const int i : {0, 1, 128, 200, 372}) {
        SCOPED_TRACE(i);
        EXPECT_EQ(le(b, kEnabled + 4 * i, 4), i % 2);
        EXPECT_EQ(le(b, kSource + 2 * i, 2), i);
        EXPECT_EQ(le(b, kAdd + 2 * i, 2), i % 3 != 0 ? -1 : 0);
        EXPECT_EQ(le(b, kSecond + 2 * i, 2), 372 - i);
        EXPECT_DOUBLE_EQ(f64(b, kConstant + 8 * i), i + 0.5);
        EXPECT_DOUBLE_EQ(f64(b, kLow + 8 * i), -i);
        EXPECT_DOUBLE_EQ(f64(b, kHigh + 8 * i), 1.7976931348623E+308);
        EXPECT_EQ(le(b, kDecimals + 2 * i, 2), i % 5);
    }
}

TEST_F(TrndParaSetRecordTest, RoundTripRestoresTheView) {
    fillView(kView);
    fillLines(trendState(kView));
    ASSERT_TRUE(WriteTrndParaSet(kView));
    const TrendViewState before = trendState(kView);
    carryOver(RecordNames::TrndParaSet);
    views(kView).clearRecording();
    trendState(kView).reset();
    ASSERT_TRUE(ReadTrndParaSet(kView));

    const ViewTables& v = views(kView);
    EXPECT_EQ(v.PointCount, std::numeric_limits<qint32>::max());
    EXPECT_EQ(v.ChannelCountOrig, -32768);
    EXPECT_EQ(v.SampleInterval, std::numeric_limits<qint32>::min());
    EXPECT_EQ(v.ViewStart, kStart);
    EXPECT_EQ(v.ViewStartMsec, 999);
    EXPECT_EQ(v.ViewShownPoints, 300);
    const TrendViewState& t = trendState(kView);
    EXPECT_EQ(t.CursorPoint, before.CursorPoint);
    EXPECT_EQ(t.TimeAxisChoice, before.TimeAxisChoice);
    EXPECT_EQ(t.ViewTail, before.ViewTail);
    EXPECT_EQ(t.BarPosition, 14);
    for (const int i : {0, 5, 372}) {
        const TrendLine& a = before.Lines[size_t(i)];
        const TrendLine& b = t.Lines[size_t(i)];
        EXPECT_EQ(b.sourceColumn, a.sourceColumn);
        EXPECT_EQ(b.enabled, a.enabled);
        EXPECT_EQ(b.addFlag, a.addFlag);
        EXPECT_EQ(b.secondColumn, a.secondColumn);
        EXPECT_EQ(b.constant, a.constant);
        EXPECT_EQ(b.scaleLow, a.scaleLow);
        EXPECT_EQ(b.scaleHigh, a.scaleHigh);
        EXPECT_EQ(b.decimals, a.decimals);
    }
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
    EXPECT_EQ(f64(b, kHigh + 8 * 4), 1E+308);

    carryOver(RecordNames::TrndParaSet);
    trendState(kView).reset();
    ASSERT_TRUE(ReadTrndParaSet(kView));
    EXPECT_EQ(trendState(kView).Lines[4].scaleLow, QStringLiteral("1E+308"));
    EXPECT_EQ(trendState(kView).Lines[4].scaleLow.toDouble(), 1E+308);
}

TEST_F(TrndParaSetRecordTest, AnOldLengthFileReadsTheLaterFieldsAsZero) {
    fillView(kView);
    fillLines(trendState(kView));
    QByteArray b(4214, '\0');
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

#include "RecordTestSupport.h"

#include <limits>
#include <tuple>

using namespace RecordBytesAt;

namespace {

void fillZoom(TrendViewState& t) {
    t.ZoomLevel = 100;
    t.BarPosition = std::numeric_limits<qint32>::max();
    t.CursorAOn = true;
    t.ScalePercentMode = true;
    for (size_t level = 0; level < t.ZoomX.size(); ++level) {
        t.ZoomX[level] = {qint32(-level), qint32(level * 1000), std::numeric_limits<qint32>::min()};
        t.ZoomY[level] = {0.0, -1.7976931348623157e308, 4.9e-324 * double(level)};
    }
    t.ScrollBars[0] = {0, 32767, 123, 1, 100};
    t.ScrollBars[3] = {-32768, 0, -5, 2, 20};
    t.AxisChannel = {372, 2};
    t.ScaleType = ScaleType::MultiScale;
    t.ScrollScale = 32767;
}

} // namespace

using ZoomAndAlarmRecordTest = RecordDirs;

// Written by the next view and read by this one: a record of another view is taken as it is.
TEST_F(ZoomAndAlarmRecordTest, ZoomStackStandsInRowsOfLevelsAndRoundTripsAcrossViews) {
    fillZoom(trendState(kView + 1));
    const TrendViewState before = trendState(kView + 1);
    ASSERT_TRUE(WriteSaveParaData(kView + 1));
    trendState(kView + 1).reset();
    const QByteArray b = readAll(AppPaths(1) + RecordNames::SaveParaData);
    ASSERT_EQ(b.size(), 3732);
    EXPECT_EQ(le(b, 2, 2), kView + 1);
    EXPECT_EQ(le(b, 16 + 4 * 7, 4), -7);                        // ZoomX slot 0, level 7
    EXPECT_EQ(le(b, 16 + 4 * (101 + 7), 4), 7000);              // ZoomX slot 1, level 7
    EXPECT_EQ(f64(b, 1228 + 8 * 101), -1.7976931348623157e308); // ZoomY slot 1, level 0

    carryOver(RecordNames::SaveParaData);
    ASSERT_TRUE(ReadSaveParaData(kView));
    const TrendViewState& t = trendState(kView);
    EXPECT_EQ(std::tie(t.ZoomLevel, t.BarPosition, t.CursorAOn, t.CursorBOn, t.ScalePercentMode,
                       t.AxisChannel, t.ScaleType, t.ScrollScale),
              std::tie(before.ZoomLevel, before.BarPosition, before.CursorAOn, before.CursorBOn,
                       before.ScalePercentMode, before.AxisChannel, before.ScaleType,
                       before.ScrollScale));
    EXPECT_EQ(t.ZoomX, before.ZoomX);
    EXPECT_EQ(t.ZoomY, before.ZoomY);
    EXPECT_EQ(t.ScrollBars, before.ScrollBars);
}

TEST_F(ZoomAndAlarmRecordTest, AlarmStylesAreThreeWholeArraysOfSlotBlocks) {
    TrendViewState& t = trendState(kView);
    t.AlarmSymbol[0][0] = -32768;
    t.AlarmSymbol[5][371] = 32767;
    t.AlarmColor[2][10] = 0xFFFFFFFFu;
    t.AlarmSize[4][200] = 9;
    ASSERT_TRUE(WriteAlmStyle(kView));
    const QByteArray b = readAll(AppPaths(1) + RecordNames::AlmStyle);
    ASSERT_EQ(b.size(), 17856);
    EXPECT_EQ(le(b, 0, 2), -32768);
    EXPECT_EQ(le(b, 2 * (5 * 372 + 371), 2), 32767);
    EXPECT_EQ(le(b, 2 * (5 * 372 + 0), 2), 10); // default symbol of slot 6
    EXPECT_EQ(quint32(le(b, 4464 + 4 * (2 * 372 + 10), 4)), 0xFFFFFFFFu);
    EXPECT_EQ(le(b, 4464 + 4 * (2 * 372 + 11), 4), 0x0000FF); // default red
    EXPECT_EQ(le(b, 13392 + 2 * (4 * 372 + 200), 2), 9);
    EXPECT_EQ(le(b, 13392, 2), 4); // default size

    const TrendViewState before = t;
    carryOver(RecordNames::AlmStyle);
    t.reset();
    ASSERT_TRUE(ReadAlmStyle(kView));
    EXPECT_EQ(t.AlarmSymbol, before.AlarmSymbol);
    EXPECT_EQ(t.AlarmColor, before.AlarmColor);
    EXPECT_EQ(t.AlarmSize, before.AlarmSize);
}

TEST_F(ZoomAndAlarmRecordTest, MissingRecordsLeaveTheViewAsItWas) {
    fillZoom(trendState(kView));
    trendState(kView).AlarmSize[0][0] = 7;
    trendState(kView).Lines[1].scaleLow = QStringLiteral("-5");
    views(kView).Channels.setTag(1, QStringLiteral("kept"));
    const TrendViewState before = trendState(kView);
    EXPECT_FALSE(ReadSaveParaData(kView));
    EXPECT_FALSE(ReadAlmStyle(kView));
    EXPECT_FALSE(ReadTrndParaSet(kView));
    EXPECT_FALSE(ReadFileHeader(kView));
    EXPECT_EQ(trendState(kView).ZoomX, before.ZoomX);
    EXPECT_EQ(trendState(kView).AlarmSize, before.AlarmSize);
    EXPECT_EQ(trendState(kView).Lines, before.Lines);
    EXPECT_EQ(views(kView).Channels.ChTag[1], QStringLiteral("kept"));
}

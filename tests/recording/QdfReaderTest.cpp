#include "LoadHelpers.h"

#include "base/TimeBase.h"
#include "recording/ColorMaps.h"
#include "support/QdfWriter.h"
#include "support/RecordingFixture.h"

#include <gtest/gtest.h>

namespace {

using namespace fixtures;

const quint32 kStart = quint32(TimeBase::toSeconds({2024, 5, 6, 10, 0, 0}));

// Group 1: channels 1 and 3, level 1. Group 2: nothing. Group 3: levels 1 and 2 without
// channels. Group 4: channels 37 and 48, level 4. Group 5: channel 60, no levels.
QdfDescription mixedGroups() {
    QdfDescription d;
    d.startTime = kStart;
    d.intervalMs = 2000;
    d.groupMask[0] = 0x1005;
    d.groupMask[2] = 0x3000;
    d.groupMask[3] = 0x8801;
    d.groupMask[4] = 0x0800;
    d.decimals[0] = 1;
    d.decimals[36] = 2;
    d.decimals[59] = 3;
    d.values = {{123, -5, 4567, 32767, 1}, {124, 6, -1, -32767, 2}, {125, 7, 0, 9, 3}};
    // Words in file order: group 1 level 1, group 3 levels 1 and 2, group 4 level 4.
    d.alarmWords = {{0x0001, 0xFFFF, 0xFFFF, 0x0800}, {0x0004, 0, 0, 0x0001}, {0, 0, 0, 0}};
    return d;
}

using QdfReader = RecordingTest;

TEST_F(QdfReader, GroupsGiveChannelsValuesAndAlarmPlanes) {
    ASSERT_TRUE(loadFiles({dir.write("a.qdf", buildQdf(mixedGroups()))}).ok());
    EXPECT_EQ(view.ChannelCount, 5);
    EXPECT_EQ(view.PointCount, 3);
    EXPECT_EQ(view.SampleInterval, 2000);
    EXPECT_EQ(view.ViewStart, kStart);
    const char* tags[] = {"CH1", "CH3", "CH37", "CH48", "CH60"};
    for (int c = 1; c <= 5; ++c) {
        EXPECT_EQ(view.Channels.ChTag[c], QLatin1String(tags[c - 1]));
        EXPECT_EQ(view.Channels.ChColor[c], ColorMapOfVXSeries().GetColor(c % 12));
    }
    // Values behind the level words of the channel-less group 3 are found.
    const struct {
        int col, row;
        const char* text;
    } cells[] = {
        {2, 1, "12.3"},  {4, 1, "-5"},    {6, 1, "45.67"}, {8, 1, "OVER"}, {10, 1, "0.001"},
        {8, 2, "UNDER"}, {6, 2, "-0.01"}, {4, 3, "7"},     {1, 1, "9000"}, {3, 1, "0000"},
        {5, 1, "0000"},  {7, 1, "0009"},  {9, 1, "0000"},  {1, 2, "0000"}, {3, 2, "9000"},
        {5, 2, "0009"},  {7, 2, "0000"},
    };
    for (const auto& c : cells)
        EXPECT_EQ(cellText(c.col, c.row), QLatin1String(c.text)) << c.col << "," << c.row;
}

TEST_F(QdfReader, APartialLastRowIsNotRead) {
    QdfDescription d = mixedGroups();
    d.sparePayload = 4; // the samples do not reach the row's end
    const QByteArray whole = buildQdf(d);
    const qint64 rowSize = 8 + 2 * (5 + 4) + 4;
    const struct {
        qint64 chop;
        int rows;
    } cases[] = {{0, 3},       {1, 3},           {2, 2},          {rowSize - 1, 2},
                 {rowSize, 2}, {rowSize + 1, 2}, {rowSize + 2, 1}};
    for (const auto& c : cases) {
        ASSERT_TRUE(loadFiles({dir.write("p.qdf", whole.left(whole.size() - c.chop))}).ok())
            << c.chop;
        EXPECT_EQ(view.PointCount, c.rows) << c.chop;
        EXPECT_EQ(cellText(2, 1), QLatin1String("12.3")) << c.chop;
    }
}

} // namespace

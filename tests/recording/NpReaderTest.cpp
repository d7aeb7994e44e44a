#include "LoadHelpers.h"

#include "base/TimeBase.h"
#include "recording/ColorMaps.h"
#include "support/NpWriter.h"
#include "support/RecordingFixture.h"

#include <gtest/gtest.h>

namespace {

using namespace fixtures;

const quint32 kStartUnix =
    quint32(TimeBase::toSeconds({2024, 5, 6, 10, 0, 0}) + TimeBase::kSecondsFrom1970To2000);

NpDescription twoChannels() {
    NpDescription d;
    d.startUnix = kStartUnix;
    d.channels = {{"Flow", "m3/h", 1, 2}, {"", "kPa", 7, 0}};
    d.rows = {{{100, 0, 0x05}, {-32767, 0, 0x08}}, {{32760, 0, 0}, {-5, 0, 0xF0}}};
    return d;
}

using NpReader = RecordingTest;

TEST_F(NpReader, SixteenBitFileFillsChannelsAndCells) {
    NpDescription d = twoChannels();
    d.startMsecField = 0x200; // the four bytes at 37 read as one number
    ASSERT_TRUE(loadFiles({dir.write("a.n5f", buildNp(d))}).ok());
    EXPECT_EQ(view.ViewStart, TimeBase::toSeconds({2024, 5, 6, 10, 0, 0}));
    EXPECT_EQ(view.ViewStartMsec, 512);
    EXPECT_EQ(view.Channels.ChTag[2], QLatin1String("No7"));
    EXPECT_EQ(view.Channels.ChColor[1], ColorMapOfNPSeries().GetColor(2));
    const struct {
        int col, row;
        const char* text;
    } cells[] = {{2, 1, "100"},  {4, 1, "UNDER"}, {2, 2, "32760"}, {4, 2, "-5"},
                 {1, 1, "9090"}, {3, 1, "0009"},  {1, 2, "0000"}};
    for (const auto& c : cells)
        EXPECT_EQ(cellText(c.col, c.row), QLatin1String(c.text)) << c.col << "," << c.row;
}

TEST_F(NpReader, FloatFileUsesTheFloatRule) {
    NpDescription d = twoChannels();
    d.dataKind = 2;
    const struct {
        float value;
        const char *text, *negated;
    } cases[] = {{12.5f, "12.5", "-12.5"},
                 {100000.0f, "OVER", "UNDER"},
                 {200000.0f, "BURN", "N.DATA"},
                 {0.1f, "0.1", "-0.1"},
                 {99999.5f, "99999.5", "-99999.5"}};
    d.rows.clear();
    for (const auto& c : cases) d.rows.append({{0, c.value, 0x01}, {0, -c.value, 0x02}});
    ASSERT_TRUE(loadFiles({dir.write("f.n5f", buildNp(d))}).ok());
    for (int r = 1; r <= int(std::size(cases)); ++r) {
        EXPECT_EQ(cellText(2, r), QLatin1String(cases[r - 1].text)) << r;
        EXPECT_EQ(cellText(4, r), QLatin1String(cases[r - 1].negated)) << r;
    }
    EXPECT_EQ(cellText(1, 1), QLatin1String("9000"));
    EXPECT_EQ(cellText(3, 1), QLatin1String("0900"));
}

TEST_F(NpReader, VersionDecidesDataStartAndCounts) {
    const struct {
        quint16 version;
        qint64 dataStart;
    } cases[] = {{1, 6000}, {2, 3000}, {3, 2640}, {4, 3000}, {0, 3000}};
    for (const auto& c : cases) {
        NpDescription d = twoChannels();
        d.version = c.version;
        d.dataOffsetRel = 400;
        d.dataOffsetAlt = 3000;
        ASSERT_EQ(d.dataStart(), c.dataStart);
        if (c.version < 3) {
            d.rowCount = 999; // old heads: counts come from the row size and the file length
            d.channelCount = 40;
        }
        ASSERT_TRUE(loadFiles({dir.write("v.n5f", buildNp(d))}).ok()) << c.version;
        EXPECT_EQ(view.PointCount, 2) << c.version;
        EXPECT_EQ(view.ChannelCount, 2) << c.version;
        EXPECT_EQ(cellText(4, 2), QLatin1String("-5")) << c.version;
    }
}

TEST_F(NpReader, P4fIsReadInGsModeOnly) {
    NpDescription d = twoChannels();
    d.magic = QByteArray("PB4\0", 4);
    d.gsStride = true;
    const QString path = dir.write("g.p4f", buildNp(d));
    ASSERT_TRUE(loadFiles({path}, true).ok());
    EXPECT_EQ(view.Channels.ChColor[1], ColorMapOfGSSeries().GetColor(2));
    EXPECT_EQ(cellText(2, 1), QLatin1String("100"));
    EXPECT_EQ(loadFiles({path}, false).status, LoadOutcome::Status::NotHandled);
}

} // namespace

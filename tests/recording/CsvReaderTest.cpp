#include "LoadHelpers.h"

#include "base/TimeBase.h"
#include "support/CsvWriter.h"
#include "support/RecordingFixture.h"

#include <gtest/gtest.h>

namespace {

using namespace fixtures;

const qint64 kStart = TimeBase::toSeconds({2024, 5, 6, 10, 0, 0});

QString rowDotChannel(int r, int c) {
    return QStringLiteral("%1.%2").arg(r).arg(c);
}

class CsvReader : public ::testing::Test {
protected:
    LoadOutcome load(const QStringList& lines, bool cp932 = false) {
        return loadCsv(dir.write("data.csv", buildCsv(lines, cp932)));
    }
    FixtureDir dir;
    const ViewState& view = views(1);
};

TEST_F(CsvReader, DateAndTimeInOneOrTwoFieldsWithMilliseconds) {
    const struct {
        QStringList lines;
        int msec, interval;
    } cases[] = {
        {{"Date,A [V]", "2024/05/06 10:00:00.500,1", "2024/05/06 10:00:00.750,2"}, 500, 250},
        {{",Time,A [V]", "2024/05/06,10:00:00,1", "2024/05/06,10:01:00,2"}, 0, 60000},
        {{",Time,A [V]", "2024-05-06,10:00,1", "2024-05-06,11:00,2"}, 0, 3600000},
        {{"Date,A [V]", "24/05/06 10:00:00,1"}, 0, 0},
        // A file ending after line 2: one row.
        {{"Date,A [V]", "2024/05/06 10:00:00,1", "", ""}, 0, 0},
    };
    for (const auto& c : cases) {
        ASSERT_TRUE(load(c.lines).ok()) << c.lines[1].toStdString();
        EXPECT_EQ(view.Channels.ChTag[1], QLatin1String("A"));
        EXPECT_EQ(view.ViewStart, kStart);
        EXPECT_EQ(view.ViewStartMsec, c.msec);
        EXPECT_EQ(view.SampleInterval, c.interval);
        EXPECT_EQ(view.PointCount, c.lines.size() == 3 ? 2 : 1);
        EXPECT_EQ(cellText(2, 1), QLatin1String("1"));
    }
}

// Line 1 may give the date and time one title while the data lines give them two fields, or
// two titles (an empty one over the date) as our own export writes: every channel is read.
TEST_F(CsvReader, TitleLineLeadsWithOneOrTwoFieldsWhateverTheDataLines) {
    const QStringList cases[] = {
        {"Date,A [V],B [mA]", "2024/05/06,10:00:00,1,2", "2024/05/06,10:00:01,3,4"},
        {",Time,A [V],B [mA]", "2024/05/06,10:00:00,1,2", "2024/05/06,10:00:01,3,4"},
        {"Date,A [V],B [mA]", "2024/05/06 10:00:00,1,2", "2024/05/06 10:00:01,3,4"},
        {"Date,A [V],B [mA],A AL,B AL", "2024/05/06,10:00:00,1,2,H,", "2024/05/06,10:00:01,3,4,,"},
    };
    for (const QStringList& lines : cases) {
        SCOPED_TRACE(lines[0].toStdString());
        ASSERT_TRUE(load(lines).ok());
        EXPECT_EQ(view.ChannelCount, 2);
        EXPECT_EQ(view.Channels.ChTag[1], QLatin1String("A"));
        EXPECT_EQ(view.Channels.ChUnit[2], QLatin1String("mA"));
        EXPECT_EQ(cellText(2, 1), QLatin1String("1"));
        EXPECT_EQ(cellText(4, 2), QLatin1String("4"));
    }
    EXPECT_EQ(cellText(1, 1), QLatin1String("1000")); // the alarm of the last case
}

TEST_F(CsvReader, ValueTextsPassAsTheyStandCutToEightCharacters) {
    const QStringList lines{"Date,A [V],B [V],C [V]", "2024/05/06 10:00:00,123456789.5,OVER,abc",
                            "2024/05/06 10:00:01,-0.25,,N.DATA"};
    ASSERT_TRUE(load(lines).ok());
    EXPECT_EQ(cellText(2, 1), QLatin1String("12345678"));
    EXPECT_EQ(cellText(4, 1), QLatin1String("OVER"));
    EXPECT_EQ(cellText(6, 1), QLatin1String("abc"));
    EXPECT_EQ(cellText(4, 2), QString());
}

TEST_F(CsvReader, AlarmColumnsEndTheChannelsAndGiveAlarmDigits) {
    const QStringList lines{"Date,A [V],B [mA],A AL,B AL", "2024/05/06 10:00:00,1,2,H/L,",
                            "2024/05/06 10:00:01,3,4,//r,R x H"};
    ASSERT_TRUE(load(lines).ok());
    EXPECT_EQ(view.ChannelCount, 2);
    EXPECT_EQ(cellText(1, 1), QLatin1String("1200"));
    EXPECT_EQ(cellText(3, 1), QLatin1String("0000"));
    EXPECT_EQ(cellText(1, 2), QLatin1String("0040"));
    EXPECT_EQ(cellText(3, 2), QLatin1String("3010"));
    EXPECT_EQ(cellText(4, 2), QLatin1String("4"));
}

TEST_F(CsvReader, UnreadableDatesAndShortLinesFailWithNothingShown) {
    const QStringList cases[] = {
        {"Date,A [V]", "yesterday,1"},
        {"Date,A [V]", "2024/13/06 10:00:00,1"},
        {"Date,A [V]", "2024/05/06 10:00:00,1", "garbage,2"},
        {"Date,A [V],B [V]", "2024/05/06 10:00:00,1,2", "2024/05/06 10:00:01,1"},
        {"Date,A [V],A AL", "2024/05/06 10:00:00,1"},
        {"Date,A [V]", "2024/05/06 10:00:00,1", "", "2024/05/06 10:00:02,1", "oops"},
        {"Date,A [V]"},
        {},
    };
    for (const QStringList& lines : cases) {
        ASSERT_TRUE(load(simpleCsv(1, 2, rowDotChannel)).ok()); // a view to be cleared
        const LoadOutcome out = load(lines);
        if (lines.size() > 4) {
            // The rows end at the first empty line; what follows it is not read.
            EXPECT_TRUE(out.ok());
            EXPECT_EQ(view.PointCount, 1);
            continue;
        }
        EXPECT_EQ(out.status, LoadOutcome::Status::Failed);
        EXPECT_EQ(out.message, 560);
        EXPECT_EQ(view.PointCount, 0);
        EXPECT_EQ(view.Storage.MaxCols(), 0);
        EXPECT_FALSE(view.Loaded);
    }
}

} // namespace

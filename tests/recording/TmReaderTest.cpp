#include "LoadHelpers.h"

#include "base/TimeBase.h"
#include "recording/ColorMaps.h"
#include "support/RecordingFixture.h"
#include "support/TmWriter.h"

#include <gtest/gtest.h>

namespace {

using namespace fixtures;

const qint64 kStart = TimeBase::toSeconds({2024, 5, 6, 10, 0, 0});

TmDescription twoChannels(QVector<QVector<qint16>> rows) {
    TmDescription d;
    d.channels = {{1, '0', "0", "100.0", "degC", "Temp", '2', {}, {}},
                  {2, '6', "", "", "Pa", "", '3', {}, {}}};
    d.rows = std::move(rows);
    return d;
}

// A file of one analogue channel (scale 0..100) with `rows` rows of count 0.
QByteArray oneChannel(const QByteArray& startText, int rows, qint16 count = 0) {
    TmDescription d;
    d.startText = startText;
    d.channels = {{1, '0', "0", "100", "", "A", '0', {}, {}}};
    d.rows = QVector<QVector<qint16>>(rows, {count});
    return buildTm(d);
}

using TmReader = RecordingTest;

TEST_F(TmReader, HeadAndChannelTablesFillTheView) {
    ASSERT_TRUE(loadFiles({dir.write("run.dat", buildTm(twoChannels({{0, 0}, {1, 1}})))}).ok());
    EXPECT_EQ(view.ViewStart, kStart);
    EXPECT_EQ(view.SampleInterval, 1000); // "00010" tenths
    EXPECT_EQ(view.PointCount, 2);
    EXPECT_EQ(view.Channels.ChTag[2], QLatin1String("CH2"));
    EXPECT_TRUE(view.Channels.ChLogFlag[2]);
    EXPECT_EQ(view.Channels.ChColor[2], ColorMapOfTMSeries().GetColor(3));
    EXPECT_EQ(cellText(3, 2), QLatin1String("0000"));
}

TEST_F(TmReader, CountsAreScaledOrShownAsStatus) {
    const struct {
        qint16 analogue, log;
        const char *analogueText, *logText;
    } cases[] = {
        {25000, 32 * 123 + 3, "100.0", "1.23E+3"},
        {-25000, 32 * 150 + 12, "0.0", "1.50E-20"},
        {0, -163, "50.0", "-0.05E-3"},
        {12345, 32 * 7, "74.7", "0.07E+0"},
        {0, 32 * 1023 + 11, "50.0", "10.23E-2"}, // "10.23E-21" is cut at 8 as every cell is
        {32700, 32700, "OVER", "OVER"},
        {32767, 32767, "BURN", "BURN"},
        {-32700, -32700, "UNDER", "UNDER"},
        {-32768, -32768, "N.DATA", "N.DATA"},
        {-32701, -32701, "FAIL", "FAIL"},
    };
    QVector<QVector<qint16>> rows;
    for (const auto& c : cases) rows.append({c.analogue, c.log});
    ASSERT_TRUE(loadFiles({dir.write("s.dat", buildTm(twoChannels(rows)))}).ok());
    for (int r = 1; r <= int(std::size(cases)); ++r) {
        EXPECT_EQ(cellText(2, r), QLatin1String(cases[r - 1].analogueText)) << r;
        // The logarithmic channel has no scale texts, yet reads its counts.
        EXPECT_EQ(cellText(4, r), QLatin1String("N.DATA")) << r;
    }
    TmDescription d = twoChannels(rows);
    d.channels[1].low = "1";
    d.channels[1].high = "1";
    ASSERT_TRUE(loadFiles({dir.write("l.dat", buildTm(d))}).ok());
    for (int r = 1; r <= int(std::size(cases)); ++r)
        EXPECT_EQ(cellText(4, r), QLatin1String(cases[r - 1].logText)) << r;
}

TEST_F(TmReader, TheChannelListEndsAtTheFirstPairThatIsNoNumber) {
    const struct {
        const char* list;
        int channels;
    } cases[] = {{"0102  03", 2}, {"01 2", 2}, {"  01", 0}, {"01xx02", 1}, {"010203", 3}};
    for (const auto& c : cases) {
        TmDescription d;
        for (int m = 1; m <= 3; ++m) d.channels.append({m, '0', "0", "10", "", "A", '0', {}, {}});
        d.channelList = QByteArray(c.list);
        d.rows = {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}};
        const LoadOutcome out = loadFiles({dir.write("l.dat", buildTm(d))});
        if (c.channels == 0) {
            EXPECT_EQ(out.message, 578) << c.list; // no columns, no rows
            continue;
        }
        ASSERT_TRUE(out.ok()) << c.list;
        EXPECT_EQ(view.ChannelCount, c.channels) << c.list;
        EXPECT_EQ(view.PointCount, 18 / (2 * c.channels)) << c.list;
    }
}

TEST_F(TmReader, LaterFilesCloseSmallGapsAndOverlaps) {
    const struct {
        const char* secondStart;
        int firstRowOfSecond, points;
    } cases[] = {
        {"20240506100008", 9, 11},  // seamless
        {"20240506100010", 9, 11},  // a gap of 2 s is closed
        {"20240506100011", 12, 14}, // a gap of 3 s stays
        {"20240506100005", 9, 11},  // an overlap of 3 rows is laid behind
        {"20240506100003", 9, 11},  // and one of 5 rows
        {"20240506100002", 3, 8},   // one of 6 rows overwrites by time
    };
    for (const auto& c : cases) {
        const QString a = dir.write("a.dat", oneChannel("20240506100000", 8));
        const QString b = dir.write("b.dat", oneChannel(c.secondStart, 3, 25000));
        ASSERT_TRUE(loadFiles({a, b}).ok()) << c.secondStart;
        EXPECT_EQ(view.PointCount, c.points) << c.secondStart;
        EXPECT_EQ(cellText(2, c.firstRowOfSecond), QLatin1String("100")) << c.secondStart;
        EXPECT_EQ(cellText(2, c.firstRowOfSecond - 1),
                  QLatin1String(c.firstRowOfSecond > 9 ? "" : "50"))
            << c.secondStart;
    }
}

class MsgFiles : public ::testing::Test {
protected:
    void SetUp() override { view.MessageFiles.clear(); }
    void TearDown() override { view.MessageFiles.clear(); }
    LoadOutcome loadWithMessages(const QStringList& msgFiles) {
        view.MessageFiles = msgFiles;
        return loadFiles({dir.write("run.dat", oneChannel("20240506100000", 2))});
    }
    FixtureDir dir;
    ViewState& view = views(1);
};

TEST_F(MsgFiles, RecordsBecomeMessagesOfType7) {
    const QByteArray bytes = buildMsg({{"240506101530", "  Pump started  "},
                                       {"            ", "                "}, // blank: passed over
                                       {"991231235959", "Old"}});
    ASSERT_TRUE(loadWithMessages({dir.write("a.msg", bytes)}).ok());
    ASSERT_EQ(view.ViewMessages.size(), 2);
    EXPECT_EQ(TimeBase::isoText(view.ViewMessages[0].time), QLatin1String("2024-05-06 10:15:30"));
    EXPECT_EQ(view.ViewMessages[0].text, QLatin1String("Pump started"));
    EXPECT_EQ(view.ViewMessages[0].type, 7);
    EXPECT_EQ(TimeBase::isoText(view.ViewMessages[1].time), QLatin1String("1999-12-31 23:59:59"));
}

TEST_F(MsgFiles, AFileGivesAtMost200RecordsAndFilesAddUp) {
    const struct {
        int records, rows;
    } cases[] = {{0, 0}, {1, 1}, {199, 199}, {200, 200}, {201, 200}, {450, 200}};
    for (const auto& c : cases) {
        QVector<MsgRecord> records(c.records, {"240506100000", "m"});
        ASSERT_TRUE(loadWithMessages({dir.write("n.msg", buildMsg(records))}).ok());
        EXPECT_EQ(view.ViewMessages.size(), c.rows) << c.records;
    }
    const QString a = dir.write("a.msg", buildMsg(QVector<MsgRecord>(3, {"240506100000", "a"})));
    const QString b =
        dir.write("b.msg", buildMsg(QVector<MsgRecord>(201, {"240506100000", "b"}), "TM1M"));
    ASSERT_TRUE(loadWithMessages({a, dir.path("missing.msg"), b}).ok());
    EXPECT_EQ(view.ViewMessages.size(), 203);
    EXPECT_EQ(view.ViewMessages[3].text, QLatin1String("b"));
}

} // namespace

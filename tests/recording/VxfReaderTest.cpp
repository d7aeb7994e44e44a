#include "LoadHelpers.h"

#include "app/TimeBase.h"
#include "recording/ColorMaps.h"
#include "support/RecordingFixture.h"
#include "support/VxfWriter.h"

#include <gtest/gtest.h>

namespace {

using namespace fixtures;

const quint32 kStart = quint32(TimeBase::toSeconds({2024, 5, 6, 10, 0, 0}));

qint16 rowTimesTen(int row, int channel) {
    return qint16(row * 10 + channel);
}

class VxfReader : public ::testing::Test {
protected:
    void SetUp() override { FileJoinByOrder = 0; }
    FixtureDir dir;
    const ViewTables& view = views(1);
};

TEST_F(VxfReader, NarrowFileFillsChannelsCellsAndView) {
    VxfDescription d = simpleVxf(3, 5, kStart, 10, rowTimesTen);
    d.startTenths = 4;
    d.channels[0] = {"Furnace", "degC", 2, false, 1, 9};
    d.channels[1] = {"", "kPa", 0, false, 0, 4};
    d.rows[1][2] = {32766, 0x13, 0x31, 0};
    ASSERT_TRUE(loadFiles({dir.write("a.vxf", buildVxf(d))}).ok());

    EXPECT_EQ(view.PointCount, 5);
    EXPECT_EQ(view.ViewShownPoints, 5);
    EXPECT_EQ(view.ChannelCount, 3);
    EXPECT_EQ(view.SampleInterval, 1000);
    EXPECT_EQ(view.ViewStart, kStart);
    EXPECT_EQ(view.ViewStartMsec, 400);
    EXPECT_EQ(view.ViewTitle, QLatin1String("a.vxf"));
    EXPECT_EQ(view.Channels.ChTag[1], QLatin1String("Furnace"));
    EXPECT_EQ(view.Channels.ChTag[2], QLatin1String("No5")); // slot byte + 1
    EXPECT_EQ(view.Channels.ChUnit[2], QLatin1String("kPa"));
    EXPECT_EQ(view.Channels.ChColor[1], ColorMapOfVXSeries().GetColor(2));
    EXPECT_EQ(cellText(2, 1), QLatin1String("1.1")); // (10 + 1) / 10
    EXPECT_EQ(cellText(4, 3), QLatin1String("32"));  // 0 decimals
    EXPECT_EQ(cellText(6, 2), QLatin1String("BURN"));
    EXPECT_EQ(cellText(5, 2), QLatin1String("1001")); // bytes 0x13, 0x31
    EXPECT_EQ(cellText(1, 1), QLatin1String("0000"));
    EXPECT_EQ(view.Storage.MaxCols(), 744);
    EXPECT_EQ(view.Storage.DataColCnt(), 6);
}

TEST_F(VxfReader, WideLayoutAndExponentChannels) {
    VxfDescription d = simpleVxf(2, 2, kStart, 5, rowTimesTen);
    d.magic = QByteArray("W3N\0", 4);
    d.channels[1].expFormat = true;
    d.channels[1].decimals = 1;
    d.rows[0][1].value = qint16((123 << 5) | 0x10 | 2); // 123 / 10 / 100
    d.channels[0].colorCode = 6;
    ASSERT_TRUE(loadFiles({dir.write("w.vxf", buildVxf(d))}).ok());
    EXPECT_EQ(view.SampleInterval, 500);
    EXPECT_EQ(view.Channels.ChExpDigits[2], 2);
    EXPECT_EQ(view.Channels.ChExpDigits[1], 0);
    EXPECT_EQ(cellText(4, 1), QLatin1String("0.123"));
    EXPECT_EQ(view.Channels.ChColor[1], ColorMapOfVXNSeries().GetColor(6));
    EXPECT_NE(ColorMapOfVXNSeries().GetColor(6), ColorMapOfVXSeries().GetColor(6));
}

TEST_F(VxfReader, DataModeSuffixesFollowTheSevenCharacterLimit) {
    VxfDescription d = simpleVxf(3, 1, kStart, 10, rowTimesTen);
    d.dataMode = 1;
    d.channels[0].tag = "ABCDEF";
    d.channels[1].tag = "ABCDEFG";
    d.channels[2].tag = "";
    ASSERT_TRUE(loadFiles({dir.write("m.vxf", buildVxf(d))}).ok());
    EXPECT_EQ(view.Channels.ChTag[1], QLatin1String("ABCDEF-AVE"));
    EXPECT_EQ(view.Channels.ChTag[2], QLatin1String("ABCDEFG"));
    EXPECT_EQ(view.Channels.ChTag[3], QLatin1String("No3-AVE"));
}

TEST_F(VxfReader, MinMaxPairsGiveTwoChannelsWithTheAsymmetricAlarm) {
    VxfDescription d = simpleVxf(2, 2, kStart, 10, rowTimesTen);
    d.dataMode = 4;
    d.channels[0].tag = "Pres";
    d.rows[0][0] = {-15, 0x13, 0x31, 25};
    d.rows[0][1] = {100, 0x00, 0x00, 200};
    ASSERT_TRUE(loadFiles({dir.write("p.vxf", buildVxf(d))}).ok());
    EXPECT_EQ(view.ChannelCount, 4);
    EXPECT_EQ(view.Channels.ChTag[1], QLatin1String("Pres-MIN"));
    EXPECT_EQ(view.Channels.ChTag[2], QLatin1String("Pres-MAX"));
    EXPECT_EQ(view.Channels.ChTag[4], QLatin1String("T2-MAX"));
    EXPECT_EQ(cellText(2, 1), QLatin1String("-1.5"));
    EXPECT_EQ(cellText(4, 1), QLatin1String("2.5"));
    EXPECT_EQ(cellText(1, 1), QLatin1String("1001")); // minimum: both alarm bytes
    EXPECT_EQ(cellText(3, 1), QLatin1String("10"));   // maximum: two characters
    EXPECT_EQ(cellText(8, 1), QLatin1String("20.0"));
}

TEST_F(VxfReader, MessagesAreReadAndThoseBeyondTheEndAreEmpty) {
    VxfDescription d = simpleVxf(1, 2, kStart, 10, rowTimesTen);
    d.messages = {{kStart + 60, 5, "Batch start", 3}, {kStart + 90, 0, "End", 1}};
    QByteArray bytes = buildVxf(d);
    bytes.chop(20); // the second record loses its type and part of its text
    ASSERT_TRUE(loadFiles({dir.write("msg.vxf", bytes)}).ok());
    ASSERT_EQ(view.ViewMessages.size(), 2);
    EXPECT_EQ(TimeBase::isoText(view.ViewMessages[0].time), QLatin1String("2024-05-06 10:01:00"));
    EXPECT_EQ(view.ViewMessages[0].msec, 500);
    EXPECT_EQ(view.ViewMessages[0].text, QLatin1String("Batch start"));
    EXPECT_EQ(view.ViewMessages[0].type, 3);
    EXPECT_EQ(view.ViewMessages[1].text, QString());
    EXPECT_EQ(view.ViewMessages[1].type, 0);
}

TEST_F(VxfReader, AlarmHistoryFormsSequencesAndRaisesShownPoints) {
    VxfDescription d = simpleVxf(1, 10, kStart, 10, rowTimesTen);
    d.alarms = {
        {kStart + 5, 3, 1, 0x11, 0x21, 7}, {42, 43, 1, 0x02, 0, 0}, {kStart + 9, 0, 2, 0x21, 0, 0}};
    ASSERT_TRUE(loadFiles({dir.write("al.vxf", buildVxf(d))}).ok());
    EXPECT_EQ(view.AlarmEvents.sequenceCount, 2);
    const auto& seqs = view.AlarmEvents.files[0];
    ASSERT_EQ(seqs.size(), 2);
    EXPECT_EQ(seqs[0][0].EventTime, QLatin1String("2024-05-06 10:00:05"));
    EXPECT_EQ(seqs[0][0].EventMsec, QLatin1String("300"));
    EXPECT_EQ(seqs[0][0].EventLevel, 1);
    EXPECT_EQ(seqs[0][0].EventKind, 1);
    EXPECT_EQ(seqs[0][0].EventMaskHigh, 2);
    EXPECT_EQ(seqs[0][1].EventTime, QLatin1String("42")); // a continuing record: plain words
    EXPECT_EQ(seqs[0][1].EventKind, 0);
    EXPECT_EQ(seqs[1].size(), 1);
    EXPECT_EQ(view.PointCount, 10);
    EXPECT_EQ(view.ViewShownPoints, 300);
    EXPECT_EQ(view.ViewRowCount, 10);
}

TEST_F(VxfReader, OtherAlarmRecordSizesMeanNoHistory) {
    VxfDescription d = simpleVxf(1, 3, kStart, 10, rowTimesTen);
    d.alarms = {{kStart, 0, 1, 0x11, 0, 0}};
    d.alarmSize = 12;
    ASSERT_TRUE(loadFiles({dir.write("a12.vxf", buildVxf(d))}).ok());
    EXPECT_FALSE(view.AlarmEvents.any());
    EXPECT_EQ(view.ViewShownPoints, 3);
}

TEST_F(VxfReader, W2nKeepsItsAlarmCountersLower) {
    VxfDescription d = simpleVxf(1, 3, kStart, 10, rowTimesTen);
    d.magic = QByteArray("W2N\0", 4);
    d.alarms = {{kStart, 0, 1, 0x01, 0, 0}};
    ASSERT_TRUE(loadFiles({dir.write("w2n.vxf", buildVxf(d))}).ok());
    EXPECT_TRUE(view.AlarmEvents.any());
}

TEST_F(VxfReader, FilesWithTheSameBatchTextShareColumnsAndJoinByTime) {
    VxfDescription a = simpleVxf(2, 3, kStart, 10, rowTimesTen);
    VxfDescription b = simpleVxf(2, 2, kStart + 5, 10, [](int, int) { return qint16(-7); });
    a.batchText = b.batchText = "LOT-1";
    const QString pa = dir.write("a.vxf", buildVxf(a)), pb = dir.write("b.vxf", buildVxf(b));
    ASSERT_TRUE(loadFiles({pa, pb}).ok());
    EXPECT_EQ(view.ChannelCount, 2);
    EXPECT_EQ(view.PointCount, 7);
    EXPECT_EQ(cellText(2, 3), QLatin1String("3.1"));
    EXPECT_EQ(cellText(2, 4), QString()); // gap rows are blank
    EXPECT_EQ(cellText(1, 5), QString());
    EXPECT_EQ(cellText(2, 6), QLatin1String("-0.7"));
}

TEST_F(VxfReader, NewBatchTextsStandSideBySide) {
    VxfDescription a = simpleVxf(2, 3, kStart, 10, rowTimesTen);
    VxfDescription b = simpleVxf(3, 3, kStart, 10, [](int, int c) { return qint16(c); });
    a.batchText = "LOT-1";
    b.batchText = "LOT-2";
    ASSERT_TRUE(loadFiles({dir.write("a.vxf", buildVxf(a)), dir.write("b.vxf", buildVxf(b))}).ok());
    EXPECT_EQ(view.ChannelCount, 5);
    EXPECT_EQ(view.PointCount, 3);
    EXPECT_EQ(view.Channels.ChTag[3], QLatin1String("T1"));
    EXPECT_EQ(cellText(10, 2), QLatin1String("0.3"));
}

TEST_F(VxfReader, JoinByOrderAppendsBehindTheLastRow) {
    FileJoinByOrder = 1;
    VxfDescription a = simpleVxf(1, 3, kStart, 10, rowTimesTen);
    VxfDescription b = simpleVxf(1, 2, kStart + 3600, 10, rowTimesTen);
    ASSERT_TRUE(loadFiles({dir.write("a.vxf", buildVxf(a)), dir.write("b.vxf", buildVxf(b))}).ok());
    EXPECT_EQ(view.PointCount, 5);
    EXPECT_EQ(cellText(2, 4), QLatin1String("1.1"));
}

TEST_F(VxfReader, AnEarlierSecondFileDropsRowsBeforeTheStart) {
    VxfDescription a = simpleVxf(1, 3, kStart, 10, rowTimesTen);
    VxfDescription b = simpleVxf(1, 4, kStart - 2, 10, [](int r, int) { return qint16(100 + r); });
    ASSERT_TRUE(loadFiles({dir.write("a.vxf", buildVxf(a)), dir.write("b.vxf", buildVxf(b))}).ok());
    EXPECT_EQ(view.PointCount, 3);
    EXPECT_EQ(cellText(2, 1), QLatin1String("10.3")); // file b's row 3 overwrote row 1
    EXPECT_EQ(cellText(2, 2), QLatin1String("10.4"));
    EXPECT_EQ(cellText(2, 3), QLatin1String("3.1"));
}

TEST_F(VxfReader, TheThreeHundredSeventyThirdChannelIsDropped) {
    QStringList paths;
    for (int f = 0; f < 7; ++f) {
        VxfDescription d = simpleVxf(56, 2, kStart, 10, rowTimesTen);
        d.magic = QByteArray("VX3\0", 4);
        d.batchText = "B" + QByteArray::number(f);
        paths << dir.write(QStringLiteral("f%1.vxf").arg(f), buildVxf(d));
    }
    ASSERT_TRUE(loadFiles(paths).ok());
    EXPECT_EQ(view.ChannelCount, 372);
    EXPECT_EQ(view.Channels.ChTag[372], QLatin1String("T36"));
    EXPECT_EQ(cellText(744, 2), QLatin1String("5.6")); // (20 + 36) / 10
}

TEST_F(VxfReader, NoRowsGivesAnEmptyViewAndMessage578) {
    VxfDescription d = simpleVxf(2, 0, kStart, 10, rowTimesTen);
    const LoadOutcome out = loadFiles({dir.write("e.vxf", buildVxf(d))});
    EXPECT_EQ(out.status, LoadOutcome::Status::Empty);
    EXPECT_EQ(out.message, 578);
    EXPECT_EQ(view.PointCount, 0);
}

TEST_F(VxfReader, CutSamplesFailWithTheChannelCountAndClearTheView) {
    VxfDescription d = simpleVxf(2, 50, kStart, 10, rowTimesTen);
    QByteArray bytes = buildVxf(d);
    bytes.chop(30);
    const LoadOutcome out = loadFiles({dir.write("cut.vxf", bytes)});
    EXPECT_EQ(out.status, LoadOutcome::Status::Failed);
    EXPECT_EQ(out.message, 587);
    EXPECT_EQ(out.detail, QLatin1String("CHCount = 2"));
    EXPECT_EQ(view.PointCount, 0);
    EXPECT_EQ(view.Storage.MaxCols(), 0);
    EXPECT_FALSE(view.Loaded);
}

TEST_F(VxfReader, CancelConfirmedEmptiesTheView) {
    class CancelAtOnce : public Progress {
        void setValue(int) override {}
        bool poll() override { return true; }
    } progress;
    CommandFiles::ParseCommandFiles(
        CommandFiles::quotedCommandLine(
            {dir.write("c.vxf", buildVxf(simpleVxf(1, 5000, kStart, 10, rowTimesTen)))}),
        false);
    ViewTables& v = views(1);
    copySelectionToView(v);
    int asked = 0;
    LoadOptions options;
    options.progress = &progress;
    options.confirmCancel = [&] { return ++asked == 2; }; // "no" once, then "yes"
    EXPECT_EQ(LoadRecording(v, options).status, LoadOutcome::Status::Cancelled);
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(v.PointCount, 0);
}

} // namespace

namespace {

TEST_F(VxfReader, PropertiesOfTheFirstFile) {
    VxfDescription d = simpleVxf(1, 30, kStart, 50, rowTimesTen);
    d.modelText = "VX-3000";
    d.versionText = "R2.04";
    ASSERT_TRUE(loadFiles({dir.write("p.vxf", buildVxf(d))}).ok());
    const clsDataFileProperty& p = view.DataProperty;
    EXPECT_TRUE(p.filled);
    EXPECT_EQ(p.start, kStart);
    EXPECT_EQ(p.end, kStart + 150); // 5 s x 30 rows
    EXPECT_EQ(p.rowCount, 30);
    EXPECT_EQ(p.typeText, QLatin1String("TARNO Graphic recorder"));
    EXPECT_EQ(p.modelText, QLatin1String("VX-3000"));
    EXPECT_EQ(p.versionText, QLatin1String("R2.04"));
    EXPECT_FALSE(view.BatchInfoFound);
}

TEST_F(VxfReader, LongRecordingsCapTheSixteenBitRowCount) {
    ASSERT_TRUE(
        loadFiles({dir.write("l.vxf", buildVxf(simpleVxf(1, 40000, kStart, 10, rowTimesTen)))})
            .ok());
    EXPECT_EQ(view.PointCount, 40000);
    EXPECT_EQ(view.ViewShownPoints, 40000);
    EXPECT_EQ(view.ViewRowCount, 32767);
}

TEST_F(VxfReader, AnUnknownMagicReadsMessagesOf44Bytes) {
    // A file of another magic arrives only through paths that skip the magic test.
    VxfDescription d = simpleVxf(1, 2, kStart, 10, rowTimesTen);
    d.magic = QByteArray("XQ9\0", 4);
    d.messageSize = 60; // the head says 60, the reader takes 44
    d.messages = {{kStart, 0, "abc", 5}};
    QByteArray bytes = buildVxf(d);
    SelectionLists& sel = selection();
    sel.clear();
    sel.append(dir.write("u.vxf", bytes), kStart, 0);
    sel.SelInterval = 1000;
    ViewTables& v = views(1);
    copySelectionToView(v);
    ASSERT_TRUE(LoadRecording(v, LoadOptions()).ok());
    ASSERT_EQ(v.ViewMessages.size(), 1);
    EXPECT_EQ(v.ViewMessages[0].text, QLatin1String("abc"));
    EXPECT_EQ(v.ViewMessages[0].type, 0); // the type field of a 44-byte record holds text bytes
}

} // namespace

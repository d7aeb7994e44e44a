#include "LoadHelpers.h"

#include "base/TimeBase.h"
#include "recording/ColorMaps.h"
#include "recording/RowBlocks.h"
#include "support/RecordingFixture.h"
#include "support/VxfWriter.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

using namespace fixtures;

const quint32 kStart = quint32(TimeBase::toSeconds({2024, 5, 6, 10, 0, 0}));

qint16 rowTimesTen(int row, int channel) {
    return qint16(row * 10 + channel);
}

VxfDescription vxf(int channels, int rows, quint32 start = kStart) {
    return simpleVxf(channels, rows, start, 10, rowTimesTen);
}

class VxfReader : public RecordingTest {
protected:
    // Writes the files as f0.vxf, f1.vxf, ... and opens them as the command line does.
    LoadOutcome load(std::initializer_list<VxfDescription> files, LoadOptions options = {}) {
        QStringList paths;
        for (const VxfDescription& d : files)
            paths << dir.write(QStringLiteral("f%1.vxf").arg(paths.size()), buildVxf(d));
        return loadFiles(paths, false, options);
    }
};

TEST_F(VxfReader, NarrowFileFillsChannelsCellsAndView) {
    VxfDescription d = vxf(3, 5);
    d.startTenths = 4;
    d.channels[0] = {"Furnace", "degC", 2, false, 1, 9};
    d.channels[1] = {"", "kPa", 0, false, 0, 4};
    d.rows[1][2] = {32766, 0x13, 0x31, 0};
    ASSERT_TRUE(load({d}).ok());
    EXPECT_EQ(view.PointCount, 5);
    EXPECT_EQ(view.ViewStart, kStart);
    EXPECT_EQ(view.ViewStartMsec, 400);
    EXPECT_EQ(view.Channels.ChTag[2], QLatin1String("No5")); // slot byte + 1
    EXPECT_EQ(view.Channels.ChColor[1], ColorMapOfVXSeries().GetColor(2));
    EXPECT_EQ(cellText(2, 1), QLatin1String("1.1")); // (10 + 1) / 10
    EXPECT_EQ(cellText(4, 3), QLatin1String("32"));  // 0 decimals
    EXPECT_EQ(cellText(6, 2), QLatin1String("BURN"));
    EXPECT_EQ(cellText(5, 2), QLatin1String("1001")); // bytes 0x13, 0x31
    EXPECT_EQ(view.Storage.DataColCnt(), 6);
}

TEST_F(VxfReader, WideLayoutAndExponentChannels) {
    VxfDescription d = simpleVxf(2, 2, kStart, 5, rowTimesTen);
    d.magic = QByteArray("W3N\0", 4);
    d.channels[1].expFormat = true;
    d.channels[1].decimals = 1;
    d.rows[0][1].value = qint16((123 << 5) | 0x10 | 2); // 123 / 10 / 100
    d.channels[0].colorCode = 6;
    ASSERT_TRUE(load({d}).ok());
    EXPECT_EQ(view.SampleInterval, 500);
    EXPECT_EQ(view.Channels.ChExpDigits[2], 2);
    EXPECT_EQ(cellText(4, 1), QLatin1String("0.123"));
    EXPECT_EQ(view.Channels.ChColor[1], ColorMapOfVXNSeries().GetColor(6));
}

TEST_F(VxfReader, DataModeSuffixesFollowTheSevenCharacterLimit) {
    VxfDescription d = vxf(3, 1);
    d.dataMode = 1;
    d.channels[0].tag = "ABCDEF";
    d.channels[1].tag = "ABCDEFG";
    d.channels[2].tag = "";
    ASSERT_TRUE(load({d}).ok());
    EXPECT_EQ(view.Channels.ChTag[1], QLatin1String("ABCDEF-AVE"));
    EXPECT_EQ(view.Channels.ChTag[2], QLatin1String("ABCDEFG"));
    EXPECT_EQ(view.Channels.ChTag[3], QLatin1String("No3-AVE"));
}

TEST_F(VxfReader, MinMaxPairsGiveTwoChannelsWithTheAsymmetricAlarm) {
    VxfDescription d = vxf(2, 2);
    d.dataMode = 4;
    d.channels[0].tag = "Pres";
    d.rows[0][0] = {-15, 0x13, 0x31, 25};
    d.rows[0][1] = {100, 0x00, 0x00, 200};
    ASSERT_TRUE(load({d}).ok());
    EXPECT_EQ(view.ChannelCount, 4);
    EXPECT_EQ(view.Channels.ChTag[2], QLatin1String("Pres-MAX"));
    EXPECT_EQ(view.Channels.ChTag[3], QLatin1String("T2-MIN"));
    EXPECT_EQ(cellText(2, 1), QLatin1String("-1.5"));
    EXPECT_EQ(cellText(4, 1), QLatin1String("2.5"));
    EXPECT_EQ(cellText(1, 1), QLatin1String("1001")); // minimum: both alarm bytes
    EXPECT_EQ(cellText(3, 1), QLatin1String("10"));   // maximum: two characters
    EXPECT_EQ(cellText(8, 1), QLatin1String("20.0"));
}

TEST_F(VxfReader, MessagesAreReadAndThoseBeyondTheEndAreEmpty) {
    VxfDescription d = vxf(1, 2);
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
    VxfDescription d = vxf(1, 10);
    d.alarms = {
        {kStart + 5, 3, 1, 0x11, 0x21, 7}, {42, 43, 1, 0x02, 0, 0}, {kStart + 9, 0, 2, 0x21, 0, 0}};
    ASSERT_TRUE(load({d}).ok());
    EXPECT_EQ(view.AlarmEvents.sequenceCount, 2);
    const auto& seqs = view.AlarmEvents.files[0];
    ASSERT_EQ(seqs.size(), 2);
    EXPECT_EQ(seqs[0][0].EventTime, QLatin1String("2024-05-06 10:00:05"));
    EXPECT_EQ(seqs[0][0].EventMsec, QLatin1String("300"));
    EXPECT_EQ(seqs[0][0].EventMaskHigh, 2);
    EXPECT_EQ(seqs[0][1].EventTime, QLatin1String("42")); // a continuing record: plain words
    EXPECT_EQ(seqs[0][1].EventKind, 0);
    EXPECT_EQ(view.ViewShownPoints, 300);
    EXPECT_EQ(view.ViewRowCount, 10);
}

TEST_F(VxfReader, AlarmHistoryNeedsFourteenByteRecordsAndW2nKeepsIt) {
    VxfDescription d = vxf(1, 3);
    d.alarms = {{kStart, 0, 1, 0x11, 0, 0}};
    d.alarmSize = 12;
    ASSERT_TRUE(load({d}).ok());
    EXPECT_FALSE(view.AlarmEvents.any());
    EXPECT_EQ(view.ViewShownPoints, 3);
    d.alarmSize = 14;
    d.magic = QByteArray("W2N\0", 4);
    ASSERT_TRUE(load({d}).ok());
    EXPECT_TRUE(view.AlarmEvents.any());
}

TEST_F(VxfReader, FilesWithTheSameBatchTextShareColumnsAndJoinByTime) {
    VxfDescription a = vxf(2, 3);
    VxfDescription b = simpleVxf(2, 2, kStart + 5, 10, [](int, int) { return qint16(-7); });
    a.batchText = b.batchText = "LOT-1";
    ASSERT_TRUE(load({a, b}).ok());
    EXPECT_EQ(view.ChannelCount, 2);
    EXPECT_EQ(view.PointCount, 7);
    EXPECT_EQ(cellText(2, 3), QLatin1String("3.1"));
    EXPECT_EQ(cellText(2, 4), QString()); // gap rows are blank
    EXPECT_EQ(cellText(1, 5), QString());
    EXPECT_EQ(cellText(2, 6), QLatin1String("-0.7"));
}

TEST_F(VxfReader, JoinByOrderAppendsBehindTheLastRow) {
    LoadOptions byOrder;
    byOrder.FileJoinByOrder = 1;
    ASSERT_TRUE(load({vxf(1, 3), vxf(1, 2, kStart + 3600)}, byOrder).ok());
    EXPECT_EQ(view.PointCount, 5);
    EXPECT_EQ(cellText(2, 4), QLatin1String("1.1"));
}

TEST_F(VxfReader, AnEarlierSecondFileDropsRowsBeforeTheStart) {
    VxfDescription b = simpleVxf(1, 4, kStart - 2, 10, [](int r, int) { return qint16(100 + r); });
    ASSERT_TRUE(load({vxf(1, 3), b}).ok());
    EXPECT_EQ(view.PointCount, 3);
    EXPECT_EQ(cellText(2, 1), QLatin1String("10.3")); // file b's row 3 overwrote row 1
    EXPECT_EQ(cellText(2, 2), QLatin1String("10.4"));
    EXPECT_EQ(cellText(2, 3), QLatin1String("3.1"));
}

TEST_F(VxfReader, TheThreeHundredSeventyThirdChannelIsDropped) {
    QStringList paths;
    for (int f = 0; f < 7; ++f) {
        VxfDescription d = vxf(56, 2);
        d.magic = QByteArray("VX3\0", 4);
        d.batchText = "B" + QByteArray::number(f);
        paths << dir.write(QStringLiteral("f%1.vxf").arg(f), buildVxf(d));
    }
    ASSERT_TRUE(loadFiles(paths).ok());
    EXPECT_EQ(view.ChannelCount, 372);
    EXPECT_EQ(view.Channels.ChTag[372], QLatin1String("T36"));
    EXPECT_EQ(cellText(744, 2), QLatin1String("5.6")); // (20 + 36) / 10
}

TEST_F(VxfReader, NoRowsOrCutSamplesLeaveAnEmptyView) {
    const LoadOutcome empty = load({vxf(2, 0)});
    EXPECT_EQ(empty.status, LoadOutcome::Status::Empty);
    EXPECT_EQ(empty.message, 578);
    EXPECT_EQ(view.PointCount, 0);

    QByteArray bytes = buildVxf(vxf(2, 50));
    bytes.chop(30);
    const LoadOutcome cut = loadFiles({dir.write("cut.vxf", bytes)});
    EXPECT_EQ(cut.status, LoadOutcome::Status::Failed);
    EXPECT_EQ(cut.message, 587);
    EXPECT_EQ(cut.detail, QLatin1String("CHCount = 2"));
    EXPECT_EQ(view.PointCount, 0);
    EXPECT_FALSE(view.Loaded);
}

TEST_F(VxfReader, CancelConfirmedEmptiesTheView) {
    class CancelAtOnce : public Progress {
        void setValue(int) override {}
        bool poll() override { return true; }
    } progress;
    int asked = 0;
    LoadOptions options;
    options.progress = &progress;
    options.confirmCancel = [&] { return ++asked == 2; }; // "no" once, then "yes"
    const QString path = dir.write("c.vxf", buildVxf(vxf(1, 5000)));
    EXPECT_EQ(loadFiles({path}, false, options).status, LoadOutcome::Status::Cancelled);
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(view.PointCount, 0);
}

// Every cell of the store, for comparing two loads.
QStringList allCells(const clsStorage& s) {
    QStringList texts;
    QString t;
    for (int r = 0; r <= s.MaxRows(); ++r)
        for (int c = 0; c <= s.MaxCols(); ++c) texts << (s.GetText(c, r, t) ? t : "-");
    return texts;
}

// Forces the two-thread decode for the lifetime of the object.
struct SplitEveryFile {
    const qint64 saved = RowBlocks::parallelBytes;
    SplitEveryFile() { RowBlocks::parallelBytes = 0; }
    ~SplitEveryFile() { RowBlocks::parallelBytes = saved; }
};

TEST_F(VxfReader, TwoThreadsDecodeTheSameStoreAsOne) {
    for (quint32 mode : {0u, 4u}) {
        // 3001 rows: the halves meet inside the file, not at its end, and the last block is short;
        // the second file starts 7 rows later, so its rows are offset as well.
        VxfDescription a = vxf(4, 3001), b = vxf(3, 1100, kStart + 7);
        a.dataMode = b.dataMode = mode;
        a.magic = b.magic = QByteArray("W3N\0", 4);
        ASSERT_TRUE(load({a, b}).ok()) << mode;
        const QStringList one = allCells(view.Storage);
        SplitEveryFile split;
        ASSERT_TRUE(load({a, b}).ok()) << mode;
        EXPECT_EQ(allCells(view.Storage), one) << mode;
        EXPECT_GT(one.size(), 3001 * 8) << mode;
    }
}

TEST_F(VxfReader, CancelDuringATwoThreadDecodeStopsBothHalves) {
    class CancelLate : public Progress {
        int polls = 0;
        void setValue(int) override {}
        bool poll() override { return ++polls > 3; }
    } progress;
    LoadOptions options;
    options.progress = &progress;
    SplitEveryFile split;
    EXPECT_EQ(load({vxf(2, 20000)}, options).status, LoadOutcome::Status::Cancelled);
    EXPECT_EQ(view.PointCount, 0);
}

TEST_F(VxfReader, AFileCutShortBetweenItsRecognitionAndItsReadFailsCleanly) {
    for (const qint64 keep : {qint64(0), qint64(40), qint64(600), qint64(-9)}) {
        const QByteArray whole = buildVxf(vxf(3, 400));
        const QString path = dir.write("cut.vxf", whole);
        CommandFiles::ParseCommandFiles(CommandFiles::quotedCommandLine({path}), false);
        QFile file(path);
        ASSERT_TRUE(file.resize(keep < 0 ? whole.size() + keep : keep));
        ViewState& v = views(1);
        copySelectionToView(v);
        const LoadOutcome out = LoadRecording(v, LoadOptions());
        EXPECT_FALSE(out.ok()) << keep;
        // 587 once the channels were read, with their count behind it.
        EXPECT_TRUE(out.message == 560 || out.message == 587) << keep << " " << out.message;
        EXPECT_EQ(view.PointCount, 0) << keep;
    }
}

TEST_F(VxfReader, LongRecordingsCapTheSixteenBitRowCount) {
    ASSERT_TRUE(load({vxf(1, 40000)}).ok());
    EXPECT_EQ(view.PointCount, 40000);
    EXPECT_EQ(view.ViewShownPoints, 40000);
    EXPECT_EQ(view.ViewRowCount, 32767);
}

} // namespace

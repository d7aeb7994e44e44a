#include "LoadHelpers.h"

#include "support/RecordingFixture.h"
#include "support/VxfWriter.h"

#include <QRandomGenerator>

#include <gtest/gtest.h>

namespace {

using namespace fixtures;

// Every load of a damaged file either succeeds or fails cleanly with an empty view.
void expectCleanOutcome(const LoadOutcome& out, const char* what, qint64 where) {
    ViewTables& v = views(1);
    if (out.status == LoadOutcome::Status::NotHandled) return; // refused before reading
    if (out.ok()) {
        EXPECT_GT(v.PointCount, 0) << what << " " << where;
        v.clearRecording();
        return;
    }
    EXPECT_TRUE(out.message == 560 || out.message == 587 || out.message == 578 ||
                out.status == LoadOutcome::Status::NotHandled)
        << what << " " << where << " message " << out.message;

    EXPECT_EQ(v.PointCount, 0) << what << " " << where;
    EXPECT_EQ(v.Storage.MaxCols(), 0) << what << " " << where;
    EXPECT_FALSE(v.Loading);
    v.clearRecording();
}

VxfDescription richFile(const QByteArray& magic, quint32 mode) {
    VxfDescription d = simpleVxf(3, 6, 1000, 10, [](int r, int c) { return qint16(r * c); });
    d.magic = magic;
    d.dataMode = mode;
    d.channels[1].expFormat = true;
    d.messages = {{1001, 2, "start", 1}, {1003, 0, "stop", 2}};
    d.alarms = {{1002, 0, 1, 0x11, 0x11, 5}, {1, 2, 1, 0x01, 0, 0}};
    d.batchText = "LOT";
    return d;
}

TEST(VxfRobustness, TruncationAtEveryOffsetFailsCleanly) {
    FixtureDir dir;
    for (const QByteArray& magic : {QByteArray("VX2\0", 4), QByteArray("W3N\0", 4), QByteArray("W2N\0", 4)}) {
        const QByteArray whole = buildVxf(richFile(magic, magic.startsWith("W3N") ? 4 : 0));
        for (qint64 len = 4; len < whole.size(); len += (len < 120 || len > 2590 ? 1 : 37)) {
            const QString path = dir.write(QStringLiteral("t.vxf"), whole.left(len));
            expectCleanOutcome(loadFiles({path}), "truncated at", len);
        }
    }
}

TEST(VxfRobustness, FlippedBytesNeverCrash) {
    FixtureDir dir;
    QRandomGenerator random(20261123);
    const QByteArray whole = buildVxf(richFile(QByteArray("VX3\0", 4), 1));
    for (int round = 0; round < 400; ++round) {
        QByteArray damaged = whole;
        const int flips = 1 + int(random.bounded(8));
        for (int i = 0; i < flips; ++i) {
            // Most flips go to the head, where counts and offsets live.
            const qint64 at = random.bounded(10) < 7 ? random.bounded(48) : random.bounded(whole.size());
            damaged[at] = char(damaged[at] ^ char(1 << random.bounded(8)));
        }
        expectCleanOutcome(loadFiles({dir.write(QStringLiteral("f.vxf"), damaged)}), "round", round);
    }
}

TEST(VxfRobustness, HugeCountsAllocateNothing) {
    FixtureDir dir;
    VxfDescription d = richFile(QByteArray("VX2\0", 4), 0);
    d.rowCount = 0xFFFFFFFF;
    d.messageCount = 0xFFFFFFF0;
    d.channelCount = 0x7FFFFFFF;
    expectCleanOutcome(loadFiles({dir.write(QStringLiteral("h.vxf"), buildVxf(d))}), "huge", 0);
    EXPECT_FALSE(views(1).Loaded);
}

TEST(VxfRobustness, OffsetsThatOverflowReadNoMessages) {
    // Every head field 0xE0E0E0E0: the message block lies far beyond any 64-bit offset.
    FixtureDir dir;
    QByteArray bytes = QByteArray("VX2") + QByteArray(41, char(0xE0));
    expectCleanOutcome(loadFiles({dir.write(QStringLiteral("o.vxf"), bytes)}), "overflow", 0);
    EXPECT_TRUE(views(1).ViewMessages.isEmpty());
}

} // namespace

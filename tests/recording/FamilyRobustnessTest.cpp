#include "LoadHelpers.h"

#include "recording/FamilyCodes.h"
#include "recording/FileBytes.h"
#include "support/CsvWriter.h"
#include "support/JlmWriter.h"
#include "support/NpWriter.h"
#include "support/QdfWriter.h"
#include "support/RecordingFixture.h"
#include "support/TmWriter.h"
#include "support/VxfWriter.h"

#include <QRandomGenerator>

#include <gtest/gtest.h>

#include <functional>

namespace {

using namespace fixtures;

// One valid file of a family, and how the program opens it.
struct FamilyCase {
    const char* name;
    const char* fileName;
    int fileType;
    bool gsMode;
    std::function<QByteArray()> build;
    qint64 headBytes; // where counts and offsets live; most flips go there
};

QByteArray vxfFile(const char* magic, quint32 mode) {
    VxfDescription d = simpleVxf(3, 6, 1000, 10, [](int r, int c) { return qint16(r * c); });
    d.magic = QByteArray(magic, 4), d.dataMode = mode, d.batchText = "LOT";
    d.channels[1].expFormat = true;
    d.messages = {{1001, 2, "start", 1}, {1003, 0, "stop", 2}};
    d.alarms = {{1002, 0, 1, 0x11, 0x11, 5}, {1, 2, 1, 0x01, 0, 0}};
    return buildVxf(d);
}

QByteArray qdfFile() {
    QdfDescription d;
    d.groupMask[0] = 0x3003, d.groupMask[1] = 0x4000, d.groupMask[2] = 0x8010, d.decimals[0] = 2;
    d.values = {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}};
    d.alarmWords = {{1, 2, 3, 4}, {0, 0, 0, 0}, {0xFFFF, 0, 0, 1}};
    return buildQdf(d);
}

QByteArray tmFile() {
    TmDescription d;
    d.magic = "TM10", d.pairFlag = '1';
    d.channels = {{1, '0', "0", "100.0", "C", "A", '1', {}, {}},
                  {40, '6', "1", "1", "", "", '2', {}, {}}};
    d.rows = {{1, 2, 3, 4}, {-25000, 25000, 32700, 32767}, {5, 6, 7, 8}};
    return buildTm(d);
}

QByteArray npFile(quint32 kind, quint16 version, bool gs) {
    NpDescription d;
    d.magic = gs ? QByteArray("PC4\0", 4) : QByteArray("NP5\0", 4);
    d.gsStride = gs, d.dataKind = kind, d.version = version, d.startUnix = 1714989600;
    d.channels = {{"A", "V", 1, 1}, {"", "", 2, 3}};
    d.rows = QVector<QVector<NpSample>>(4, QVector<NpSample>(kind == 4 ? 4 : 2, {7, 1.5f, 3}));
    return buildNp(d);
}

QByteArray jlmFile() {
    JlmDescription d;
    d.channels = {{"Tag1", "u1", 1}, {"Tag2", "u2", 0}};
    d.keys = jlmKeys(2024, 5, 6, 10, 0, 0, 4, 60);
    d.rows = {{1, 2}, {3, 4}, {5, 6}, {7, 8}};
    return buildJlm(d);
}

QByteArray csvFile() {
    return buildCsv({",Time,A [V],B [V],A AL,B AL", "2024/05/06,10:00:00.250,1,2,H,L",
                     "2024/05/06,10:00:01.250,3,4,,r", "2024/05/06,10:00:02.250,5,OVER,H/L,"});
}

const FamilyCase kFamilies[] = {
    {"VX2", "f.vxf", Family::VXF, false, [] { return vxfFile("VX2\0", 0); }, 48},
    {"W3N pairs", "f.vxf", Family::VXF, false, [] { return vxfFile("W3N\0", 4); }, 48},
    {"W2N", "f.vxf", Family::VXF, false, [] { return vxfFile("W2N\0", 0); }, 48},
    {"VX3", "f.vxf", Family::VXF, false, [] { return vxfFile("VX3\0", 1); }, 48},
    {"QDF", "f.qdf", Family::QDF, false, qdfFile, 48},
    {"TM", "f.dat", Family::TM, false, tmFile, 120},
    {"N5F v3", "f.n5f", Family::N5F, false, [] { return npFile(0, 3, false); }, 44},
    {"N5F v1", "f.n5f", Family::N5F, false, [] { return npFile(0, 1, false); }, 44},
    {"N5F float", "f.n5f", Family::N5F, false, [] { return npFile(2, 3, false); }, 44},
    {"N5F pairs v4", "f.n5f", Family::N5F, false, [] { return npFile(4, 4, false); }, 44},
    {"P4F", "f.p4f", Family::N5F, true, [] { return npFile(0, 3, true); }, 44},
    {"JLM", "f.jlm", Family::VXF, false, jlmFile, 16},
    {"CSV", "f.csv", Family::CSV, false, csvFile, 40},
};
const FamilyCase& kVxf = kFamilies[0];
const FamilyCase& kJlm = kFamilies[11];

// Opens a file straight into view 1, past the header scan, so that every byte reaches the reader.
LoadOutcome loadDirect(const QString& path, const FamilyCase& f) {
    SelectionLists& sel = selection();
    sel.clear();
    sel.append(path, 0, 0);
    sel.SelFileType = f.fileType;
    sel.SelInterval = 1000;
    ViewState& view = views(1);
    copySelectionToView(view);
    LoadOptions options;
    options.gsMode = f.gsMode;
    return LoadRecording(view, options);
}

// Every load of a damaged file either succeeds or fails cleanly with an empty view.
void expectCleanOutcome(const LoadOutcome& out, const FamilyCase& f, const char* what,
                        qint64 where) {
    ViewState& v = views(1);
    if (out.ok()) {
        EXPECT_GT(v.PointCount, 0) << f.name << " " << what << " " << where;
    } else {
        EXPECT_TRUE(out.message == 560 || out.message == 587 || out.message == 578)
            << f.name << " " << what << " " << where << " message " << out.message;
        EXPECT_EQ(v.PointCount, 0) << f.name << " " << what << " " << where;
        EXPECT_EQ(v.Storage.MaxCols(), 0) << f.name << " " << what << " " << where;
    }
    EXPECT_FALSE(v.Loading);
    v.clearRecording();
}

TEST(FamilyRobustness, TheValidFilesLoad) {
    FixtureDir dir;
    for (const FamilyCase& f : kFamilies) {
        const LoadOutcome out = loadDirect(dir.write(f.fileName, f.build()), f);
        EXPECT_TRUE(out.ok()) << f.name << " message " << out.message;
        EXPECT_GE(views(1).PointCount, 3) << f.name;
        EXPECT_GE(views(1).ChannelCount, 2) << f.name;
    }
}

// Every cell of view 1, row by row.
QStringList storeTexts() {
    const clsStorage& s = views(1).Storage;
    QStringList texts;
    QString t;
    for (int r = 0; r <= s.MaxRows(); ++r)
        for (int c = 0; c <= s.MaxCols(); ++c)
            texts << (s.GetText(c, r, t) ? t : QStringLiteral("-"));
    return texts;
}

TEST(FamilyRobustness, AMappedFileAndAReadFileGiveTheSameStore) {
    FixtureDir dir;
    for (const FamilyCase& f : kFamilies) {
        const QString path = dir.write(f.fileName, f.build());
        ASSERT_TRUE(loadDirect(path, f).ok()) << f.name;
        const QStringList mapped = storeTexts();
        FileBytes::mapFiles = false;
        const LoadOutcome read = loadDirect(path, f);
        FileBytes::mapFiles = true;
        ASSERT_TRUE(read.ok()) << f.name;
        EXPECT_GT(mapped.size(), 6) << f.name;
        EXPECT_EQ(storeTexts(), mapped) << f.name;
    }
}

TEST(FamilyRobustness, PagesGivenBackAfterDecodingStillReadTheSame) {
    FixtureDir dir;
    QByteArray whole(5 * 4096 + 123, '\0');
    for (qsizetype i = 0; i < whole.size(); ++i) whole[i] = char(i * 7 + i / 4096);
    FileBytes bytes;
    ASSERT_TRUE(bytes.load(dir.write("pages.bin", whole)));
    bytes.dropRange(-5, 3 * 4096 + 17);
    bytes.dropRange(4096 + 1, 2 * 4096 + 5); // no whole page inside: nothing to do
    bytes.dropRange(2 * 4096, whole.size() + 4096);
    ASSERT_EQ(bytes.size(), whole.size());
    EXPECT_EQ(QByteArray(reinterpret_cast<const char*>(bytes.data()), bytes.size()), whole);
}

TEST(FamilyRobustness, TruncationAtManyOffsetsFailsCleanly) {
    FixtureDir dir;
    for (const FamilyCase& f : kFamilies) {
        const QByteArray whole = f.build();
        for (qint64 len = 0; len < whole.size();
             len += (len < 300 || len > whole.size() - 64 ? 1 : 29)) {
            const QString path = dir.write(f.fileName, whole.left(len));
            expectCleanOutcome(loadDirect(path, f), f, "truncated at", len);
        }
    }
}

TEST(FamilyRobustness, FlippedBytesNeverCrash) {
    FixtureDir dir;
    QRandomGenerator random(20240506);
    for (const FamilyCase& f : kFamilies) {
        const QByteArray whole = f.build();
        for (int round = 0; round < 300; ++round) {
            QByteArray damaged = whole;
            const int flips = 1 + int(random.bounded(6));
            for (int i = 0; i < flips; ++i) {
                const qint64 at = random.bounded(10) < 6 ? random.bounded(f.headBytes)
                                                         : random.bounded(qint64(whole.size()));
                damaged[at] = char(damaged[at] ^ char(1 << random.bounded(8)));
            }
            expectCleanOutcome(loadDirect(dir.write(f.fileName, damaged), f), f, "round", round);
        }
    }
}

TEST(FamilyRobustness, HugeCountsAllocateNothing) {
    FixtureDir dir;
    JlmDescription jlm;
    jlm.channelCount = 99999.0f;
    jlm.channels = {{"A", "", 0}};
    jlm.keys = jlmKeys(2024, 1, 1, 0, 0, 0, 2, 1);
    jlm.rows = {{1}, {2}};
    expectCleanOutcome(loadDirect(dir.write("h.jlm", buildJlm(jlm)), kJlm), kJlm, "jlm", 0);

    VxfDescription vxf = simpleVxf(3, 6, 1000, 10, [](int, int) { return qint16(1); });
    vxf.rowCount = 0xFFFFFFFF;
    vxf.messageCount = 0xFFFFFFF0;
    vxf.channelCount = 0x7FFFFFFF;
    expectCleanOutcome(loadDirect(dir.write("h.vxf", buildVxf(vxf)), kVxf), kVxf, "vxf", 0);
    EXPECT_FALSE(views(1).Loaded);
}

TEST(FamilyRobustness, VxfOffsetsThatOverflowReadNoMessages) {
    // Every head field 0xE0E0E0E0: the message block lies far beyond any 64-bit offset.
    FixtureDir dir;
    const QByteArray bytes = QByteArray("VX2") + QByteArray(41, char(0xE0));
    const LoadOutcome out = loadDirect(dir.write("o.vxf", bytes), kVxf);
    EXPECT_TRUE(views(1).ViewMessages.isEmpty());
    expectCleanOutcome(out, kVxf, "overflow", 0);
}

} // namespace

namespace {

// A file cut short after the selection recognised it (a recorder still writing it) fails with
// message 560 and leaves the view empty; so does a file gone by then.
TEST(FamilyRobustness, AFileCutAfterItsRecognitionFailsCleanly) {
    FixtureDir dir;
    const QString path = dir.write(
        "cut.vxf", buildVxf(simpleVxf(2, 50, 0, 10, [](int r, int) { return qint16(r); })));
    for (const qint64 left : {qint64(20), qint64(-1)}) {
        CommandFiles::ParseCommandFiles(CommandFiles::quotedCommandLine({path}), false);
        ASSERT_EQ(selection().SelFileCount, 1);
        if (left < 0)
            QFile::remove(path);
        else
            QFile(path).resize(left);
        ViewState& view = views(1);
        copySelectionToView(view);
        const LoadOutcome out = LoadRecording(view, LoadOptions());
        EXPECT_EQ(out.message, 560) << left;
        EXPECT_EQ(view.PointCount, 0) << left;
        dir.write("cut.vxf",
                  buildVxf(simpleVxf(2, 50, 0, 10, [](int r, int) { return qint16(r); })));
    }
}

} // namespace

#include "LoadHelpers.h"

#include "recording/RecorderText.h"
#include "recording/clsBatchInfo.h"
#include "support/VxfWriter.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

namespace {

using namespace fixtures;

QString decode(const QByteArray& bytes, qsizetype length, bool japanese) {
    return RecorderText::decode(reinterpret_cast<const uchar*>(bytes.constData()), bytes.size(), 0,
                                length, japanese);
}

TEST(RecorderText, RecorderCodesPairsAndTheEndOfAText) {
    const struct {
        QByteArray bytes;
        qsizetype length;
        bool japanese;
        QString text;
    } cases[] = {
        {"A\xF4Z", 3, false, u"AΩZ"_qs},
        {"\xF0\xF2\xF3\xF5", 4, true, u"\uFF9F23μ"_qs},
        {"\xF0\xF2\xF3\xF5", 4, false, u"\uFF9F23μ"_qs},
        {"ab\0cd", 5, false, u"ab"_qs},            // 0 ends the text
        {"\x93\xFA\x96\x7B", 4, true, u"日本"_qs}, // Shift-JIS pairs
        {"\xE9t\xE9", 3, false, u"été"_qs},        // one code page byte each
        {"\x93\xFA\x96\x7B", 3, true, u"日本"_qs}, // the pair crossing the limit
        {QByteArray("0123456789abcd\x93\xFA", 16), 15, true, u"0123456789abcd日"_qs},
        {"x\x93", 2, true, u"x?"_qs}, // a lead byte ending the buffer
    };
    for (const auto& c : cases)
        EXPECT_EQ(decode(c.bytes, c.length, c.japanese), c.text) << c.bytes.toHex().toStdString();
    EXPECT_EQ(decode("abc", 10, false), u"abc"_qs); // never beyond the buffer
    EXPECT_EQ(RecorderText::decode(nullptr, 0, 0, 16, true), QString());
}

// A recording with a batch block, in the narrow or the wide layout.
QByteArray batchRecording(const char* magic, int count, const QByteArray& texts) {
    VxfDescription d = simpleVxf(2, 5, 86400, 10, [](int r, int c) { return qint16(r * c); });
    d.magic = QByteArray(magic, 4);
    d.batchHead = batchHead("Batch-7", "LOT0042", count);
    d.batchBlock = texts;
    return buildVxf(d);
}

class BatchInfo : public RecordingTest {};

TEST_F(BatchInfo, TheBlockOfEitherLayoutShowsInTheCommandLine) {
    const QByteArray texts = batchTexts({"Operator", "Recipe"}, {"Sato", "R-12 \xF4"});
    for (const char* magic : {"VX2\0", "W3N\0"}) {
        const QString path = dir.write("batch.vxf", batchRecording(magic, 2, texts));
        ASSERT_TRUE(loadFiles({path}).ok()) << magic;
        EXPECT_TRUE(view.BatchInfoFound) << magic;
        QProcess p;
        p.start(QCoreApplication::applicationDirPath() + u"/../recview"_qs,
                {u"batch"_qs, u"--json"_qs, path});
        p.waitForFinished(30000);
        EXPECT_EQ(p.exitCode(), 0);
        const QJsonObject o = QJsonDocument::fromJson(p.readAllStandardOutput()).object();
        EXPECT_TRUE(o["hasBatchInfo"].toBool()) << magic;
        EXPECT_EQ(o["batchName"].toString(), u"Batch-7"_qs);
        EXPECT_EQ(o["lotNumber"].toString(), u"LOT0042"_qs);
        const QJsonArray pairs = o["texts"].toArray();
        ASSERT_EQ(pairs.size(), 2) << magic;
        EXPECT_EQ(pairs[1].toObject()["title"].toString(), u"Recipe"_qs);
        EXPECT_EQ(pairs[1].toObject()["context"].toString(), u"R-12 Ω"_qs);
    }
}

TEST_F(BatchInfo, CountZeroReadsNoTextsAndBadBlocksNeverStopTheRecording) {
    // Count 0 with nothing behind the body: the texts are not looked for.
    ASSERT_TRUE(loadFiles({dir.write("zero.vxf", batchRecording("VX2\0", 0, {}))}).ok());
    EXPECT_FALSE(view.BatchInfoFound);
    EXPECT_EQ(views(1).part<clsBatchInfo>().BatchName(), u"Batch-7"_qs);
    // A count whose texts run past the end of the file: no batch information, and the
    // recording opens as before.
    const QByteArray shortTexts = batchTexts({"Operator"}, {"Sato"});
    ASSERT_TRUE(loadFiles({dir.write("cut.vxf", batchRecording("VX2\0", 3, shortTexts))}).ok());
    EXPECT_FALSE(view.BatchInfoFound);
    EXPECT_EQ(view.PointCount, 5);
    EXPECT_EQ(views(1).part<clsBatchInfo>(), clsBatchInfo());
}

TEST_F(BatchInfo, ARecordingWithoutABlockAfterOneWithItClearsIt) {
    const QByteArray texts = batchTexts({"Operator"}, {"Sato"});
    ASSERT_TRUE(loadFiles({dir.write("a.vxf", batchRecording("VX2\0", 1, texts))}).ok());
    ASSERT_TRUE(views(1).part<clsBatchInfo>().HasBatchInfo());
    VxfDescription plain = simpleVxf(1, 3, 86400, 10, [](int r, int) { return qint16(r); });
    ASSERT_TRUE(loadFiles({dir.write("b.vxf", buildVxf(plain))}).ok());
    EXPECT_FALSE(views(1).part<clsBatchInfo>().HasBatchInfo());
    EXPECT_FALSE(view.BatchInfoFound);
}

TEST_F(BatchInfo, SavedAndLoadedAgainAndDamagedFilesLeaveItEmpty) {
    const QByteArray texts = batchTexts({"Operator", "Recipe"}, {"Sato", "R-12"});
    ASSERT_TRUE(loadFiles({dir.write("a.vxf", batchRecording("W3N\0", 2, texts))}).ok());
    const clsBatchInfo& read = views(1).part<clsBatchInfo>();
    const QString path = dir.path("BatchInfo.sys");
    ASSERT_TRUE(read.Save(path));
    clsBatchInfo loaded;
    ASSERT_TRUE(loaded.Load(path));
    EXPECT_EQ(loaded, read);
    EXPECT_EQ(loaded.flag(0), 0x5A);
    EXPECT_EQ(loaded.GetBatchTextContext(1), u"R-12"_qs);

    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    file.close();
    for (qsizetype cut = 0; cut < whole.size(); cut += 3) {
        dir.write("BatchInfo.sys", whole.left(cut));
        EXPECT_FALSE(loaded.Load(path)) << cut;
        EXPECT_EQ(loaded, clsBatchInfo()) << cut;
    }
    QByteArray hugeCount = whole;
    hugeCount[8 + 4 + 2 * 7 + 4 + 2 * 7 + 2] = char(0xFF); // into the pair count
    dir.write("BatchInfo.sys", hugeCount);
    EXPECT_FALSE(loaded.Load(path));
    EXPECT_FALSE(loaded.Load(dir.path("missing.sys")));
}

} // namespace

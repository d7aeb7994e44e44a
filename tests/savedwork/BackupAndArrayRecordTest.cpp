#include "RecordTestSupport.h"

#include "savedwork/BackupRecords.h"
#include "savedwork/BoundedArrays.h"
#include "savedwork/PenCircleRecords.h"

#include <limits>

using namespace RecordBytesAt;

using BackupAndArrayRecordTest = RecordDirs;

namespace {
const QString kWindBak = QStringLiteral("WindBak3.sys");
} // namespace

TEST_F(BackupAndArrayRecordTest, BackupsHaveTheirLengthsAndRoundTrip) {
    WindBakRecord wind;
    wind.WindowState = 2;
    wind.Window = {std::numeric_limits<qint32>::min(), -1, 1024,
                   std::numeric_limits<qint32>::max()};
    ASSERT_TRUE(WriteWindBak(kView, wind));
    const QByteArray w = readAll(AppPaths(3) + kWindBak);
    ASSERT_EQ(w.size(), 18);
    EXPECT_EQ(le(w, 2, 4), std::numeric_limits<qint32>::min());
    WindBakRecord windBack;
    ASSERT_TRUE(ReadWindBak(kView, windBack));
    EXPECT_EQ(windBack, wind);

    TrndBakRecord trend;
    for (size_t i = 0; i < trend.Bytes.size(); ++i) trend.Bytes[i] = quint8(255 - i);
    ASSERT_TRUE(WriteTrndBak(10, trend));
    EXPECT_EQ(readAll(AppPaths(3) + QStringLiteral("TrndBak10.sys")).size(), 90);
    TrndBakRecord trendBack;
    ASSERT_TRUE(ReadTrndBak(10, trendBack));
    EXPECT_EQ(trendBack, trend);

    TrendViewState& t = trendState(kView);
    t.MultiScaleFlag = -1;
    t.MultiScale[0] = {-300000.0, 1E+308};
    t.MultiScale[127] = {0.125, 300000.0};
    ASSERT_TRUE(WriteMultiScaleBak(kView));
    const QByteArray m = readAll(AppPaths(3) + QStringLiteral("MultiScaleBak3.sys"));
    ASSERT_EQ(m.size(), 2052);
    EXPECT_EQ(f64(m, 4 + 8), 1E+308);
    const auto before = t.MultiScale;
    t.reset();
    ASSERT_TRUE(ReadMultiScaleBak(kView));
    EXPECT_EQ(t.MultiScaleFlag, -1);
    EXPECT_EQ(t.MultiScale, before);
}

TEST_F(BackupAndArrayRecordTest, AnEmptyOrMissingBackupLeavesTheRecord) {
    WindBakRecord wind;
    wind.Window = {1, 2, 3, 4};
    const WindBakRecord kept = wind;
    EXPECT_FALSE(ReadWindBak(kView, wind)); // missing
    writeAll(AppPaths(3) + kWindBak, QByteArray());
    EXPECT_FALSE(ReadWindBak(kView, wind)); // empty
    EXPECT_EQ(wind, kept);

    trendState(kView).MultiScale[5] = {1.0, 2.0};
    writeAll(AppPaths(3) + QStringLiteral("MultiScaleBak3.sys"), QByteArray());
    EXPECT_FALSE(ReadMultiScaleBak(kView));
    EXPECT_EQ(trendState(kView).MultiScale[5], (std::array<double, 2>{1.0, 2.0}));
}

TEST_F(BackupAndArrayRecordTest, AShortBackupReadsZeroBeyondItsEnd) {
    WindBakRecord wind;
    wind.Window = {1, 2, 3, 4};
    writeAll(AppPaths(3) + kWindBak, QByteArray("\x01\x00\x07\x00\x00", 5));
    ASSERT_TRUE(ReadWindBak(kView, wind));
    EXPECT_EQ(wind.WindowState, 1);
    EXPECT_EQ(wind.Window, (std::array<qint32, 4>{7, 0, 0, 0}));
}

TEST_F(BackupAndArrayRecordTest, MultiScaleResetClearsBothWordsOfEveryRow) {
    TrendViewState& t = trendState(kView);
    for (auto& row : t.MultiScale) row = {1.5, 2.5};
    ResetMultiScaleBak(kView);
    for (const auto& row : t.MultiScale) EXPECT_EQ(row, (std::array<double, 2>{0.0, 0.0}));
}

TEST_F(BackupAndArrayRecordTest, PenDataRoundTripsWithItsBoundsAndEmpty) {
    PenDataRecord pens;
    pens.Lower = 1;
    pens.Color = {0xFFFFFFFFu, 0x0000FFu, 0u};
    pens.Pattern = {1, 2, 3};
    pens.Width = {-32768, 1, 32767};
    pens.Symbol = {1, 10, 16};
    pens.SymbolSize = {4, 4, 4};
    pens.Shown = {-1, 0, -1};
    for (const PenDataRecord& written : {pens, PenDataRecord()}) {
        ASSERT_TRUE(WritePenData(written));
        carryOver(RecordNames::PenData);
        PenDataRecord back;
        back.Lower = 7;
        ASSERT_TRUE(ReadPenData(back));
        EXPECT_EQ(back, written);
    }
}

TEST_F(BackupAndArrayRecordTest, CircularMarksUseNoDataForAMissingMark) {
    CrlDataRecord marks;
    marks.Marks = {QStringLiteral("開始"), QString(), QStringLiteral("end")};
    ASSERT_TRUE(WritecrlData(marks));
    EXPECT_TRUE(readAll(AppPaths(1) + RecordNames::crlData).contains("NoData"));
    carryOver(RecordNames::crlData);
    CrlDataRecord back;
    ASSERT_TRUE(ReadcrlData(back));
    EXPECT_EQ(back, marks);
}

TEST_F(BackupAndArrayRecordTest, DamagedArrayRecordsAreRefusedAndLeaveTheRecord) {
    BoundedArray texts;
    texts.kind = BoundedArray::Kind::Text;
    texts.texts = {QStringLiteral("a"), QStringLiteral("bc")};
    BoundedArray numbers;
    numbers.kind = BoundedArray::Kind::Float64;
    numbers.lower = -3;
    numbers.numbers = {1.5, -2.5};
    const QByteArray good = BoundedArrays::encode({texts, numbers});
    QVector<BoundedArray> decoded;
    ASSERT_TRUE(BoundedArrays::decode(good, decoded));
    ASSERT_EQ(decoded.size(), 2);
    EXPECT_EQ(decoded[0].texts, texts.texts);
    EXPECT_EQ(decoded[1].upper(), -2);
    EXPECT_EQ(decoded[1].numbers, numbers.numbers);

    // Version, kind, upper bound and text length of the first array spoiled in turn.
    QByteArray cases[] = {good, good, good, good, QByteArray(), good.left(good.size() - 1)};
    const std::pair<int, qint64> spoilt[] = {{0, 2}, {8, 9}, {16, 0x7FFFFFFF}, {20, 1000}};
    for (size_t i = 0; i < std::size(spoilt); ++i)
        putLe(cases[i], spoilt[i].first, 4, spoilt[i].second);
    for (const QByteArray& bytes : cases) {
        QVector<BoundedArray> kept{numbers};
        EXPECT_FALSE(BoundedArrays::decode(bytes, kept));
        EXPECT_EQ(kept.size(), 1);
    }

    CrlDataRecord marks;
    marks.Marks = {QStringLiteral("kept")};
    writeAll(AppPaths(2) + RecordNames::crlData, cases[0]);
    EXPECT_FALSE(ReadcrlData(marks));
    EXPECT_EQ(marks.Marks, QStringList{QStringLiteral("kept")});
}

#include "RecordTestSupport.h"

#include "app/AppPaths.h"
#include "savedwork/BackupRecords.h"
#include "savedwork/BoundedArrays.h"
#include "savedwork/PenCircleRecords.h"
#include "savedwork/RecordNames.h"
#include "trend/TrendViewState.h"

#include <limits>

using namespace RecordBytesAt;

using BackupAndArrayRecordTest = RecordDirs;

TEST_F(BackupAndArrayRecordTest, BackupsHaveTheirLengthsAndRoundTrip) {
    WindBakRecord wind;
    wind.WindowState = 2;
    wind.Window = {std::numeric_limits<qint32>::min(), -1, 1024,
                   std::numeric_limits<qint32>::max()};
    ASSERT_TRUE(WriteWindBak(kView, wind));
    const QByteArray w = readAll(AppPaths(3) + QStringLiteral("WindBak3.sys"));
    ASSERT_EQ(w.size(), 18);
    EXPECT_EQ(le(w, 0, 2), 2);
    EXPECT_EQ(le(w, 2, 4), std::numeric_limits<qint32>::min());
    EXPECT_EQ(le(w, 14, 4), std::numeric_limits<qint32>::max());
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
    EXPECT_EQ(le(m, 0, 4), -1);
    EXPECT_EQ(f64(m, 4 + 8), 1E+308);
    EXPECT_EQ(f64(m, 4 + 16 * 127), 0.125);
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
    writeAll(AppPaths(3) + QStringLiteral("WindBak3.sys"), QByteArray());
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
    writeAll(AppPaths(3) + QStringLiteral("WindBak3.sys"), QByteArray("\x01\x00\x07\x00\x00", 5));
    ASSERT_TRUE(ReadWindBak(kView, wind));
    EXPECT_EQ(wind.WindowState, 1);
    EXPECT_EQ(wind.Window, (std::array<qint32, 4>{7, 0, 0, 0}));
}

TEST_F(BackupAndArrayRecordTest, MultiScaleResetClearsBothWordsOfEveryRow) {
    TrendViewState& t = trendState(kView);
    t.MultiScaleFlag = 1;
    for (auto& row : t.MultiScale) row = {1.5, 2.5};
    ResetMultiScaleBak(kView);
    for (const auto& row : t.MultiScale) EXPECT_EQ(row, (std::array<double, 2>{0.0, 0.0}));
}

TEST_F(BackupAndArrayRecordTest, PenDataRoundTripsWithItsBounds) {
    PenDataRecord pens;
    pens.Lower = 1;
    pens.Color = {0xFFFFFFFFu, 0x0000FFu, 0u};
    pens.Pattern = {1, 2, 3};
    pens.Width = {-32768, 1, 32767};
    pens.Symbol = {1, 10, 16};
    pens.SymbolSize = {4, 4, 4};
    pens.Shown = {-1, 0, -1};
    ASSERT_TRUE(WritePenData(pens));
    carryOver(RecordNames::PenData);
    PenDataRecord back;
    ASSERT_TRUE(ReadPenData(back));
    EXPECT_EQ(back, pens);

    PenDataRecord empty;
    ASSERT_TRUE(WritePenData(empty));
    carryOver(RecordNames::PenData);
    ASSERT_TRUE(ReadPenData(back));
    EXPECT_EQ(back, empty);
}

TEST_F(BackupAndArrayRecordTest, CircularMarksUseNoDataForAMissingMark) {
    CrlDataRecord marks;
    marks.Lower = 0;
    marks.Marks = {QStringLiteral("開始"), QString(), QStringLiteral("end")};
    ASSERT_TRUE(WritecrlData(marks));
    const QByteArray b = readAll(AppPaths(1) + RecordNames::crlData);
    EXPECT_TRUE(b.contains("NoData"));
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
    EXPECT_EQ(decoded[1].lower, -3);
    EXPECT_EQ(decoded[1].upper(), -2);
    EXPECT_EQ(decoded[1].numbers, numbers.numbers);

    QByteArray badVersion = good;
    putLe(badVersion, 0, 4, 2);
    QByteArray badKind = good;
    putLe(badKind, 8, 4, 9);
    QByteArray hugeBound = good;
    putLe(hugeBound, 16, 4, 0x7FFFFFFF);
    QByteArray longText = good;
    putLe(longText, 20, 4, 1000);
    const QByteArray cases[] = {
        QByteArray(), good.left(good.size() - 1), badVersion, badKind, hugeBound, longText};
    for (const QByteArray& bytes : cases) {
        QVector<BoundedArray> kept{numbers};
        EXPECT_FALSE(BoundedArrays::decode(bytes, kept));
        EXPECT_EQ(kept.size(), 1);
    }

    CrlDataRecord marks;
    marks.Marks = {QStringLiteral("kept")};
    writeAll(AppPaths(2) + RecordNames::crlData, badVersion);
    EXPECT_FALSE(ReadcrlData(marks));
    EXPECT_EQ(marks.Marks, QStringList{QStringLiteral("kept")});
}

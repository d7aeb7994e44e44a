#include "recording/clsStorage.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

QString cell(const clsStorage& s, int col, int row) {
    QString t;
    EXPECT_TRUE(s.GetText(col, row, t));
    return t;
}

clsStorage sized(int cols, int rows) {
    clsStorage s;
    s.setMaxCols(cols);
    s.setMaxRows(rows);
    return s;
}

TEST(Storage, TextCellsFollowTheEightCharacterRule) {
    clsStorage s = sized(4, 3);
    s.SetText(2, 1, QStringLiteral("123456789"));
    s.SetText(2, 2, QStringLiteral("        "));
    s.SetText(2, 3, QStringLiteral(" 12.5"));
    EXPECT_EQ(cell(s, 2, 1), QLatin1String("12345678"));
    EXPECT_EQ(cell(s, 2, 2), QString());
    EXPECT_EQ(cell(s, 2, 3), QLatin1String("12.5"));
    EXPECT_EQ(cell(s, 3, 1), QString()); // never written
    QString t;
    EXPECT_FALSE(s.GetText(1, 4, t));
}

TEST(Storage, SaveAndLoadRoundTrip) {
    QTemporaryDir dir;
    clsStorage s = sized(4, 3);
    quint16* v = s.beginSegment(2, 1, 3, CellFormat::plain(2));
    v[1] = 1234, v[2] = quint16(qint16(-32767)), v[3] = 32761;
    s.SetText(4, 2, QStringLiteral("温度12345"));
    s.setDataColCnt(4);
    const QString path = dir.filePath(QStringLiteral("grid.bin"));
    ASSERT_TRUE(s.SaveToFile(path));
    EXPECT_EQ(QFileInfo(path).size(), 8 + 5 * 4 * 8);

    clsStorage back;
    ASSERT_TRUE(back.LoadFromFile(path));
    EXPECT_EQ(back.MaxRows(), 3);
    EXPECT_EQ(cell(back, 2, 1), QLatin1String("12.34"));
    EXPECT_EQ(cell(back, 2, 2), QLatin1String("UNDER"));
    EXPECT_EQ(cell(back, 2, 3), QString());
    EXPECT_EQ(cell(back, 4, 2), QStringLiteral("温度1234")); // 8 bytes of cp932
}

TEST(Storage, LoadOfABadFileLeavesTheStoreAsItWas) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("bad.bin"));
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(QByteArray("\x05\0\0\0\x02\0\0\0short", 13));
    f.close();
    clsStorage s = sized(2, 1);
    s.SetText(1, 1, QStringLiteral("keep"));
    EXPECT_FALSE(s.LoadFromFile(path));
    EXPECT_FALSE(s.TryLoadFile(dir.filePath(QStringLiteral("missing")), 1));
    EXPECT_EQ(cell(s, 1, 1), QLatin1String("keep"));
}

} // namespace

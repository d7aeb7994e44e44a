#include "savedwork/clsAlmStyle.h"
#include "savedwork/clsSaveParaData.h"
#include "savedwork/clsTrndParaSet.h"

#include <gtest/gtest.h>

#include <memory>

TEST(CopyStructure, TrndParaSetEnablesExactlyTheLinesWithASourceColumn) {
    auto pair = std::make_unique<clsTrndParaSet>();
    pair->OldRecord.Fixed.ViewStart = 45000.25;
    pair->OldRecord.SourceColumn[0] = 0;
    pair->OldRecord.SourceColumn[1] = 5;
    pair->OldRecord.SourceColumn[128] = -1;
    pair->OldRecord.ScaleHigh[128] = 1E+308;
    pair->OldRecord.ViewTail = {1, 2, 3, 4};
    pair->NewRecord.Enabled[300] = 9; // the copy starts from a clean record
    bool result = false;
    EXPECT_TRUE(pair->CopyStructure(result));
    EXPECT_TRUE(result);
    const TrndParaSetNew& n = pair->NewRecord;
    EXPECT_EQ(n.Fixed.ViewStart, 45000.25);
    const std::pair<int, int> enabled[] = {{0, 0}, {1, 1}, {2, 0}, {128, 1}, {300, 0}};
    for (const auto& [line, value] : enabled) EXPECT_EQ(n.Enabled[line], value) << line;
    EXPECT_EQ(n.SourceColumn[1], 5);
    EXPECT_EQ(n.ScaleHigh[128], 1E+308);
    EXPECT_EQ(n.ScaleHigh[129], 0);
    EXPECT_EQ(n.ViewTail, pair->OldRecord.ViewTail);
}

TEST(CopyStructure, AlmStyleEntriesMoveFromLevelTimes128ToLevelTimes372) {
    auto pair = std::make_unique<clsAlmStyle>();
    pair->OldRecord.Symbol[2][5] = 7;
    pair->OldRecord.Color[5][127] = 0xABCDEF;
    pair->OldRecord.Size[1][0] = 12;
    bool result = false;
    EXPECT_TRUE(pair->CopyStructure(result));
    const QByteArray oldBytes = pair->OldRecord.toBytes();
    const QByteArray newBytes = pair->NewRecord.toBytes();
    EXPECT_EQ(oldBytes.size(), 6144);
    EXPECT_EQ(newBytes.size(), 17856);
    EXPECT_EQ(newBytes.mid(2 * (2 * 372 + 5), 2), QByteArray("\x07\x00", 2));
    EXPECT_EQ(oldBytes.mid(2 * (2 * 128 + 5), 2), newBytes.mid(2 * (2 * 372 + 5), 2));
    EXPECT_EQ(oldBytes.mid(1536 + 4 * (5 * 128 + 127), 4),
              newBytes.mid(4464 + 4 * (5 * 372 + 127), 4));
    EXPECT_EQ(newBytes.mid(13392 + 2 * 372, 2), QByteArray("\x0C\x00", 2));
    EXPECT_EQ(pair->NewRecord.Symbol[2][128], 0);
}

TEST(CopyStructure, SaveParaDataChangesTheWidthsAndKeepsTheZoomRows) {
    auto pair = std::make_unique<clsSaveParaData>();
    SaveParaDataOld& o = pair->OldRecord;
    o.ZoomLevel = 3;
    o.BarPosition = -32768;
    o.Flags = {-1, 0, -1};
    o.ZoomX[0][0] = 0x11223344;
    o.ZoomX[2][100] = 77;
    o.ZoomY[0][0] = 1.0;
    o.ScrollBars[1] = {1, 2, 3, 4, 5};
    bool result = false;
    EXPECT_TRUE(pair->CopyStructure(result));
    const SaveParaDataNew& n = pair->NewRecord;
    EXPECT_EQ(n.ZoomLevel, 3);
    EXPECT_EQ(n.BarPosition, -32768);
    EXPECT_EQ(n.Flags, (std::array<qint16, 3>{-1, 0, -1}));
    EXPECT_EQ(n.ZoomX, o.ZoomX);
    EXPECT_EQ(n.ZoomY, o.ZoomY);
    EXPECT_EQ(n.ScrollBars, o.ScrollBars);

    const QByteArray ob = o.toBytes();
    const QByteArray nb = n.toBytes();
    ASSERT_EQ(ob.size(), 3742);
    ASSERT_EQ(nb.size(), 3732);
    EXPECT_EQ(ob.mid(8, 4), QByteArray("\x44\x33\x22\x11"));
    EXPECT_EQ(nb.mid(16, 4), QByteArray("\x44\x33\x22\x11"));
    EXPECT_EQ(ob.mid(1248, 8), nb.mid(1228, 8));
    EXPECT_EQ(nb.mid(1228, 8), QByteArray("\0\0\0\0\0\0\xF0\x3F", 8));
}

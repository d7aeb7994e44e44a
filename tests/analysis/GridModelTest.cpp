#include "ListFixture.h"

#include <utility>
#include <vector>

using namespace listtest;

// A text asked for fills its block of 500 rows once; only a few blocks are held, so reading
// all of a long list never holds more than those.
TEST(GridModel, FillsBlocksOnDemand) {
    ListView v(twoChannels(3000));
    std::vector<std::pair<qint32, qint32>> asked;
    v.grid.setVirtualFill([&](qint32 row, qint32 count, int direction) {
        asked.emplace_back(row, count);
        return v.list->fillBlock(row, count, direction);
    });
    EXPECT_EQ(v.cell(0, 1234), QStringLiteral("1234"));
    EXPECT_EQ(v.cell(0, 1001), QStringLiteral("1001"));
    EXPECT_EQ(v.cell(0, 1500), QStringLiteral("1500"));
    ASSERT_EQ(asked.size(), 1u);
    EXPECT_EQ(asked[0], std::make_pair(1001, 500));
    EXPECT_EQ(v.grid.heldRows(), 500);

    for (qint32 row = 1; row <= 3000; row += 97) ASSERT_EQ(v.cell(0, row), QString::number(row));
    EXPECT_LE(v.grid.heldRows(), GridModel::kCachedBlocks * 500);
    EXPECT_EQ(v.cell(0, 3000), QStringLiteral("3000"));
    EXPECT_EQ(v.cell(0, 3001), QString());

    // The reply of a fill that reaches the last row; other direction codes fill nothing.
    const GridModel::VirtualReply last = v.list->fillBlock(2501, 500, 1);
    EXPECT_EQ(last.rows, 500);
    EXPECT_TRUE(last.atBottom);
    EXPECT_FALSE(last.atTop);
    EXPECT_EQ(v.list->fillBlock(1, 500, 6).rows, 0);
    v.grid.refreshVirtual();
    EXPECT_EQ(v.grid.heldRows(), 0);
}

// Redraw off holds the change notices back and hands them over once it is on again.
TEST(GridModel, RedrawHoldsNotices) {
    GridModel grid;
    int shapes = 0;
    int cells = 0;
    grid.shapeChanged = [&] { ++shapes; };
    grid.cellsChanged = [&] { ++cells; };
    grid.setReDraw(false);
    grid.setMaxCols(3);
    grid.setMaxRows(10);
    grid.setHeaderText(2, QStringLiteral("A"));
    grid.setVirtualMode(true);
    EXPECT_EQ(shapes + cells, 0);
    grid.setReDraw(true);
    EXPECT_EQ(shapes, 1);
    EXPECT_EQ(cells, 1);
    EXPECT_EQ(grid.text(2, 0), QStringLiteral("A"));

    // Without virtual mode the grid holds what is written.
    grid.setVirtualMode(false);
    grid.setText(1, 7, QStringLiteral("x"));
    grid.setForeColor(1, 7, 0xFF);
    EXPECT_EQ(grid.text(1, 7), QStringLiteral("x"));
    EXPECT_EQ(grid.foreColor(1, 7), 0xFFu);
    grid.setText(4, 7, QStringLiteral("outside"));
    EXPECT_EQ(grid.text(4, 7), QString());
}

#include "analysis/widgets/frmBatchInfo.h"
#include "trendwidgets/TrendWindowFixture.h"

#include <QAction>
#include <QTableWidget>

#include <gtest/gtest.h>

namespace {

fixtures::VxfDescription recording(int texts) {
    fixtures::VxfDescription d =
        fixtures::simpleVxf(2, 50, 86400 * 30, 10, trendwidgets::LoadedWindow::ramp);
    d.batchHead = fixtures::batchHead("Batch-7", "LOT0042", texts);
    d.batchBlock = fixtures::batchTexts({"Operator", "Recipe"}, {"Sato", "R-12"});
    return d;
}

// Command 13 stands enabled only while the recording has batch information, and opens one
// table a view: batch name and lot number first, then the pairs.
TEST(frmBatchInfo, TheViewsBatchCommandOpensTheTable) {
    installBatchInfo();
    trendwidgets::LoadedWindow with(3, recording(2));
    ASSERT_TRUE(with.loaded);
    auto* command = with.window->findChild<QAction*>("Toolbar1_13");
    ASSERT_NE(command, nullptr);
    EXPECT_TRUE(command->isEnabled());
    with.window->toolbar1Command(13);
    with.window->toolbar1Command(13);
    const auto windows = with.window->findChildren<frmBatchInfo*>();
    ASSERT_EQ(windows.size(), 1);
    const QTableWidget* table = windows[0]->spdBatchInfo();
    ASSERT_EQ(table->rowCount(), 4);
    EXPECT_EQ(table->item(0, 1)->text(), QStringLiteral("Batch-7"));
    EXPECT_EQ(table->item(1, 1)->text(), QStringLiteral("LOT0042"));
    EXPECT_EQ(table->item(3, 0)->text(), QStringLiteral("Recipe"));
    EXPECT_EQ(table->item(3, 1)->text(), QStringLiteral("R-12"));

    trendwidgets::LoadedWindow without(4, recording(0));
    ASSERT_TRUE(without.loaded);
    EXPECT_FALSE(without.window->findChild<QAction*>("Toolbar1_13")->isEnabled());
    without.window->toolbar1Command(13);
    EXPECT_TRUE(without.window->findChildren<frmBatchInfo*>().isEmpty());
}

} // namespace

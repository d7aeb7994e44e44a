#include "analysis/widgets/frmSearch.h"
#include "base/LanguageTable.h"
#include "trend/ChannelTexts.h"
#include "trendwidgets/TrendWindowFixture.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTableView>

#include <gtest/gtest.h>

namespace {

// Command 7 opens the view's search; a search lists its hits, a click brings the trend there,
// and a search without hits says so and shows no grid.
TEST(frmSearch, SearchesListsAndJumps) {
    installSearch();
    trendwidgets::LoadedWindow w(7, 2, 300);
    ASSERT_TRUE(w.loaded);
    w.window->toolbar1Command(7);
    const auto windows = w.window->findChildren<frmSearch*>();
    ASSERT_EQ(windows.size(), 1);
    frmSearch* search = windows[0];
    search->setKind(Search::SearchKindValue);
    EXPECT_EQ(search->channelCombo()->count(), 3);      // two tags and "all channels"
    search->Text1()->setText(ChannelValueText(9.9, 0)); // raw 99, one decimal
    search->cmdSearch();
    ASSERT_EQ(search->result().hits.size(), 3u); // channel 1 is row % 100: rows 99, 199, 299
    EXPECT_TRUE(search->vaSpread1()->isVisibleTo(search));
    EXPECT_EQ(search->vaSpread1()->model()->rowCount(), 3);
    search->hitClicked(1);
    EXPECT_EQ(w.trend().chart().axisX().origin(), 198);
    search->Text1()->setText(ChannelValueText(50.5, 0));
    search->cmdSearch();
    EXPECT_TRUE(search->result().hits.empty());
    ASSERT_FALSE(w.sink.calls().isEmpty());
    EXPECT_EQ(w.sink.last().text, MsgText(101));
}

} // namespace

#include "savedwork/SavedTrendSettings.h"
#include "RecordTestSupport.h"
#include "savedwork/BackupRecords.h"
#include "trend/TrendFixture.h"
#include "trend/TrendView.h"

#include <gtest/gtest.h>

namespace {

// A multi-scale table saved with "use these scales when the files are read" replaces the
// channels' scales at the next load; without the flag the view starts from its channels.
using SavedTrendSettings = RecordDirs;

TEST_F(SavedTrendSettings, SavedScaleTableRulesTheNextLoad) {
    installSavedTrendSettings();
    const std::vector<std::vector<qint16>> raw = {{10, 20, 30}, {5, 6, 7}};
    trendtest::makeView(4, raw, 0);
    TrendViewState& st = trendState(4);
    st.MultiScaleFlag = 1;
    st.MultiScale[0] = {-50, 50};
    st.MultiScale[1] = {0, 10};
    ASSERT_TRUE(WriteMultiScaleBak(4));

    trendtest::makeView(4, raw, 0);
    {
        TrendView view(4);
        ASSERT_TRUE(view.afterLoad());
    }
    EXPECT_EQ(st.ScaleType, ScaleType::MultiScale);
    EXPECT_TRUE(st.ScalePercentMode);
    EXPECT_EQ(views(4).Channels.ChScaleLow[1], QLatin1String("-50"));
    EXPECT_EQ(views(4).Channels.ChScaleHigh[2], QLatin1String("10"));

    st.MultiScaleFlag = 0;
    ASSERT_TRUE(WriteMultiScaleBak(4));
    trendtest::makeView(4, raw, 0);
    {
        TrendView view(4);
        ASSERT_TRUE(view.afterLoad());
    }
    EXPECT_FALSE(st.ScalePercentMode);
    EXPECT_EQ(views(4).Channels.ChScaleLow[1], QLatin1String("0"));
    TrendView::setSavedSettingsReader({});
}

} // namespace

#include "recording/CommandFiles.h"
#include "recording/RecordingLoader.h"
#include "recording/SelectionLists.h"
#include "recording/ViewSlots.h"
#include "recording/ViewState.h"
#include "support/RecordingFixture.h"
#include "support/VxfWriter.h"
#include "trend/AlarmMarks.h"
#include "trend/AlarmTable.h"
#include "trend/TrendView.h"
#include "trend/TrendViewState.h"

#include <gtest/gtest.h>

namespace {

qint16 wave(int row, int channel) {
    return qint16(channel * 100 + row % 50);
}

// Loads a fresh VXF of `channels` channels into a view as the windows do, then the trend's
// after-load step.
bool loadInto(TrendView& trend, int viewNumber, FixtureDir& dir, int channels) {
    const QString path =
        dir.write(QStringLiteral("v%1c%2.vxf").arg(viewNumber).arg(channels),
                  fixtures::buildVxf(fixtures::simpleVxf(channels, 300, 86400 * 40, 10, wave)));
    selection().clear();
    CommandFiles::ParseCommandFiles(CommandFiles::quotedCommandLine({path}), false);
    copySelectionToView(views(viewNumber));
    return LoadRecording(views(viewNumber), LoadOptions()).ok() && trend.afterLoad();
}

// What a view carries from one load to the next if its state is not reset.
void dirty(int viewNumber) {
    TrendViewState& st = trendState(viewNumber);
    st.ScaleType = ScaleType::MultiScale;
    st.ScalePercentMode = true;
    st.MultiScaleShown.fill(true);
    st.TimeLabelInterval = {600, 60};
    st.AxisChannel = {3, 4};
    st.ZoomLevel = 4;
    AlarmMarks::ShowAlarmMarks(viewNumber) = true;
    alarmTable(viewNumber).resize(10, 2);
}

void expectSameState(int viewNumber, int freshNumber) {
    const TrendViewState& st = trendState(viewNumber);
    const TrendViewState& fresh = trendState(freshNumber);
    EXPECT_EQ(st.ScaleType, fresh.ScaleType);
    EXPECT_EQ(st.ScalePercentMode, fresh.ScalePercentMode);
    EXPECT_EQ(st.MultiScaleShown, fresh.MultiScaleShown);
    EXPECT_EQ(st.TimeLabelInterval, fresh.TimeLabelInterval);
    EXPECT_EQ(st.AxisChannel, fresh.AxisChannel);
    EXPECT_EQ(st.ZoomLevel, fresh.ZoomLevel);
    EXPECT_EQ(AlarmMarks::ShowAlarmMarks(viewNumber), AlarmMarks::ShowAlarmMarks(freshNumber));
    EXPECT_EQ(alarmTable(viewNumber).points(), alarmTable(freshNumber).points());
}

TEST(ViewStateReset, SecondLoadIntoAViewStartsFromAFreshState) {
    FixtureDir dir;
    TrendView a(6), fresh(7);
    ASSERT_TRUE(loadInto(a, 6, dir, 4));
    dirty(6);
    ASSERT_TRUE(loadInto(a, 6, dir, 2));
    ASSERT_TRUE(loadInto(fresh, 7, dir, 2));
    expectSameState(6, 7);
    EXPECT_EQ(views(6).ChannelCount, 2);
}

TEST(ViewStateReset, ASlotTakenAgainForgetsTheViewBefore) {
    FixtureDir dir;
    setViewInUse(7, true);
    {
        TrendView old(8);
        ASSERT_TRUE(loadInto(old, 8, dir, 3));
        dirty(8);
    }
    setViewInUse(7, false);
    EXPECT_EQ(views(8).FileCount, 0);
    setViewInUse(7, true);
    EXPECT_EQ(views(8).PointCount, 0);
    EXPECT_EQ(trendState(8).ScaleType, TrendViewState().ScaleType);
    EXPECT_EQ(trendState(8).TimeLabelInterval, TrendViewState().TimeLabelInterval);
    EXPECT_FALSE(AlarmMarks::ShowAlarmMarks(8));
    EXPECT_EQ(alarmTable(8).points(), 0);
    setViewInUse(7, false);
}

} // namespace

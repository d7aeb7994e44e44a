#include "platform/ChartModel.h"
#include "ChartTestSources.h"

#include <gtest/gtest.h>

namespace {

TEST(ChartModel, PointsAreNumberedFromOneAndXDefaultsToIndex) {
    ChartModel model;
    model.setSeriesCount(2);
    model.setPointCount(1, 5);
    EXPECT_EQ(model.pointCount(2), 0);
    EXPECT_EQ(model.X(1, 5), 4);
    EXPECT_EQ(model.Y(1, 3), H); // new points are holes
    model.setY(1, 3, 2.5);
    model.setX(1, 3, 10);
    EXPECT_EQ(model.Y(1, 3), 2.5);
    EXPECT_EQ(model.X(1, 3), 10);
    // Outside the series nothing is set and the hole is read.
    model.setY(1, 6, 1);
    model.setY(3, 1, 1);
    EXPECT_EQ(model.Y(1, 6), H);
    EXPECT_EQ(model.Y(3, 1), H);
    EXPECT_EQ(model.Maximum(3), H);
}

TEST(ChartModel, SourcedSeriesReadsThroughTheSourceWithSparseOverrides) {
    ChartModel model;
    model.setSeriesCount(1);
    model.setSeriesSource(1, std::make_unique<LookupSource>(std::vector<quint16>{1, 2, 0, 4}, 0.5));
    EXPECT_EQ(model.pointCount(1), 4);
    EXPECT_EQ(model.Y(1, 1), 0.5);
    EXPECT_EQ(model.Y(1, 3), H);
    EXPECT_EQ(model.Maximum(1), 2);
    model.setY(1, 2, 9);
    EXPECT_EQ(model.Maximum(1), 9);     // statistics and range follow the change
    EXPECT_EQ(model.axisY().max(), 10); // the maximum 9 stays inside the frame
    // A point count set on a sourced series leaves a stored series of holes.
    model.setPointCount(1, 2);
    EXPECT_EQ(model.Y(1, 1), H);
}

TEST(ChartModel, SeriesViewFollowsItsChannelWhenRefilled) {
    ChartModel model;
    model.setSeriesCount(2);
    auto source = std::make_unique<LookupSource>(std::vector<quint16>{1, 2, 3, 4, 5});
    LookupSource* channel = source.get();
    model.setSeriesSource(1, std::move(source));
    model.setSeriesView(2, 1, 4, 2); // points 2..4, given in either order
    EXPECT_EQ(model.pointCount(2), 3);
    EXPECT_EQ(model.Y(2, 1), 2);
    channel->raw()[2] = 9; // the store was refilled
    model.refreshSeries(1);
    EXPECT_EQ(model.Y(2, 2), 9);
    EXPECT_EQ(model.Maximum(2), 9);
    // Points of the view beyond the end of the channel read as holes.
    model.setSeriesView(2, 1, 4, 7);
    EXPECT_EQ(model.Y(2, 2), 5);
    EXPECT_EQ(model.Y(2, 3), H);
}

TEST(ChartModel, StatisticsOfSeriesAndRanges) {
    ChartModel model;
    model.setSeriesCount(1);
    model.setSeriesValues(1, {4, H, 1, 3, 2});
    EXPECT_EQ(model.Stat5(1), 2.5);
    const SeriesStatistics range = model.statistics(1, 4, 2); // points 2..4
    EXPECT_EQ(range.valueCount, 2);
    EXPECT_EQ(range.Stat5, 2);
    EXPECT_EQ(model.statistics(1, 3, 3).StdDev, 0);
}

TEST(ChartModel, AutomaticRangeTakesShownSeriesWithoutHoles) {
    ChartModel model;
    model.setSeriesCount(3);
    model.setSeriesValues(1, {0.2, H, 7.3, 1});
    model.setSeriesValues(2, {100, 200});
    model.setSeriesValues(3, {-50, 50});
    model.setDisplayState(2, Chart::kDisplayHidden);
    model.setSeriesInAutoRange(3, false); // a cursor line
    EXPECT_EQ(model.axisY().min(), 0);
    EXPECT_EQ(model.axisY().max(), 8);
    EXPECT_EQ(model.axisY().labelInterval(), 1);
    EXPECT_EQ(model.axisX().max(), 3);
    model.setDisplayState(2, Chart::kDisplayShown);
    EXPECT_EQ(model.axisY().max(), 220);  // 200 is not left on the frame
    EXPECT_EQ(model.axisY2().max(), 220); // Y2 follows Y until it is set
    model.axisY().setMax(50);
    EXPECT_FALSE(model.axisY().isMaxAuto());
    EXPECT_EQ(model.axisY().labelInterval(), 5);
    model.axisY().setLabelInterval(7);
    EXPECT_EQ(model.axisY().labelInterval(), 7);
    model.axisY().setMaxAuto(true);
    EXPECT_EQ(model.axisY().max(), 220);
    // Logarithmic: whole decades of the positive values.
    model.setSeriesValues(1, {-1, 0, 3, 450});
    model.setSeriesCount(1);
    model.axisY().setLogarithmic(true);
    EXPECT_EQ(model.axisY().min(), 1);
    EXPECT_EQ(model.axisY().max(), 1000);
}

TEST(ChartModel, BatchDefersChangedToItsEnd) {
    ChartModel model;
    int changes = 0;
    QObject::connect(&model, &ChartModel::changed, [&] { ++changes; });
    model.setIsBatched(true);
    model.setSeriesCount(1);
    model.setPointCount(1, 100);
    for (int p = 1; p <= 100; ++p) model.setY(1, p, p);
    model.axisY().setReversed(true);
    EXPECT_EQ(changes, 0);
    model.setIsBatched(false);
    EXPECT_EQ(changes, 1);
    model.setY(1, 1, 5);
    EXPECT_EQ(changes, 2);
}

TEST(ChartModel, ValueLabelsAndChartLabelsAreRemoved) {
    ChartModel model;
    ValueLabels& labels = model.axisY().valueLabels();
    labels.add(10, "100");
    labels.add(20, QString());
    labels.add(10, "again");
    EXPECT_TRUE(labels.removeByValue(10)); // every label at that value
    EXPECT_FALSE(labels.removeByValue(10.0000001));
    ASSERT_EQ(labels.count(), 1);
    EXPECT_EQ(labels.item(0).value, 20);
    // Chart labels are found and removed by name.
    model.labels().add("Title");
    EXPECT_EQ(model.labels().item("Nope"), nullptr);
    EXPECT_TRUE(model.labels().remove("Title"));
    EXPECT_EQ(model.labels().item("Title"), nullptr);
}

} // namespace

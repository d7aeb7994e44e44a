#include "platform/ChartFile.h"
#include "ChartTestSources.h"
#include "platform/ChartModel.h"

#include <QBuffer>

#include <gtest/gtest.h>

namespace {

void fill(ChartModel& model) {
    model.setSeriesCount(3);
    model.setSeriesSource(1, std::make_unique<LookupSource>(std::vector<quint16>{1, 2, 3}));
    model.setSeriesLabel(1, "CH01");
    model.setSeriesValues(2, {1.5, H});
    model.setX(2, 2, 7);
    SeriesStyle style;
    style.color = QColor(0, 0, 255);
    style.pattern = Chart::LinePattern::Dotted;
    model.setSeriesStyle(2, style);
    model.setDisplayState(2, Chart::kDisplayHidden);
    model.setSeriesInAutoRange(2, false);
    model.setPointStyle(3, 1, PointStyle()); // beyond the points of series 3: ignored
    model.axisY().setMax(100);
    model.axisY().setReversed(true);
    model.axisY().valueLabels().add(50, "500");
    model.axisY2().setTitle("CH02\n[mm]");
    model.labels().add("Title").AttachDataIndex = {2, 1};
    model.legend().IsShow = true;
    model.header().Text = "Header";
    model.setChartType(Chart::kTypePolar);
}

// The chart file of a filled model.
QByteArray savedChart() {
    ChartModel model;
    fill(model);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(ChartFile::save(model, buffer));
    return buffer.data();
}

TEST(ChartFile, SavesAndLoadsTheWholeChartButSourcedPoints) {
    QByteArray file = savedChart();
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    ChartModel loaded;
    ASSERT_TRUE(ChartFile::load(loaded, buffer));

    EXPECT_EQ(loaded.chartType(), Chart::kTypePolar);
    ASSERT_EQ(loaded.seriesCount(), 3);
    EXPECT_EQ(loaded.pointCount(1), 0); // the store brings these points back
    EXPECT_EQ(loaded.series(1).label, "CH01");
    EXPECT_EQ(loaded.Y(2, 1), 1.5);
    EXPECT_EQ(loaded.Y(2, 2), H);
    EXPECT_EQ(loaded.X(2, 2), 7);
    EXPECT_EQ(loaded.seriesStyle(2).color, QColor(0, 0, 255));
    EXPECT_EQ(loaded.seriesStyle(2).pattern, Chart::LinePattern::Dotted);
    EXPECT_EQ(loaded.displayState(2), Chart::kDisplayHidden);
    EXPECT_FALSE(loaded.series(2).inAutoRange);
    EXPECT_FALSE(loaded.axisY().isMaxAuto());
    EXPECT_EQ(loaded.axisY().max(), 100);
    EXPECT_TRUE(loaded.axisY().isReversed());
    ASSERT_EQ(loaded.axisY().valueLabels().count(), 1);
    EXPECT_EQ(loaded.axisY().valueLabels().item(0).text, "500");
    EXPECT_EQ(loaded.axisY2().title(), "CH02\n[mm]");
    ASSERT_NE(loaded.labels().item("Title"), nullptr);
    EXPECT_EQ(loaded.labels().item("Title")->AttachDataIndex.Series, 2);
    EXPECT_TRUE(loaded.legend().IsShow);
    EXPECT_EQ(loaded.header().Text, "Header");
}

TEST(ChartFile, DamagedFileLeavesTheModelAsItWas) {
    const QByteArray whole = savedChart();
    for (const QByteArray& damaged : {whole.left(whole.size() / 2), QByteArray("not a chart")}) {
        QBuffer in;
        in.setData(damaged);
        in.open(QIODevice::ReadOnly);
        ChartModel target;
        target.setSeriesCount(5);
        EXPECT_FALSE(ChartFile::load(target, in));
        EXPECT_EQ(target.seriesCount(), 5);
    }
}

} // namespace

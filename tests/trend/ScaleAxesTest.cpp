#include "TrendFixture.h"
#include "platform/AxisScale.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace trendtest;

namespace {

using Labels = std::vector<std::pair<double, QString>>;

// A percent-mode view of channels on 0..1000 with no decimals, label interval 10 %.
struct PercentView : LoadedView {
    explicit PercentView(int channels = 2)
        : LoadedView(9, Columns(size_t(channels), {0, 500, 1000}), 0, QStringLiteral("0"),
                     QStringLiteral("1000")) {
        view.state().ScalePercentMode = true;
        view.plot().CH_DataSet();
        view.chart().axisY().setLabelInterval(10);
    }
    Labels labels() {
        Labels out;
        for (const ValueLabel& l : view.chart().axisY().valueLabels().items())
            out.emplace_back(l.value, l.text);
        return out;
    }
};

} // namespace

// Labels stand at round engineering values of the bound channel, placed by their percent;
// zoomed to 40..60 %, they start at the engineering value of the axis's Min.
TEST(YAxisSet, LabelsAtEngineeringValuesAlsoZoomed) {
    PercentView p;
    p.view.scales().Y_AxisSet(false, 1, 1);
    Labels expected;
    for (int i = 0; i <= 10; ++i) expected.emplace_back(i * 10.0, QString::number(i * 100));
    EXPECT_EQ(p.labels(), expected);
    EXPECT_EQ(p.view.chart().axisY().title(), QStringLiteral("CH1\n[degC]"));

    p.view.scales().setYRange(40, 60);
    p.view.scales().Y_AxisSet(true, 1, 1);
    EXPECT_EQ(p.labels(), (Labels{{40, "400"}, {50, "500"}, {60, "600"}}));
}

// Grid marks have no text; a label at the same place replaces its mark. A step of 0 leaves no
// ticks; a falling scale labels at most once.
TEST(YAxisSet, GridMarksAndDegenerateSteps) {
    PercentView p;
    p.view.chart().axisY().setSubGridInterval(5);
    p.view.chart().axisY().setLabelInterval(50);
    p.view.scales().Y_AxisSet(false, 1, 1);
    Labels grid, texts;
    for (const auto& label : p.labels()) (label.second.isEmpty() ? grid : texts).push_back(label);
    EXPECT_EQ(texts, (Labels{{0, "0"}, {50, "500"}, {100, "1000"}}));
    ASSERT_EQ(grid.size(), 18u) << "every 5 %, less the three under texts";
    for (const auto& mark : grid) EXPECT_NE(std::fmod(mark.first, 50), 0) << mark.first;

    p.view.chart().axisY().setSubGridInterval(0);
    p.view.chart().axisY().setLabelInterval(0);
    p.view.scales().Y_AxisSet(false, 1, 1);
    EXPECT_TRUE(p.labels().empty());
    p.view.chart().axisY().setLabelInterval(10);
    std::swap(p.view.state().Lines[1].scaleLow, p.view.state().Lines[1].scaleHigh);
    p.view.scales().Y_AxisSet(false, 1, 1);
    EXPECT_LE(p.labels().size(), 1u);
}

// Multi-scale: with no row flagged the first four channels stand on the strips, titles give way
// to the strips, and the strips follow the zoomed Y range.
TEST(MultiScale, StripsTakeFirstFourAndFollowZoom) {
    PercentView p(6);
    TrendViewState& st = p.view.state();
    st.ScaleType = ScaleType::MultiScale;
    p.view.scales().ScaleTypeInit();
    ASSERT_EQ(p.view.scales().strips().size(), 4u);
    EXPECT_EQ(p.view.scales().strips()[3].row, 4);
    p.view.scales().Y_AxisSet(false, 1, 1);
    EXPECT_EQ(p.view.chart().axisY().title(), QStringLiteral(" ")) << "titles give way";
    st.MultiScaleShown.fill(false);
    st.MultiScaleShown[5] = true;
    p.view.scales().MultiScaleDisp(false);
    ASSERT_EQ(p.view.scales().strips().size(), 1u);
    EXPECT_EQ(p.view.scales().strips()[0].row, 6);

    const auto ticks = TrendScaleAxes::stripTicks(0, 1000, 40, 60, false, 200);
    QStringList texts;
    for (const auto& t : ticks) {
        EXPECT_TRUE(t.y >= -0.001 && t.y <= 200.001) << t.y;
        if (!t.text.isEmpty()) texts << t.text;
    }
    ASSERT_FALSE(texts.isEmpty());
    EXPECT_EQ(texts.first(), QStringLiteral("400")) << "bottom of the slice";
    EXPECT_EQ(texts.last(), QStringLiteral("600"));
    EXPECT_NEAR(ticks.front().y, 200, 1e-9);
    const auto reversed = TrendScaleAxes::stripTicks(0, 1000, 40, 60, true, 200);
    EXPECT_NEAR(reversed.front().y, 0, 1e-9) << "a reversed axis draws from the top";
}

// Engineering mode: automatic Y labels are plain numbers with the decimals of channel 1, also
// where the step alone would ask for fewer or more.
TEST(YAxisSet, EngineeringLabelsTakeTheDecimalsOfChannelOne) {
    const struct {
        QString low, high;
        std::vector<qint16> raw; // cells of both channels, in units of the decimals
        int decimals;
        std::vector<QString> texts;
    } cases[] = {
        {"0.00", "1.00", {25, 75}, 2, {"0.20", "0.30", "0.40", "0.50", "0.60", "0.70", "0.80"}},
        {"0.0", "100.0", {250, 750}, 1, {"20.0", "30.0", "40.0", "50.0", "60.0", "70.0", "80.0"}},
    };
    for (const auto& c : cases) {
        LoadedView v(9, {c.raw, c.raw}, c.decimals, c.low, c.high);
        v.view.scales().Y_AxisSet(false, 1, 1);
        const ChartAxis& y = v.view.chart().axisY();
        std::vector<QString> texts;
        for (const AxisScale::Tick& t : AxisScale::ticks(y, y.min(), y.max(), y.labelInterval()))
            if (t.major) texts.push_back(t.text);
        EXPECT_EQ(texts, c.texts) << c.low.toStdString();
    }
}

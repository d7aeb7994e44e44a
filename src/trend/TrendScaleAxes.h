#pragma once

#include <QRectF>
#include <QString>

#include <vector>

class ChartAxis;
class TrendView;

// One side scale strip of the multi-scale mode, as a pure layout: what to draw and where.
struct MultiScaleStrip {
    struct Tick {
        double y = 0; // pixel row within the strip (0 = top of the plot)
        QString text; // empty: a minor tick
    };
    int row = 0; // multi-scale row = channel, 1..128
    QString tag;
    QString unit;
    double low = 0; // the row's scale in engineering units
    double high = 0;
    std::vector<Tick> ticks;
};

// The Y axes of a view: binding channels to Y and Y2 with value labels in engineering units,
// the scale types and the multi-scale strips.
class TrendScaleAxes {
public:
    static constexpr int kMaxStrips = 4;
    static constexpr int kStripWidth = 56; // pixels per strip

    explicit TrendScaleAxes(TrendView& view) : v_(view) {}

    // Fixes AxisChannel for the mode; with the mode off, Y shows automatic labels, Y2 is hidden.
    void Y_Axis_Mode_change(bool scalePercentMode, int channelCount);
    // Binds a channel to axis 1 (Y) or 2 (Y2) and rebuilds its texts.
    void Y_AxisSet(bool keepFormat, int channel, int axis);
    // Applies ScaleType to the chart and the toolbar.
    void ScaleTypeInit();
    // Chooses the strip rows (the first four flagged, else rows 1..4) and lays the strips out.
    void MultiScaleDisp(bool firstTime);
    // Lays the strips out again for the present plot height and Y range.
    void MultiScaleDispResize();
    // Y at 0..100 fixed, as a percent-mode load leaves it.
    void percentRangeAtLoad();
    // Sets the Y range of the view (swapped when reversed order; a negative span is ignored).
    void setYRange(double min, double max);

    // The strips of the last MultiScaleDisp(Resize); the plot height they were made for.
    const std::vector<MultiScaleStrip>& strips() const { return strips_; }
    void setPlotHeight(double pixels) { plotHeight_ = pixels; }

    // Ticks of one strip: engineering values of the slice yMin..yMax (percent) of low..high.
    static std::vector<MultiScaleStrip::Tick> stripTicks(double low, double high, double yMin,
                                                         double yMax, bool reversed, double height);

private:
    void percentLabels(ChartAxis& axis, int channel);
    void labelPass(ChartAxis& axis, int channel, double percentStep, bool withText);
    QString axisTitle(int channel) const;

    TrendView& v_;
    std::vector<MultiScaleStrip> strips_;
    double plotHeight_ = 400;
};

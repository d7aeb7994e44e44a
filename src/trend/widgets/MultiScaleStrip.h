#pragma once

#include "trend/TrendScaleAxes.h"

#include <QWidget>

// One side scale strip of the multi-scale mode (picMultiScale): the channel's tag and unit at
// the top, ticks and numbers along the plot's height, drawn from the logic's strip layout.
class MultiScaleStripWidget : public QWidget {
    Q_OBJECT
public:
    explicit MultiScaleStripWidget(QWidget* parent = nullptr);

    // The strip to draw, the plot's top and height in this widget's pixels, and the size of
    // the chart's axis font.
    void setStrip(const MultiScaleStrip& strip, double plotTop, double plotHeight, int pointSize);
    const MultiScaleStrip& strip() const { return strip_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    MultiScaleStrip strip_;
    double plotTop_ = 0;
    double plotHeight_ = 0;
    int pointSize_ = 8;
};

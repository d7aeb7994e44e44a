#pragma once

#include "platform/AxisScale.h"
#include "platform/ChartMapper.h"

#include <QFont>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <vector>

class ChartAxis;
class ChartModel;
class QPaintDevice;

// Where the parts of a chart lie for one size, and the ticks of its axes. Text sizes are
// measured for the device drawn on (screen metrics when none).
struct ChartLayout {
    struct AxisPart {
        bool shown = false;     // axis line, ticks, labels and title are drawn
        bool gridShown = false; // grid lines across the plot
        bool labelsShown = false;
        std::vector<AxisScale::Tick> ticks;
        QRectF title; // empty when the axis has no title
    };
    struct LegendEntry {
        int series = 0; // 1-based
        QRectF swatch;
        QRectF text;
    };

    QRectF bounds;
    QRectF header;
    QRectF footer;
    QRectF legend;
    QRectF legendTitle;
    std::vector<LegendEntry> legendEntries;
    QRectF chartArea; // plot with its axes
    QRectF plot;
    AxisPart x;
    AxisPart y;
    AxisPart y2;
    ChartMapper mapper;   // X against Y: every series is drawn with it
    ChartMapper mapperY2; // X against Y2

    static constexpr double kTickLength = 5;
    static constexpr double kGap = 4;

    static ChartLayout compute(const ChartModel& model, const QSizeF& size,
                               QPaintDevice* device = nullptr);
};

// Size of a text of one or more lines in a font, for a device (screen when null).
QSizeF chartTextSize(const QFont& font, const QString& text, QPaintDevice* device);

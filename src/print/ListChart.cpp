#include "print/ListChart.h"

#include "platform/ChartModel.h"

#include <QColor>
#include <QFont>

#include <xlsxwriter.h>

#include <algorithm>
#include <cmath>

namespace {

lxw_color_t rgb(const QColor& c) {
    return lxw_color_t(c.rgb() & 0xFFFFFF);
}

// Line widths 1..5, 6..10 and above give the thin, medium and thick lines of the workbook.
float lineWidth(int width) {
    return width <= 5 ? 0.75f : width <= 10 ? 1.5f : 2.25f;
}

void setLine(lxw_chart_series* series, const SeriesStyle& style) {
    lxw_chart_line line{};
    line.color = rgb(style.color);
    line.width = lineWidth(style.width);
    switch (style.pattern) {
    case Chart::LinePattern::None:
        line.none = LXW_TRUE;
        break;
    case Chart::LinePattern::Solid:
        line.dash_type = LXW_CHART_LINE_DASH_SOLID;
        break;
    case Chart::LinePattern::Dotted:
        line.dash_type = LXW_CHART_LINE_DASH_ROUND_DOT;
        break;
    case Chart::LinePattern::DashDot:
        line.dash_type = LXW_CHART_LINE_DASH_DASH_DOT;
        break;
    default: // the workbook's own dash
        break;
    }
    chart_series_set_line(series, &line);
}

// Shapes 2..6 give filled markers; the hollow shapes (circle, square, and 14 and 15 for the
// triangle and diamond) give the same markers without fill; any other shape none.
void setMarker(lxw_chart_series* series, const SeriesStyle& style) {
    const int shape = int(style.symbol);
    uint8_t type = LXW_CHART_MARKER_NONE;
    bool hollow = false;
    switch (shape) {
    case 2:
    case 10:
        type = LXW_CHART_MARKER_CIRCLE;
        break;
    case 3:
    case 11:
        type = LXW_CHART_MARKER_SQUARE;
        break;
    case 4:
    case 14:
        type = LXW_CHART_MARKER_TRIANGLE;
        break;
    case 5:
    case 15:
        type = LXW_CHART_MARKER_DIAMOND;
        break;
    case 6:
        type = LXW_CHART_MARKER_STAR;
        break;
    default:
        break;
    }
    hollow = shape >= 10;
    chart_series_set_marker_type(series, type);
    if (type == LXW_CHART_MARKER_NONE) return;
    chart_series_set_marker_size(series, uint8_t(std::clamp(style.symbolSize, 2, 72)));
    const QColor color = style.symbolColor.isValid() ? style.symbolColor : style.color;
    lxw_chart_line border{};
    border.color = rgb(color);
    chart_series_set_marker_line(series, &border);
    lxw_chart_fill fill{};
    fill.color = rgb(color);
    fill.none = hollow ? LXW_TRUE : LXW_FALSE;
    chart_series_set_marker_fill(series, &fill);
}

lxw_chart_font fontOf(const QFont& font, const QByteArray& name) {
    lxw_chart_font f{};
    f.name = const_cast<char*>(name.constData());
    f.size = font.pointSizeF() > 0 ? font.pointSizeF() : 10;
    f.bold = font.bold() ? LXW_TRUE : LXW_FALSE;
    f.italic = font.italic() ? LXW_TRUE : LXW_FALSE;
    return f;
}

uint8_t legendPosition(Chart::Anchor anchor) {
    switch (anchor) {
    case Chart::Anchor::West:
        return LXW_CHART_LEGEND_LEFT;
    case Chart::Anchor::North:
        return LXW_CHART_LEGEND_TOP;
    case Chart::Anchor::South:
        return LXW_CHART_LEGEND_BOTTOM;
    default:
        return LXW_CHART_LEGEND_RIGHT;
    }
}

void setTitles(lxw_chart* c, const ChartModel& chart) {
    const ChartTitle& header = chart.header();
    if (header.Text.trimmed().isEmpty()) {
        chart_title_off(c);
    } else {
        const QByteArray text = header.Text.toUtf8(), face = header.Font.family().toUtf8();
        chart_title_set_name(c, text.constData());
        lxw_chart_font font = fontOf(header.Font, face);
        chart_title_set_name_font(c, &font);
    }
    const QByteArray x = chart.axis(Chart::Axis::X).title().toUtf8();
    const QByteArray y = chart.axis(Chart::Axis::Y).title().toUtf8();
    if (!x.isEmpty()) chart_axis_set_name(c->x_axis, x.constData());
    if (!y.isEmpty()) chart_axis_set_name(c->y_axis, y.constData());
}

void setLegendAndAreas(lxw_chart* c, const ChartModel& chart) {
    const ChartLegend& legend = chart.legend();
    if (legend.IsShow) {
        chart_legend_set_position(c, legendPosition(legend.Anchor));
        const QByteArray face = legend.Font.family().toUtf8();
        lxw_chart_font font = fontOf(legend.Font, face);
        chart_legend_set_font(c, &font);
    } else {
        chart_legend_set_position(c, LXW_CHART_LEGEND_NONE);
    }
    lxw_chart_fill plot{}, area{};
    plot.color = rgb(chart.colors().PlotAreaBackColor);
    area.color = rgb(chart.colors().ChartAreaBackColor);
    chart_plotarea_set_fill(c, &plot);
    chart_chartarea_set_fill(c, &area);
}

void setAxes(lxw_chart* c, const ChartModel& chart, const ListChartSheet& layout) {
    const ChartAxis& y = chart.axis(Chart::Axis::Y);
    if (!layout.percentMode) {
        chart_axis_set_min(c->y_axis, y.min());
        chart_axis_set_max(c->y_axis, y.max());
    }
    if (y.isReversed()) chart_axis_set_reverse(c->y_axis);
    chart_axis_set_crossing(c->y_axis, y.origin());
    const ChartAxis& x = chart.axis(Chart::Axis::X);
    if (layout.intervalMs < 1000)
        chart_axis_set_label_position(c->x_axis, LXW_CHART_AXIS_LABEL_POSITION_NONE);
    const auto spacing = [](double v) {
        return uint16_t(std::clamp<double>(std::round(v), 1, 31999));
    };
    const uint16_t labels = spacing(x.labelInterval());
    chart_axis_set_interval_unit(c->x_axis, labels);
    chart_axis_set_interval_tick(c->x_axis,
                                 x.subGridInterval() > 0 ? spacing(x.subGridInterval()) : labels);
}

} // namespace

bool addListChart(lxw_workbook* book, lxw_worksheet* sheet, const ChartModel& chart,
                  const ListChartSheet& layout) {
    if (layout.channels.empty() || layout.rows < 1) return true;
    lxw_chart* c = workbook_add_chart(book, LXW_CHART_LINE);
    if (!c) return false;
    const QByteArray name = layout.name.toUtf8();
    for (size_t k = 0; k < layout.channels.size(); ++k) {
        const int ch = layout.channels[k];
        const lxw_col_t col = lxw_col_t(2 + k);
        lxw_chart_series* series = chart_add_series(c, nullptr, nullptr);
        if (!series) return false;
        chart_series_set_categories(series, name.constData(), 1, 1, lxw_row_t(layout.rows), 1);
        chart_series_set_values(series, name.constData(), 1, col, lxw_row_t(layout.rows), col);
        chart_series_set_name_range(series, name.constData(), 0, col);
        if (ch <= chart.seriesCount()) {
            setLine(series, chart.seriesStyle(ch));
            setMarker(series, chart.seriesStyle(ch));
        }
    }
    setTitles(c, chart);
    setLegendAndAreas(c, chart);
    setAxes(c, chart, layout);
    // 10 and 100 pt from the sheet's corner, 600 x 330 pt; the library counts in pixels
    // (96 a inch) and scales its default chart of 480 x 288 pixels.
    lxw_chart_options options{};
    options.x_offset = 13;
    options.y_offset = 133;
    options.x_scale = 800.0 / 480.0;
    options.y_scale = 440.0 / 288.0;
    return worksheet_insert_chart_opt(sheet, 0, 0, c, &options) == LXW_NO_ERROR;
}

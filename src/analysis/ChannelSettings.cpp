#include "analysis/ChannelSettings.h"

#include "base/VbFormat.h"
#include "platform/ChartModel.h"
#include "recording/FamilyCodes.h"
#include "recording/ViewState.h"
#include "trend/PlotValue.h"
#include "trend/TrendPlot.h"
#include "trend/TrendView.h"

#include <algorithm>

ChannelSettings::ChannelSettings(TrendView& view)
    : view_(view), scaleType_(view.state().ScaleType), percent_(view.state().ScalePercentMode) {
    const ViewState& t = view.tables();
    const bool n5f = t.FileType == Family::N5F || t.FileType == Family::P4F;
    const int rows = n5f ? kN5fRows : kRows;
    for (int r = 1; r <= rows; ++r) {
        const bool inTable = r < int(view.state().Lines.size());
        lines_.push_back(inTable ? view.state().Lines[size_t(r)] : TrendLine());
        const bool channel = r <= MaxChannels;
        tags_.push_back(channel ? t.Channels.ChTag[size_t(r)].trimmed() : QString());
        units_.push_back(channel ? t.Channels.ChUnit[size_t(r)].trimmed() : QString());
    }
}

QStringList ChannelSettings::sourceItems() const {
    QStringList items{QStringLiteral("---")};
    for (int c = 1; c <= view_.tables().ChannelCount; ++c)
        items << QStringLiteral("No") + QString::number(c);
    return items;
}

bool ChannelSettings::setScaleText(int row, bool high, const QString& text) {
    if (TrendValues::scaleNumber(text) == Chart::kHoleValue) return false;
    (high ? line(row).scaleHigh : line(row).scaleLow) = text.trimmed();
    return true;
}

QString ChannelSettings::scaleText(int row, bool high) const {
    const TrendLine& l = line(row);
    const double v = TrendValues::scaleNumber(high ? l.scaleHigh : l.scaleLow);
    if (v == Chart::kHoleValue) return high ? l.scaleHigh : l.scaleLow;
    return VbFormat::formatNumber(v, decimalPattern(std::clamp<int>(l.decimals, 0, 4)));
}

bool ChannelSettings::needsReplot() const {
    const TrendViewState& st = view_.state();
    if (st.ScalePercentMode != percent_) return true;
    for (int r = 1; r <= rowCount(); ++r) {
        if (r >= int(st.Lines.size())) break;
        const TrendLine& was = st.Lines[size_t(r)];
        const TrendLine& now = line(r);
        if (was.sourceColumn != now.sourceColumn || was.secondColumn != now.secondColumn ||
            was.addFlag != now.addFlag || was.constant != now.constant ||
            was.enabled != now.enabled || was.scaleKind != now.scaleKind)
            return true;
        if (percent_ && (was.scaleLow != now.scaleLow || was.scaleHigh != now.scaleHigh))
            return true;
    }
    return false;
}

bool ChannelSettings::apply() {
    const bool replot = needsReplot();
    TrendViewState& st = view_.state();
    for (int r = 1; r <= rowCount() && r < int(st.Lines.size()); ++r) st.Lines[size_t(r)] = line(r);
    st.ScaleType = scaleType_;
    ViewState& t = view_.tables();
    ChartModel& chart = view_.chart();
    for (int r = 1; r <= rowCount() && r <= MaxChannels; ++r) {
        t.Channels.setTag(r, tag(r));
        t.Channels.setUnit(r, unit(r));
        if (r <= t.ChannelCount && r <= chart.seriesCount()) chart.setSeriesLabel(r, tag(r));
    }
    if (!replot) return false;
    chart.setIsBatched(true);
    view_.plot().ScaleCalculateSet();
    for (ChartAxis* axis : {&chart.axisY(), &chart.axisY2()}) {
        axis->setMinAuto(true);
        axis->setMaxAuto(true);
    }
    chart.setIsBatched(false);
    return true;
}

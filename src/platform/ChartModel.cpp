#include "platform/ChartModel.h"

#include <algorithm>
#include <cmath>

namespace {

// Colours of series that nobody styled yet, so that they can be told apart.
const QColor kDefaultColors[] = {
    QColor(220, 30, 30), QColor(30, 60, 220),  QColor(0, 150, 0),   QColor(150, 100, 0),
    QColor(150, 0, 200), QColor(240, 140, 40), QColor(0, 160, 170), QColor(90, 90, 90),
};

// Points of another series of the same model, read through the model at every call so that a
// refill or removal of that series is followed.
class SeriesView final : public SeriesSource {
public:
    SeriesView(const ChartModel& model, int of, qsizetype first, qsizetype count)
        : model_(model), of_(of), first_(first), count_(count) {}

    qsizetype count() const override { return count_; }
    void values(qsizetype first, qsizetype n, double* out) const override {
        std::fill_n(out, n, Chart::kHoleValue);
        if (of_ < 1 || of_ > model_.seriesCount()) return;
        const ChartSeries& series = model_.series(of_);
        const qsizetype from = std::max<qsizetype>(first_ + first, 0);
        const qsizetype to = std::min(first_ + first + n, series.count());
        if (to > from) series.values(from, to - from, out + (from - first_ - first));
    }

private:
    const ChartModel& model_;
    int of_;
    qsizetype first_;
    qsizetype count_;
};

// Smallest value above 0, for the automatic range of a logarithmic axis.
double smallestPositive(const ChartSeries& series) {
    double result = std::numeric_limits<double>::infinity();
    std::vector<double> buffer(4096);
    for (qsizetype first = 0; first < series.count(); first += qsizetype(buffer.size())) {
        const qsizetype n = std::min(qsizetype(buffer.size()), series.count() - first);
        series.values(first, n, buffer.data());
        for (qsizetype i = 0; i < n; ++i) {
            const double v = buffer[size_t(i)];
            if (v > 0 && v != Chart::kHoleValue) result = std::min(result, v);
        }
    }
    return result;
}

} // namespace

ChartModel::ChartModel(QObject* parent) : QObject(parent) {
    axes_[0] = std::make_unique<ChartAxis>(this, Chart::Axis::X);
    axes_[1] = std::make_unique<ChartAxis>(this, Chart::Axis::Y);
    axes_[2] = std::make_unique<ChartAxis>(this, Chart::Axis::Y2);
}

ChartModel::~ChartModel() = default;

void ChartModel::setIsBatched(bool on) {
    batched_ = on;
    if (!on) {
        pendingChange_ = false;
        Q_EMIT changed();
    }
}

void ChartModel::touch() {
    if (batched_) {
        pendingChange_ = true;
        return;
    }
    Q_EMIT changed();
}

void ChartModel::dataChanged() {
    ++dataRevision_;
    touch();
}

void ChartModel::setChartType(int type) {
    chartType_ = type;
    touch();
}

void ChartModel::setSeriesCount(int count) {
    count = std::max(count, 0);
    const int old = seriesCount();
    series_.resize(size_t(count));
    for (int s = old; s < count; ++s) {
        series_[size_t(s)] = std::make_unique<ChartSeries>();
        series_[size_t(s)]->style.color = kDefaultColors[s % std::size(kDefaultColors)];
    }
    std::erase_if(viewsOf_, [count](const auto& view) { return view.second > count; });
    dataChanged();
}

qsizetype ChartModel::pointCount(int s) const {
    return validSeries(s) ? series(s).count() : 0;
}

void ChartModel::setPointCount(int s, qsizetype count) {
    if (ChartSeries* series = at(s)) {
        forgetView(s);
        series->setPointCount(count);
        seriesDataChanged(s);
    }
}

double ChartModel::X(int s, qsizetype p) const {
    return validSeries(s) ? series(s).x(p - 1) : Chart::kHoleValue;
}

double ChartModel::Y(int s, qsizetype p) const {
    return validSeries(s) ? series(s).y(p - 1) : Chart::kHoleValue;
}

void ChartModel::setX(int s, qsizetype p, double value) {
    if (ChartSeries* series = at(s)) {
        series->setX(p - 1, value);
        dataChanged();
    }
}

void ChartModel::setY(int s, qsizetype p, double value) {
    if (ChartSeries* series = at(s)) {
        series->setY(p - 1, value);
        seriesDataChanged(s);
    }
}

void ChartModel::setSeriesValues(int s, std::vector<double> y) {
    if (ChartSeries* series = at(s)) {
        forgetView(s);
        series->setStoredValues(std::move(y));
        seriesDataChanged(s);
    }
}

void ChartModel::setSeriesSource(int s, std::unique_ptr<SeriesSource> source) {
    if (ChartSeries* series = at(s)) {
        forgetView(s);
        series->setSource(std::move(source));
        seriesDataChanged(s);
    }
}

void ChartModel::setSeriesView(int s, int of, qsizetype first, qsizetype last) {
    if (first > last) std::swap(first, last);
    setSeriesSource(s, std::make_unique<SeriesView>(*this, of, first - 1, last - first + 1));
    if (validSeries(s)) viewsOf_.emplace(of, s);
}

void ChartModel::refreshSeries(int s) {
    if (ChartSeries* series = at(s)) {
        series->invalidate();
        seriesDataChanged(s);
    }
}

void ChartModel::forgetView(int s) {
    std::erase_if(viewsOf_, [s](const auto& view) { return view.second == s; });
}

void ChartModel::seriesDataChanged(int s) {
    const auto views = viewsOf_.equal_range(s);
    for (auto it = views.first; it != views.second; ++it) {
        if (ChartSeries* view = at(it->second)) view->invalidate();
    }
    dataChanged();
}

void ChartModel::setDisplayState(int s, int state) {
    if (ChartSeries* series = at(s)) {
        series->displayState = state;
        dataChanged();
    }
}

void ChartModel::setSeriesStyle(int s, const SeriesStyle& style) {
    if (ChartSeries* series = at(s)) {
        series->style = style;
        touch();
    }
}

void ChartModel::setPointStyle(int s, qsizetype p, const PointStyle& style) {
    if (ChartSeries* series = at(s); series && p >= 1 && p <= series->count()) {
        series->setPointStyle(p - 1, style);
        touch();
    }
}

void ChartModel::clearPointStyle(int s, qsizetype p) {
    if (ChartSeries* series = at(s)) {
        series->clearPointStyle(p - 1);
        touch();
    }
}

void ChartModel::setSeriesLabel(int s, const QString& text) {
    if (ChartSeries* series = at(s)) {
        series->label = text;
        touch();
    }
}

void ChartModel::setSeriesInAutoRange(int s, bool on) {
    if (ChartSeries* series = at(s)) {
        series->inAutoRange = on;
        dataChanged();
    }
}

double ChartModel::wholeStatistic(int s, double SeriesStatistics::*field) const {
    return validSeries(s) ? series(s).statistics().*field : Chart::kHoleValue;
}

double ChartModel::Maximum(int s) const {
    return wholeStatistic(s, &SeriesStatistics::Maximum);
}
double ChartModel::Minimum(int s) const {
    return wholeStatistic(s, &SeriesStatistics::Minimum);
}
double ChartModel::Mean(int s) const {
    return wholeStatistic(s, &SeriesStatistics::Mean);
}
double ChartModel::StdDev(int s) const {
    return wholeStatistic(s, &SeriesStatistics::StdDev);
}
double ChartModel::Stat5(int s) const {
    return wholeStatistic(s, &SeriesStatistics::Stat5);
}

SeriesStatistics ChartModel::statistics(int s, qsizetype firstPoint, qsizetype lastPoint) const {
    if (!validSeries(s)) return SeriesStatistics();
    if (firstPoint > lastPoint) std::swap(firstPoint, lastPoint);
    return series(s).statistics(firstPoint - 1, lastPoint - firstPoint + 1);
}

void ChartModel::takeStateOf(ChartModel& other) {
    for (const auto& view : other.viewsOf_) other.at(view.second)->setPointCount(0);
    series_ = std::move(other.series_);
    other.series_.clear();
    viewsOf_.clear();
    for (size_t i = 0; i < axes_.size(); ++i) axes_[i]->assignSettings(*other.axes_[i]);
    labels_ = std::move(other.labels_);
    legend_ = other.legend_;
    header_ = other.header_;
    footer_ = other.footer_;
    colors_ = other.colors_;
    chartAreaMargins_ = other.chartAreaMargins_;
    chartType_ = other.chartType_;
    dataChanged();
}

void ChartModel::setChartAreaMargins(const QMargins& margins) {
    chartAreaMargins_ = margins;
    touch();
}

AxisScale::Scale ChartModel::automaticScale(Chart::Axis id) const {
    const ChartAxis& a = axis(id);
    if (id == Chart::Axis::Y2) {
        const ChartAxis& y = axis(Chart::Axis::Y);
        return AxisScale::forRange(y.min(), y.max(), a.isLogarithmic());
    }
    const size_t slot = size_t(id);
    if (scaleRevision_[slot] == dataRevision_) return scales_[slot];
    const bool isX = id == Chart::Axis::X;
    MinMaxPyramid::Range range;
    for (const auto& series : series_) {
        if (!series->isShown() || !series->inAutoRange || series->count() == 0) continue;
        MinMaxPyramid::Range r = isX ? series->xRange() : series->yRange();
        if (a.isLogarithmic() && !isX && r.hasValue && r.min <= 0)
            r.min = smallestPositive(*series);
        range.merge(r);
    }
    const bool hasData = range.hasValue && std::isfinite(range.min) && std::isfinite(range.max);
    scales_[slot] = AxisScale::automatic(range.min, range.max, hasData, a.isLogarithmic(), isX);
    scaleRevision_[slot] = dataRevision_;
    return scales_[slot];
}

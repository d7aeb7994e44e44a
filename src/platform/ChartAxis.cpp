#include "platform/ChartAxis.h"

#include "platform/AxisScale.h"
#include "platform/ChartModel.h"

void ValueLabels::add(double value, const QString& text, const QColor& color) {
    items_.push_back({value, text, color});
}

bool ValueLabels::removeByValue(double value) {
    const auto old = items_.size();
    std::erase_if(items_, [value](const ValueLabel& label) { return label.value == value; });
    return items_.size() != old;
}

ChartAxis::ChartAxis(ChartModel* model, Chart::Axis id) : model_(model), id_(id) {
    gridShown_ = id != Chart::Axis::Y2;
    shown_ = id != Chart::Axis::Y2;
    titleRotation_ = id == Chart::Axis::X ? 0 : 90;
}

void ChartAxis::changed() {
    model_->touch();
}

void ChartAxis::assignSettings(const ChartAxis& other) {
    ChartModel* model = model_;
    *this = other;
    model_ = model;
    model_->dataChanged();
}

double ChartAxis::min() const {
    return minAuto_ ? model_->automaticScale(id_).min : min_;
}
double ChartAxis::max() const {
    return maxAuto_ ? model_->automaticScale(id_).max : max_;
}

void ChartAxis::setMin(double value) {
    min_ = value;
    minAuto_ = false;
    changed();
}

void ChartAxis::setMax(double value) {
    max_ = value;
    maxAuto_ = false;
    changed();
}

void ChartAxis::setMinAuto(bool on) {
    set(minAuto_, on);
}

void ChartAxis::setMaxAuto(bool on) {
    set(maxAuto_, on);
}

double ChartAxis::origin() const {
    return originAuto_ ? min() : origin_;
}

void ChartAxis::setOrigin(double value) {
    origin_ = value;
    originAuto_ = false;
    changed();
}

void ChartAxis::setOriginAuto(bool on) {
    set(originAuto_, on);
}

double ChartAxis::labelInterval() const {
    if (!labelIntervalAuto_) return labelInterval_;
    if (minAuto_ && maxAuto_) return model_->automaticScale(id_).step;
    return AxisScale::forRange(min(), max(), logarithmic_, id_ == Chart::Axis::X).step;
}

void ChartAxis::setLabelInterval(double value) {
    labelInterval_ = value;
    labelIntervalAuto_ = false;
    changed();
}

void ChartAxis::setLabelIntervalAuto(bool on) {
    set(labelIntervalAuto_, on);
}

void ChartAxis::setSubGridInterval(double value) {
    set(subGridInterval_, value);
}

void ChartAxis::setReversed(bool on) {
    set(reversed_, on);
}

void ChartAxis::setLogarithmic(bool on) {
    logarithmic_ = on;
    model_->dataChanged(); // the automatic range changes with the mapping
}

void ChartAxis::setShown(bool on) {
    set(shown_, on);
}

void ChartAxis::setLabelsShown(bool on) {
    set(labelsShown_, on);
}

void ChartAxis::setGridShown(bool on) {
    set(gridShown_, on);
}

void ChartAxis::setLabelMethod(Chart::LabelMethod method) {
    set(labelMethod_, method);
}

void ChartAxis::setPrecision(int decimals) {
    set(precision_, decimals);
}

ValueLabels& ChartAxis::valueLabels() {
    changed();
    return valueLabels_;
}

void ChartAxis::setTitle(const QString& text) {
    set(title_, text);
}

void ChartAxis::setTitleFont(const QFont& font) {
    set(titleFont_, font);
}

void ChartAxis::setTitleRotation(int degrees) {
    set(titleRotation_, degrees);
}

void ChartAxis::setFont(const QFont& font) {
    set(font_, font);
}

void ChartAxis::setLabelColor(const QColor& color) {
    set(labelColor_, color);
}

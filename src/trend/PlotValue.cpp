#include "trend/PlotValue.h"

#include "base/NumberText.h"
#include "base/VbFormat.h"
#include "platform/ChartTypes.h"
#include "recording/ViewState.h"

#include <charconv>
#include <cmath>

namespace {

constexpr double kHole = Chart::kHoleValue;

// The number in a store cell, or false when the cell cannot be read or holds no number.
bool cellNumber(const clsStorage& storage, int channel, qint32 point, double& value) {
    QString text;
    if (!storage.GetText(2 * channel, point, text)) return false;
    return TrendValues::parseNumber(text, value) && value != kHole;
}

const TrendLine& lineOf(int viewNumber, int line) {
    static const TrendLine kNoLine;
    if (line < 0 || line >= kLineCount) return kNoLine;
    return trendState(viewNumber).Lines[size_t(line)];
}

// The ScalePercent rule on numbers. passThrough: the value's own text is the answer.
struct Percent {
    bool passThrough;
    double value;
};

Percent percentOf(double v, double low, double high) {
    if (high == kHole || v == kHole || (v == 0 && low == kHole)) return {true, v};
    const double span = high - low;
    const double offset = v - low;
    if (!std::isfinite(span) || !std::isfinite(offset)) return {true, v}; // overflow
    if (offset == 0 && span == 0) return {false, 0};
    if (span == 0) return {false, kHole}; // division by zero ends the point with the hole
    const double percent = offset / span * 100;
    if (!std::isfinite(percent)) return {true, v};
    return {false, TrendValues::roundTrip(percent)};
}

} // namespace

namespace TrendValues {

bool parseNumber(const QString& text, double& value) {
    const QString t = text.trimmed();
    if (t.isEmpty()) return false;
    bool ok = false;
    value = t.toDouble(&ok);
    return ok && std::isfinite(value);
}

double roundTrip(double value) {
    if (!std::isfinite(value)) return value;
    char buffer[64];
    const auto written =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific, 14);
    double back = value;
    std::from_chars(buffer, written.ptr, back);
    return back;
}

double scaleNumber(const QString& text) {
    double value;
    return parseNumber(text, value) ? value : kHole;
}

double percentValue(double y, double low, double high) {
    return percentOf(roundTrip(y), low, high).value;
}

} // namespace TrendValues

double PlotValue(const clsStorage& storage, const TrendLine& line, qint32 point) {
    if (line.sourceColumn == 0 || line.enabled == 0) return kHole;
    double a;
    if (!cellNumber(storage, line.sourceColumn, point, a)) return kHole;
    double b;
    if (line.secondColumn != 0) {
        if (!cellNumber(storage, line.secondColumn, point, b)) return kHole;
    } else if (!TrendValues::parseNumber(line.constant, b)) {
        return a;
    }
    const double result = line.addFlag ? a + b : a - b;
    return std::isfinite(result) ? result : kHole;
}

double PlotValue(int viewNumber, qint32 point, int line) {
    return PlotValue(views(viewNumber).Storage, lineOf(viewNumber, line), point);
}

QString ScalePercent(const QString& valueText, const TrendLine& line) {
    double v;
    if (!TrendValues::parseNumber(valueText, v)) return valueText;
    const Percent p = percentOf(v, TrendValues::scaleNumber(line.scaleLow),
                                TrendValues::scaleNumber(line.scaleHigh));
    return p.passThrough ? valueText : NumberText::doubleText(p.value);
}

QString ScalePercent(const QString& valueText, int viewNumber, int line) {
    return ScalePercent(valueText, lineOf(viewNumber, line));
}

QString decimalPattern(int decimals) {
    static const char* const kPatterns[] = {"#######0", "#####0.0", "####0.00", "###0.000",
                                            "##0.0000"};
    return QLatin1String(kPatterns[qBound(0, decimals, 4)]);
}

QString exponentPattern(int decimals) {
    static const char* const kPatterns[] = {"0E+0", "0.0E+0", "0.00E+0", "0.000E+0"};
    return QLatin1String(kPatterns[qBound(0, decimals, 3)]);
}

double ScaleStep(double percent, const TrendLine& line) {
    const double low = TrendValues::scaleNumber(line.scaleLow);
    const double high = TrendValues::scaleNumber(line.scaleHigh);
    if (percent == kHole || low == kHole || high == kHole) return kHole;
    const double span = (high - low) * percent / 100;
    if (!std::isfinite(span)) return kHole;
    double value;
    const QString text = VbFormat::formatNumber(span, decimalPattern(line.decimals));
    return TrendValues::parseNumber(text, value) ? value : kHole;
}

double ScaleStep(double percent, int viewNumber, int line) {
    return ScaleStep(percent, lineOf(viewNumber, line));
}

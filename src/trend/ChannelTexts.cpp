#include "trend/ChannelTexts.h"

#include "base/LanguageTable.h"
#include "base/VbFormat.h"
#include "base/clsConst.h"
#include "platform/ChartTypes.h"
#include "recording/ViewState.h"
#include "trend/PlotValue.h"
#include "trend/TrendViewState.h"

#include <cmath>

namespace {

VbFormat::Separators displaySeps() {
    return clsConst::shared().displaySeparators();
}

const TrendLine* lineOf(int viewNumber, int channel) {
    if (channel < 1 || channel >= kLineCount) return nullptr;
    return &trendState(viewNumber).Lines[size_t(channel)];
}

} // namespace

double ScaleToEngineering(double y, int viewNumber, int channel) {
    if (y == Chart::kHoleValue || !trendState(viewNumber).ScalePercentMode) return y;
    const TrendLine* line = lineOf(viewNumber, channel);
    if (!line) return y;
    const double low = TrendValues::scaleNumber(line->scaleLow);
    const double high = TrendValues::scaleNumber(line->scaleHigh);
    if (low == Chart::kHoleValue || high == Chart::kHoleValue) return y;
    const double v = (high - low) * y / 100 + low;
    if (!std::isfinite(v)) return y;
    // The text round trip is the rounding to the channel's decimals.
    double back = v;
    TrendValues::parseNumber(VbFormat::formatNumber(v, decimalPattern(line->decimals)), back);
    return back;
}

QString ChannelValueText(double value, int formatCode) {
    const VbFormat::Separators seps = displaySeps();
    switch (formatCode) {
    case 0: {
        const QString text = VbFormat::defaultText(value, seps);
        // Below 1E+15 the default text is plain and has the decimals the pattern would give.
        if (!(std::fabs(value) > 1) || std::fabs(value) < 1E+15) return text;
        const int decimals = ChannelTexts::displayDecimals(text);
        const QString pattern = decimals > 0
                                    ? QStringLiteral("###0.") + QString(decimals, QLatin1Char('0'))
                                    : QStringLiteral("#######0");
        return VbFormat::formatNumber(value, pattern, seps);
    }
    case 1:
    case 2:
    case 3:
    case 4:
        return VbFormat::formatNumber(value, exponentPattern(formatCode - 1) + QLatin1Char('0'),
                                      seps);
    default:
        return VbFormat::defaultText(value, seps);
    }
}

QString SampleStatusText(int viewNumber, int channel, qint32 row) {
    const TrendLine* line = lineOf(viewNumber, channel);
    const int source = line ? line->sourceColumn : channel;
    QString text;
    if (!views(viewNumber).Storage.GetText(2 * source, row, text)) return QString();
    double number;
    return TrendValues::parseNumber(text, number) ? QString() : text.trimmed();
}

QString AlarmKindText(qint32 kind) {
    switch (kind) {
    case 0:
        return QString();
    case 1:
        return MsgText(277);
    case 2:
        return MsgText(278);
    case 3:
        return MsgText(279);
    case 4:
        return MsgText(280);
    case 5:
        return MsgText(269);
    default:
        return QStringLiteral("ON");
    }
}

namespace ChannelTexts {

int formatCode(int viewNumber, int channel) {
    if (channel < 1 || channel > MaxChannels) return 0;
    return views(viewNumber).Channels.ChExpDigits[size_t(channel)];
}

QString holeText(int viewNumber, int channel, qint32 row) {
    const QString status = SampleStatusText(viewNumber, channel, row);
    return status.isEmpty() ? MsgText(179).trimmed() : status;
}

bool displayNumber(const QString& text, double& value) {
    QString t = text.trimmed();
    const QString decimal = displaySeps().decimal;
    if (decimal != QLatin1String(".")) {
        if (t.contains(QLatin1Char('.'))) return false;
        t.replace(decimal, QStringLiteral("."));
    }
    return TrendValues::parseNumber(t, value);
}

int displayDecimals(const QString& text) {
    const QString decimal = displaySeps().decimal;
    const qsizetype at = text.lastIndexOf(decimal);
    if (at < 0) return 0;
    int digits = 0;
    for (qsizetype i = at + decimal.size(); i < text.size() && text[i].isDigit(); ++i) ++digits;
    return digits;
}

QString displayFormat(double value, const QString& pattern) {
    return VbFormat::formatNumber(value, pattern, displaySeps());
}

QString statisticText(int viewNumber, int channel, int order, double value) {
    if (value == Chart::kHoleValue) return MsgText(179);
    if (order != 4) value = ScaleToEngineering(value, viewNumber, channel);
    return ChannelValueText(value, order <= 2 ? formatCode(viewNumber, channel) : 0);
}

} // namespace ChannelTexts

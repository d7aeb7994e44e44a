#include "trend/TrendTimeAxis.h"

#include "base/TimeBase.h"
#include "base/VbFormat.h"
#include "base/clsCommon.h"
#include "trend/TrendView.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numeric>

namespace {

constexpr qint64 kMinute = 60000, kHour = 3600000, kDay = 86400000;

qint64 floorDiv(qint64 a, qint64 b) {
    const qint64 q = a / b;
    return (a % b != 0 && ((a < 0) != (b < 0))) ? q - 1 : q;
}

// ".5" of 0.5 as the locale writes it; ".0" for a whole second; cut to the interval's digits.
QString fraction(int remainder, qint32 interval, const VbFormat::Separators& seps) {
    const QString text = VbFormat::defaultText(remainder / 1000.0, seps);
    const qsizetype at = text.indexOf(seps.decimal);
    QString part = at < 0 ? seps.decimal + QLatin1Char('0') : text.mid(at);
    if (interval < 100) {
        part += QStringLiteral("00000");
        part.truncate(interval < 10 ? 4 : 3);
    }
    return part;
}

QString dateOf(qint64 seconds, const VbFormat::Separators& seps) {
    return VbFormat::formatSeconds(seconds, clsCommon::shared().GetLongDateFormat(-1), seps);
}

// Steps of automatic time labels in milliseconds, finest first; beyond the table the last one
// doubles.
constexpr qint64 kRoundSteps[] = {
    1,        2,         5,           10,          20,           50,           100,
    200,      500,       1000,        2000,        5000,         10000,        15000,
    30000,    kMinute,   2 * kMinute, 5 * kMinute, 10 * kMinute, 15 * kMinute, 30 * kMinute,
    kHour,    2 * kHour, 3 * kHour,   6 * kHour,   12 * kHour,   kDay,         2 * kDay,
    7 * kDay, 14 * kDay, 28 * kDay};
// Automatic labels leave at most this many spaces across the span on show.
constexpr int kLabelSpaces = 10;

// The finest round time step that is a whole number of samples and leaves at most
// kLabelSpaces spaces over `span` points; 0 when no round step is a whole number of samples.
qint64 roundTimeStep(qint64 interval, double span) {
    if (interval <= 0) return 0;
    const double wanted = span * double(interval) / kLabelSpaces;
    qint64 t = 0;
    for (size_t k = 0; t < qint64(1) << 50; ++k) {
        t = k < std::size(kRoundSteps) ? kRoundSteps[k] : t * 2;
        if (t >= interval && t % interval == 0 && double(t) >= wanted) return t / interval;
    }
    return 0;
}

// Points from the first sample to the first one at a round time of `step` points: a whole
// multiple of the step since midnight (a step of a day or more counts from the first midnight).
qint64 roundTimePhase(qint64 step, qint64 interval, qint64 start, int startMsec) {
    const qint64 stepMs = std::min(step * interval, kDay);
    const qint64 sinceMidnight = (start % 86400 + 86400) % 86400 * 1000 + startMsec;
    const qint64 toRound = (stepMs - sinceMidnight % stepMs) % stepMs;
    return (toRound + interval - 1) / interval % step;
}

} // namespace

SampleTime sampleTime(qint64 index, qint32 interval, qint64 start, int startMsec) {
    SampleTime out;
    const qint64 i = interval;
    bool secondUnit = true;
    if (i >= 1 && i <= 999) {
        const qint64 total = i * index + startMsec;
        out.seconds = start + floorDiv(total, 1000);
        out.msec = int(total - floorDiv(total, 1000) * 1000);
    } else if (i >= 1000 && i < kMinute) {
        const double x = double(i * index + startMsec) / 1000.0;
        const qint64 s = VbFormat::roundHalfEven(x);
        out.seconds = start + s;
        out.msec = int(VbFormat::roundHalfEven((x - double(s)) * 1000));
    } else {
        secondUnit = false;
        if (i >= kMinute && i < kHour)
            out.seconds = start + index * (i / kMinute) * 60;
        else if (i >= kHour && i < kDay)
            out.seconds = start + index * (i / kHour) * 3600;
        else
            out.seconds = start + index * (i / kDay) * 86400;
    }
    const VbFormat::Separators seps = VbFormat::Separators::system();
    const clsCommon& common = clsCommon::shared();
    out.date = dateOf(out.seconds, seps);
    out.timeText = VbFormat::formatSeconds(out.seconds, common.GetTimeFormat(4), seps);
    out.time = secondUnit ? out.timeText
                          : VbFormat::formatSeconds(out.seconds, common.GetTimeFormat(1), seps);
    if (i >= 1 && i <= 999) out.time += fraction(out.msec, interval, seps);
    out.dateTime = out.date + QLatin1Char(' ') + out.time;
    out.msecText = QString::number(out.msec);
    return out;
}

SampleTime SampleTimeText(qint64 index, int viewNumber) {
    const ViewState& t = views(viewNumber);
    return sampleTime(index, t.SampleInterval, t.ViewStart, t.ViewStartMsec);
}

bool parseDateText(const QString& text, qint64& secondsSince2000) {
    static const QRegularExpression re(QStringLiteral("^\\s*(\\d+)\\D(\\d+)\\D(\\d+)\\s*$"));
    const auto m = re.match(text);
    if (!m.hasMatch()) return false;
    int a = m.captured(1).toInt(), b = m.captured(2).toInt(), c = m.captured(3).toInt();
    int y, mo, d;
    switch (clsCommon::shared().getShortDateDisplayOrder()) {
    case 1:
        mo = a, d = b, y = c;
        break;
    case 2:
        d = a, mo = b, y = c;
        break;
    default:
        y = a, mo = b, d = c;
        break;
    }
    if (y < 100) y += 2000;
    if (mo < 1 || mo > 12 || d < 1 || d > TimeBase::daysInMonth(y, mo)) return false;
    secondsSince2000 = TimeBase::toSeconds({y, mo, d, 0, 0, 0});
    return true;
}

bool parseTimeText(const QString& text, qint64& seconds, int& msec) {
    static const QRegularExpression re(
        QStringLiteral("^\\s*(\\d{1,2})\\D(\\d{1,2})(?:\\D(\\d{1,2})(?:[.,](\\d{1,3}))?)?\\s*$"));
    const auto m = re.match(text);
    if (!m.hasMatch()) return false;
    const int h = m.captured(1).toInt(), n = m.captured(2).toInt(), s = m.captured(3).toInt();
    if (h > 23 || n > 59 || s > 59) return false;
    seconds = h * 3600 + n * 60 + s;
    msec = m.captured(4).isEmpty() ? 0 : (m.captured(4) + QStringLiteral("00")).left(3).toInt();
    return true;
}

qint64 secondsToIndex(qint64 t, int msec, qint32 interval, qint64 start, int startMsec) {
    const qint64 i = interval;
    if (i >= 1 && i < kMinute) return floorDiv((t - start) * 1000 + msec - startMsec, i);
    if (i >= kMinute && i < kHour)
        return floorDiv(TimeBase::boundariesBetween(TimeBase::Unit::Minute, start, t), i / kMinute);
    if (i >= kHour && i < kDay)
        return floorDiv(TimeBase::boundariesBetween(TimeBase::Unit::Hour, start, t), i / kHour);
    const qint64 days = std::max<qint64>(i / kDay, 1);
    return floorDiv(TimeBase::boundariesBetween(TimeBase::Unit::Day, start, t), days);
}

bool timeToIndex(const QString& dateText, const QString& timeText, qint32 interval, qint64 start,
                 int startMsec, qint64& index) {
    qint64 day, secs;
    int msec;
    if (!parseDateText(dateText, day) || !parseTimeText(timeText, secs, msec)) return false;
    index = secondsToIndex(day + secs, msec, interval, start, startMsec);
    return true;
}

bool TimeToIndex(const QString& dateText, const QString& timeText, int viewNumber, qint64& index) {
    const ViewState& t = views(viewNumber);
    return timeToIndex(dateText, timeText, t.SampleInterval, t.ViewStart, t.ViewStartMsec, index);
}

void TrendTimeAxis::X_AxisSet(bool labelsWanted) {
    ChartModel& chart = v_.chart();
    if (chart.chartType() == Chart::kTypePolar) return;
    const TrendViewState& st = v_.state();
    const qint64 n = v_.tables().PointCount;
    ChartAxis& x = chart.axisX();
    const qint64 interval = st.TimeLabelInterval[0];
    const qint64 sub = st.TimeLabelInterval[1];
    const double shownMin = x.min(), shownMax = x.max();
    const ViewState& t = v_.tables();
    qint64 step = 1, phase = 0;
    if (interval > 0) {
        step = sub > 0 ? std::gcd(interval, sub) : interval;
    } else if (const qint64 roundStep = roundTimeStep(t.SampleInterval, shownMax - shownMin)) {
        // Without an interval of the user's, labels fall at round times of the clock.
        step = roundStep;
        phase = roundTimePhase(step, t.SampleInterval, t.ViewStart, t.ViewStartMsec);
    } else if (x.labelInterval() != Chart::kHoleValue && x.labelInterval() > 1) {
        step = qint64(x.labelInterval());
    }
    const qint64 labelStep = interval > 0 ? interval : step;
    x.setLabelMethod(Chart::LabelMethod::ValueLabels);
    x.valueLabels().clear();
    const VbFormat::Separators seps = VbFormat::Separators::system();
    const QString dayPattern = QStringLiteral("mm/dd");
    qint64 i =
        phase + std::max<qint64>(0, qint64(std::ceil((shownMin - phase) / double(step)))) * step;
    for (; i <= n - 1 && double(i) <= shownMax; i += step) {
        if ((i - phase) % labelStep == 0) {
            const SampleTime here = SampleTimeText(i, v_.GetGroup());
            QString text = here.time;
            const bool nextDiffers = i + labelStep <= n - 1 &&
                                     SampleTimeText(i + labelStep, v_.GetGroup()).date != here.date;
            const bool previousDiffers =
                i - labelStep >= 0 &&
                SampleTimeText(i - labelStep, v_.GetGroup()).date != here.date;
            if (nextDiffers || previousDiffers)
                text +=
                    QStringLiteral("\n ") + VbFormat::formatSeconds(here.seconds, dayPattern, seps);
            x.valueLabels().add(double(i), text);
        } else if (sub > 0 && i % sub == 0) {
            x.valueLabels().add(double(i), QString());
        }
    }
    // With no interval of its own the axis keeps choosing its step from the span shown.
    if (labelsWanted && st.AxisLabelsOn && interval > 0) x.setLabelInterval(double(interval));
    chart.touch();
}

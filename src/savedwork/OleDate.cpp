#include "savedwork/OleDate.h"

#include <cmath>

namespace {
constexpr qint64 kSecondsPerDay = 86400;
}

namespace OleDate {

double fromSeconds2000(qint64 seconds) {
    qint64 days = seconds / kSecondsPerDay;
    qint64 rest = seconds % kSecondsPerDay;
    if (rest < 0) {
        rest += kSecondsPerDay;
        --days;
    }
    const double day = double(days) + kDate2000;
    const double fraction = double(rest) / double(kSecondsPerDay);
    return day >= 0 ? day + fraction : day - fraction;
}

qint64 toSeconds2000(double date) {
    if (!std::isfinite(date) || std::fabs(date) > 1e12) return 0;
    const double day = date >= 0 ? std::floor(date) : std::ceil(date);
    const double fraction = std::fabs(date - day);
    const qint64 days = qint64(day) - qint64(kDate2000);
    return days * kSecondsPerDay + qint64(std::llround(fraction * double(kSecondsPerDay)));
}

} // namespace OleDate

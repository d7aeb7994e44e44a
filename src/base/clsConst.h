#pragma once

#include "base/LocaleInfo.h"
#include "base/VbFormat.h"

#include <QString>
#include <QtGlobal>

// The application-wide constants and the locale's date order and separators, read-only.
class clsConst {
public:
    explicit clsConst(const LocaleInfo& locale);

    // The instance of the process, made from the user's locale on first use.
    static const clsConst& shared();

    quint32 BackGroundColor() const { return 0xE1FFFF; } // 0x00BBGGRR: pale yellow
    int MaximumDisplayCount() const { return 10; }
    int MaximumAlarmCount() const { return 3600000; }
    int MaximumAlarmLevel() const { return 4; }
    // 0 month-day-year, 1 day-month-year, 2 year-month-day.
    int DateDisplayOrder() const { return dateOrder_; }
    QString DecimalSeparator() const { return decimalSeparator_; }
    QString TimeSeparator() const { return timeSeparator_; }
    QString DateSeparator() const { return dateSeparator_; }
    // i in 0..4: "#######0" .. "##0.0000"; "" for any other index.
    QString DecimalFormat(int i) const;
    // The separators for texts shown to the user.
    VbFormat::Separators displaySeparators() const {
        return {decimalSeparator_, thousandSeparator_, dateSeparator_, timeSeparator_};
    }

private:
    int dateOrder_ = 0;
    QString decimalSeparator_;
    QString timeSeparator_;
    QString dateSeparator_;
    QString thousandSeparator_;
};

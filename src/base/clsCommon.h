#pragma once

#include "base/clsConst.h"

#include <QString>
#include <QStringList>
#include <QtGlobal>

// The shared lists of time and date patterns (with the locale's separators in place), the
// operation mode and the label-phase test of the time axis.
class clsCommon {
public:
    static constexpr int kInvalidArgument = 5;

    explicit clsCommon(const clsConst& constants);

    // The instance of the process, made over clsConst::shared() on first use.
    static clsCommon& shared();

    // OperationMode: 0 standard, 34 GS mode, 4 ZUW edition.
    static constexpr int kStandardMode = 0;
    static constexpr int kGsMode = 34;
    static constexpr int kZuwMode = 4;
    int OperationMode() const { return operationMode_; }
    void setOperationMode(int mode) { operationMode_ = mode; }
    bool isGsMode() const { return operationMode_ == kGsMode; }

    // Position 1..5: "h:nn", "hh:nn", "h:n:s", "h:nn:ss", "hh:nn:ss"; "" outside.
    QString GetTimeFormat(int style) const;
    // Position 1..3 ("mm/dd/yyyy", "dd/mm/yyyy", "yyyy/mm/dd"); -1 is the locale's order.
    QString GetLongDateFormat(int order) const;
    // Position 1..3 ("mm/dd/yy", "dd/mm/yy", "yy/mm/dd"); -1 is the locale's order.
    QString GetShortDateFormat(int order) const;
    int getShortDateDisplayOrder() const { return dateOrder_ + 1; }
    // The time of the three fields in time pattern `style`.
    QString GetFormattedTime(int style, int hour, int minute, int second) const;
    QString GetFormattedLongDate() const { return QString(); }
    // False where no help is offered: the Chinese table in GS mode.
    bool helpAvailable(int language) const { return !(language == 4 && isGsMode()); }
    // Opens the manual's page for a window (its object name) in the desktop's viewer. Does
    // nothing where no help is offered for the active language. False when nothing was opened.
    bool ShowHelp(const QString& window = QString()) const;

    // Whether two time stamps (seconds since 2000 and their milliseconds) stand in the same
    // phase of a label interval in milliseconds. An interval below 1 sets *error to
    // kInvalidArgument and gives false.
    static bool IsReadable(qint64 interval, qint64 t1, qint64 t2, int ms1, int ms2,
                           int* error = nullptr);

private:
    VbFormat::Separators seps_;
    int dateOrder_ = 0;
    int operationMode_ = 0;
    QStringList timeFormats_;
    QStringList longDateFormats_;
    QStringList shortDateFormats_;
};

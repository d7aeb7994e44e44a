#pragma once

#include "TrendFixture.h"
#include "app/clsConst.h"
#include "platform/ChartGeometry.h"
#include "trend/TrendCursors.h"
#include "trend/TrendView.h"

#include <QSizeF>

#include <gtest/gtest.h>

namespace cursortest {

// A loaded view of plain channels with its cursors, as the window holds them after a load.
struct CursorView {
    CursorView(int number, const std::vector<std::vector<qint16>>& channels, int decimals = 0,
               const QString& low = QStringLiteral("0"),
               const QString& high = QStringLiteral("100"))
        : view(prepared(number, channels, decimals, low, high)), cursors(view) {
        EXPECT_TRUE(view.afterLoad());
        cursors.afterLoad();
    }
    static int prepared(int number, const std::vector<std::vector<qint16>>& channels, int decimals,
                        const QString& low, const QString& high) {
        trendtest::makeView(number, channels, decimals, low, high);
        return number;
    }
    ChartGeometry geometry() const { return ChartGeometry(view.chart(), QSizeF(800, 400)); }
    // A pixel inside the plot at fractions across and up.
    QPointF inPlot(double fx, double fy) const {
        const QRectF plot = geometry().plotArea();
        return {plot.left() + fx * plot.width(), plot.bottom() - fy * plot.height()};
    }
    const CursorSideGrid& side() { return cursors.sideGrid(); }

    TrendView view;
    TrendCursors cursors;
};

// A ramp of n raw values starting at `first`.
inline std::vector<qint16> ramp(int n, int first = 0) {
    std::vector<qint16> v(static_cast<size_t>(n));
    for (int i = 0; i < n; ++i) v[size_t(i)] = qint16(first + i);
    return v;
}

// A text written with "." and ":" in the separators that the user sees.
inline QString shown(QString text) {
    const VbFormat::Separators seps = clsConst::shared().displaySeparators();
    QString out;
    for (QChar c : text) {
        if (c == QLatin1Char('.'))
            out += seps.decimal;
        else if (c == QLatin1Char(':'))
            out += seps.time;
        else
            out += c;
    }
    return out;
}

} // namespace cursortest

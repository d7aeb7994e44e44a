#pragma once

#include "TrendFixture.h"
#include "base/clsConst.h"
#include "platform/ChartGeometry.h"
#include "trend/TrendCursors.h"

#include <QSizeF>

namespace cursortest {

// A loaded view of plain channels with its cursors, as the window holds them after a load.
struct CursorView : trendtest::LoadedView {
    CursorView(int number, const trendtest::Columns& channels, int decimals = 0,
               const QString& low = QStringLiteral("0"),
               const QString& high = QStringLiteral("100"))
        : LoadedView(number, channels, decimals, low, high), cursors(view) {
        cursors.afterLoad();
    }
    ChartGeometry geometry() const { return ChartGeometry(view.chart(), QSizeF(800, 400)); }
    // A pixel inside the plot at fractions across and up.
    QPointF inPlot(double fx, double fy) const {
        const QRectF plot = geometry().plotArea();
        return {plot.left() + fx * plot.width(), plot.bottom() - fy * plot.height()};
    }
    const CursorSideGrid& side() { return cursors.sideGrid(); }

    TrendCursors cursors;
};

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

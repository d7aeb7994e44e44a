#pragma once

#include "platform/ChartLayout.h"
#include "platform/ChartTypes.h"

#include <QColor>
#include <QFont>
#include <QLineF>
#include <QPen>
#include <QPolygonF>
#include <QRect>
#include <QString>

#include <vector>

// What one repaint draws, prepared from the model for a size: the painter then only strokes.
struct RenderPlan {
    struct Fill {
        QRectF rect;
        QColor color;
    };
    struct Lines {
        QPen pen;
        std::vector<QLineF> lines;
        bool clipToPlot = false;
    };
    struct Symbol {
        QPointF center;
        Chart::SymbolShape shape;
        int size;
        QColor color;
    };
    // One series: anti-aliased polylines where points are few, one filled pixel column of
    // min..max per pixel where they are many.
    struct Series {
        QPen pen;
        std::vector<QPolygonF> polylines;
        std::vector<QPointF> lonePoints; // a value with holes on both sides
        std::vector<QRect> columns;
        std::vector<Symbol> symbols;
    };
    // A text, optionally in a box; drawn around `origin` turned by `rotation` degrees.
    struct Text {
        QPointF origin;
        QRectF rect; // relative to origin before rotation
        QString text;
        QFont font;
        QColor color;
        int flags = Qt::AlignCenter;
        int rotation = 0;
        QColor background; // invalid: none
        QPen border = Qt::NoPen;
    };

    QSizeF size;
    ChartLayout layout;
    std::vector<Fill> fills;
    std::vector<Lines> grid; // under the series
    std::vector<Series> series;
    std::vector<Lines> frame; // axis lines, ticks, legend swatches: over the series
    std::vector<Text> texts;  // axis labels, titles, legend, chart labels
};

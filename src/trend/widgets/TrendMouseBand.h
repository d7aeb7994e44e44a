#pragma once

#include <QObject>
#include <QPointF>
#include <QRect>

class ChartWidget;
class TrendView;

// The zoom bands of the trend chart: the left button drags an X band, the right button a Y band.
// The band is held to the plot rectangle and drawn as the chart's rubber band; at button up
// its edges are hit-tested and handed to the zoom logic. A right click that never became a band
// asks for the popup menu instead.
class TrendMouseBand : public QObject {
    Q_OBJECT
public:
    TrendMouseBand(TrendView& trend, ChartWidget& chart, QObject* parent = nullptr);

    bool active() const { return kind_ != Kind::None; }

Q_SIGNALS:
    // A band changed the zoom level.
    void zoomed();
    // A right click without a band: the popup menu at this widget pixel.
    void popupRequested(const QPoint& pixel);

private:
    enum class Kind { None, X, Y };

    void pressed(Qt::MouseButton button, const QPointF& pixel);
    void moved(const QPointF& pixel);
    void released(Qt::MouseButton button, const QPointF& pixel);
    void start(Kind kind, const QPointF& pixel);
    void drawBand();
    void finish();
    void clear();

    TrendView& trend_;
    ChartWidget& chart_;
    Kind kind_ = Kind::None;
    QRectF plot_;
    QPointF from_;
    QPointF to_;
    // A right button that went down inside the plot and has not moved far yet.
    bool rightPending_ = false;
    QPointF rightFrom_;
};

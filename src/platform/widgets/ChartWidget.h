#pragma once

#include "platform/ChartGeometry.h"

#include <QColor>
#include <QImage>
#include <QWidget>

#include <vector>

class ChartModel;

// Shows a ChartModel and reports the mouse in pixels and data coordinates. The chart is drawn
// into a cached image when the model or the size changes; the rubber band and cursor lines are
// drawn over that image, so moving them costs no new plan.
class ChartWidget : public QWidget {
    Q_OBJECT

public:
    struct CursorLine {
        double x = 0; // data X
        QColor color = Qt::blue;
        int width = 1;
    };

    explicit ChartWidget(ChartModel* model, QWidget* parent = nullptr);

    ChartModel* model() const { return model_; }
    // Geometry of the chart at the widget's present size (plot area, hit tests, conversions).
    ChartGeometry chartGeometry() const;

    // A band in widget pixels; an empty rectangle removes it.
    void setRubberBand(const QRect& band);
    void setCursorLines(const std::vector<CursorLine>& lines);

Q_SIGNALS:
    void mousePressed(Qt::MouseButton button, const QPointF& pixel, const QPointF& data,
                      Qt::KeyboardModifiers modifiers);
    void mouseMoved(Qt::MouseButtons buttons, const QPointF& pixel, const QPointF& data,
                    Qt::KeyboardModifiers modifiers);
    void mouseReleased(Qt::MouseButton button, const QPointF& pixel, const QPointF& data,
                       Qt::KeyboardModifiers modifiers);
    void mouseDoubleClicked(Qt::MouseButton button, const QPointF& pixel, const QPointF& data,
                            Qt::KeyboardModifiers modifiers);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void modelChanged();
    QPointF dataAt(const QPointF& pixel) const;

    ChartModel* model_;
    QImage cache_;
    bool cacheValid_ = false;
    QRect band_;
    std::vector<CursorLine> cursors_;
};

#pragma once

#include <QString>
#include <QtGlobal>

class TrendView;

// The window of points on show, the scroll bar, and the zoom stack of a view.
class TrendZoom {
public:
    static constexpr int kTopLevel = 100;

    explicit TrendZoom(TrendView& view) : v_(view) {}

    // Shows points first..last (1-based): X range, scroll bar, the "Title" date line, X texts.
    void SetDataRange(qint32 first, qint32 last);
    // Makes a stack level current.
    void SetZoom(int level);
    // hsbTrendGraph changed to `value`.
    void scroll(int value);

    // A band may start: left button for an X band, right for a Y band. A full stack beeps and
    // sets the zoom-pending flag.
    bool canStartBand(bool yBand);
    // A finished band: two points (1-based, as the hit test gives them) or two Y values. False
    // when the band was dropped.
    bool zoomX(qint32 point1, qint32 point2);
    bool zoomY(double y1, double y2);
    // The chart's own zoom changed the X and Y ranges (mapped action 7).
    void chartZoomAction();
    // A span chosen in the time axis dialog (1-based points), pushed as a new level.
    void pushSpan(qint32 first, qint32 last);

    // Commands 1 (back one level) and 2 (whole recording).
    void back();
    void whole();

    // The date line of a shown range: one date, or first date, message 90, last date.
    static QString titleText(const QString& firstDate, const QString& lastDate);

private:
    int nextLevel();
    void updateScrollBar(qint32 first, qint32 last);
    void setTitle(const QString& text);

    TrendView& v_;
};

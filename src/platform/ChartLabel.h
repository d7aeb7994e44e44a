#pragma once

#include "base/WinColor.h"
#include "platform/ChartTypes.h"

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QString>

#include <memory>
#include <vector>

// A text box in the chart: the date line "Title", comments, alarm marks.
struct ChartLabel {
    struct DataIndex {
        int Series = 1; // 1-based, as the model's series
        int Point = 1;  // 1-based
    };
    struct LabelBorder {
        Chart::BorderType Type = Chart::BorderType::None;
        int Width = 1;
    };
    struct LabelInterior {
        QColor BackgroundColor; // invalid: no fill
        QColor ForegroundColor = Qt::black;
    };

    QString Name;
    bool IsBatched = false;
    bool IsShown = true;
    QString Text; // may hold line breaks
    LabelBorder Border;
    Chart::Anchor Anchor = Chart::Anchor::NorthEast;
    QFont Font;
    Chart::AttachMethod AttachMethod = Chart::AttachMethod::Coord;
    QPointF AttachCoord;     // pixels from the chart's top left
    QPointF AttachDataCoord; // x, y in the units of X and Y
    DataIndex AttachDataIndex;
    int Offset = 0;   // pixels between the attachment point and the box
    int Rotation = 0; // degrees, counter-clockwise
    LabelInterior Interior;
};

// The chart label collection (0-based by index, or by name). Labels keep their address while
// others are added or removed.
class ChartLabels {
public:
    ChartLabel& add(const QString& name = QString());
    // The first label of this name, or null.
    ChartLabel* item(const QString& name);
    const ChartLabel* item(const QString& name) const;
    ChartLabel& item(int index) { return *items_[size_t(index)]; }
    const ChartLabel& item(int index) const { return *items_[size_t(index)]; }
    int count() const { return int(items_.size()); }
    bool remove(const QString& name);
    void removeAt(int index);
    void clear() { items_.clear(); }

private:
    std::vector<std::unique_ptr<ChartLabel>> items_;
};

// Header and footer of the chart.
struct ChartTitle {
    bool IsShown = false;
    QString Text;
    QFont Font;
    QColor ForegroundColor = Qt::black;
    QColor BackgroundColor; // invalid: no fill
    Chart::BorderType BorderType = Chart::BorderType::None;
};

struct ChartLegend {
    bool IsShow = false;
    QString Text; // heading above the entries
    QFont Font;
    QColor BackColor = Qt::white;
    QColor ForeColor = Qt::black;
    Chart::Anchor Anchor = Chart::Anchor::East;
    Qt::Orientation Orientation = Qt::Vertical;
    Chart::BorderType BorderType = Chart::BorderType::Plain;
};

struct ChartColors {
    QColor ControlBackColor = WinColor::toQColor(Chart::kBackgroundColorRef);
    QColor ChartAreaBackColor = WinColor::toQColor(Chart::kBackgroundColorRef);
    QColor PlotAreaBackColor = WinColor::toQColor(Chart::kBackgroundColorRef);
    QColor AxisColor = Qt::black;
    QColor GridColor = QColor(160, 160, 160);
    QColor SubGridColor = QColor(215, 215, 215);
};

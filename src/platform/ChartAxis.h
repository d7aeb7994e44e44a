#pragma once

#include "platform/ChartTypes.h"

#include <QColor>
#include <QFont>
#include <QString>

#include <vector>

class ChartModel;

// A text at a value of an axis. An empty text marks a grid line without a label.
struct ValueLabel {
    double value = 0;
    QString text;
    QColor color; // invalid: the axis's label colour
};

// The value label collection of an axis (0-based items, in the order of adding).
class ValueLabels {
public:
    void add(double value, const QString& text, const QColor& color = QColor());
    // Removes every label at exactly this value; false when there was none.
    bool removeByValue(double value);
    const ValueLabel& item(int index) const { return items_[size_t(index)]; }
    int count() const { return int(items_.size()); }
    void clear() { items_.clear(); }
    const std::vector<ValueLabel>& items() const { return items_; }

private:
    std::vector<ValueLabel> items_;
};

// One axis of the chart: X, Y or Y2. Min, Max and the label interval are either set or
// automatic; read back, an automatic one answers what the model computed from the visible
// series. Every setter marks the model changed.
class ChartAxis {
public:
    ChartAxis(ChartModel* model, Chart::Axis id);
    // Every setting of another axis; this one stays with its own model.
    void assignSettings(const ChartAxis& other);

    Chart::Axis id() const { return id_; }

    double min() const;
    double max() const;
    void setMin(double value); // clears the automatic flag
    void setMax(double value);
    bool isMinAuto() const { return minAuto_; }
    bool isMaxAuto() const { return maxAuto_; }
    void setMinAuto(bool on);
    void setMaxAuto(bool on);
    // Where the axis's marker line stands; the axis minimum until set.
    double origin() const;
    void setOrigin(double value); // clears the automatic flag
    bool isOriginAuto() const { return originAuto_; }
    void setOriginAuto(bool on);

    // Data units between labelled ticks; automatic until set. On a logarithmic axis, decades.
    double labelInterval() const;
    void setLabelInterval(double value);
    bool isLabelIntervalAuto() const { return labelIntervalAuto_; }
    void setLabelIntervalAuto(bool on);
    // Data units between unlabelled grid lines; 0 draws none.
    double subGridInterval() const { return subGridInterval_; }
    void setSubGridInterval(double value);

    bool isReversed() const { return reversed_; }
    void setReversed(bool on);
    bool isLogarithmic() const { return logarithmic_; }
    void setLogarithmic(bool on);
    bool isShown() const { return shown_; }
    void setShown(bool on);
    bool areLabelsShown() const { return labelsShown_; }
    void setLabelsShown(bool on);
    bool isGridShown() const { return gridShown_; }
    void setGridShown(bool on);

    Chart::LabelMethod labelMethod() const { return labelMethod_; }
    void setLabelMethod(Chart::LabelMethod method);
    // Decimals of automatic label texts; -1 chooses them from the label interval.
    int precision() const { return precision_; }
    void setPrecision(int decimals);
    ValueLabels& valueLabels();
    const ValueLabels& valueLabels() const { return valueLabels_; }

    QString title() const { return title_; }
    void setTitle(const QString& text);
    QFont titleFont() const { return titleFont_; }
    void setTitleFont(const QFont& font);
    int titleRotation() const { return titleRotation_; } // degrees, counter-clockwise
    void setTitleRotation(int degrees);
    QFont font() const { return font_; } // of the labels
    void setFont(const QFont& font);
    QColor labelColor() const { return labelColor_; }
    void setLabelColor(const QColor& color);

private:
    void changed();
    template <typename T> void set(T& field, const T& value) {
        field = value;
        changed();
    }

    ChartModel* model_;
    Chart::Axis id_;
    double min_ = 0;
    double max_ = 100;
    bool minAuto_ = true;
    bool maxAuto_ = true;
    double origin_ = 0;
    bool originAuto_ = true;
    double labelInterval_ = 10;
    bool labelIntervalAuto_ = true;
    double subGridInterval_ = 0;
    bool reversed_ = false;
    bool logarithmic_ = false;
    bool shown_ = true;
    bool labelsShown_ = true;
    bool gridShown_ = true;
    Chart::LabelMethod labelMethod_ = Chart::LabelMethod::Values;
    int precision_ = -1;
    ValueLabels valueLabels_;
    QString title_;
    QFont titleFont_;
    int titleRotation_ = 0;
    QFont font_;
    QColor labelColor_ = Qt::black;
};

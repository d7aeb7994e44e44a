#pragma once

#include "platform/ChartModel.h"
#include "recording/ViewState.h"
#include "trend/TrendPlot.h"
#include "trend/TrendScaleAxes.h"
#include "trend/TrendTimeAxis.h"
#include "trend/TrendViewState.h"
#include "trend/TrendZoom.h"

#include <array>
#include <functional>
#include <memory>

// A scroll bar of the view as the logic sets it; the window copies it to its control.
struct ScrollBarState {
    qint16 Min = 1;
    qint16 Max = 1;
    qint16 Value = 1;
    qint16 SmallChange = 1;
    qint16 LargeChange = 1;
    bool Enabled = false;
};

// What the logic decides of the window around the chart: toolbar buttons, scroll bar, the
// caption of the channel list. The window reads it after each call; hooks let it redraw the
// parts that the logic does not own (side panels, legend marks, layout).
struct TrendWindowState {
    std::array<bool, 23> Toolbar2Enabled{}; // by command number 1..22
    ScrollBarState hsbTrendGraph;
    QString SelectCaption; // "TAG" once a recording stands in the view
    QString Caption;       // window caption; emptied by a refused load
    int YAxisWidth = 0;    // kept width of Y while the strips stand
    bool TooLarge = false; // the last load was refused for its size
    QString DateTemp;      // lblDateTemp: date and time of the row a list points the view at

    std::function<void()> formResize;      // Form_Resize
    std::function<void()> sidePanels;      // cursor side panels (Part of the cursor logic)
    std::function<void()> titleRolaction;  // TitleRolaction
    std::function<void()> legendMarks;     // legend marks of the channel list
    std::function<void()> beep;            // a refused zoom band
    std::function<void()> multiScaleDrawn; // strips recomputed (TrendScaleAxes::strips())
    // DataList_disp_check: which channels are shown, to the side grid.
    std::function<void()> dataListDispCheck;
};

// The trend logic of one view (1..10): what the window, the CLI and the tests drive. It owns the
// chart model of the trend; the view's store, tables and state are the process-wide ones of its
// number.
class TrendView {
public:
    explicit TrendView(int viewNumber);
    ~TrendView();
    TrendView(const TrendView&) = delete;
    TrendView& operator=(const TrendView&) = delete;

    int GetGroup() const { return view_; }
    ChartModel& chart() { return *chart_; }
    const ChartModel& chart() const { return *chart_; }
    ViewState& tables() const { return views(view_); }
    TrendViewState& state() const { return trendState(view_); }
    TrendWindowState& window() { return window_; }
    const TrendWindowState& window() const { return window_; }

    TrendPlot& plot() { return plot_; }
    TrendScaleAxes& scales() { return scales_; }
    TrendTimeAxis& time() { return time_; }
    TrendZoom& zoom() { return zoom_; }

    // The order of work after the readers filled the store: saved settings, fill, axes, whole
    // recording on show. False when the view refused the recording.
    bool afterLoad(Progress* progress = nullptr);

    // After the multi-scale rows were set: the strips read percents of each channel's scale, so
    // the series follow into percent mode, shown whole on Y 0..100.
    void showMultiScaleStrips();

    // Toolbar2 and popup commands of the chart (1, 2, 12, 13 here; others to their owners).
    // Returns false for a command this logic does not handle.
    bool command(int number);

    // Reads the saved trend settings of a view into its trend state; the records are kept by a
    // library above this one, which installs its reader at start.
    using SavedSettingsReader = std::function<void(int viewNumber)>;
    static void setSavedSettingsReader(SavedSettingsReader reader);

    // Calls a window hook if the window set one.
    static void call(const std::function<void()>& hook) {
        if (hook) hook();
    }

private:
    int view_;
    std::unique_ptr<ChartModel> chart_;
    TrendWindowState window_;
    TrendPlot plot_;
    TrendScaleAxes scales_;
    TrendTimeAxis time_;
    TrendZoom zoom_;
};

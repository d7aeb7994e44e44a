#pragma once

#include <QStringList>
#include <QWidget>

#include <array>
#include <functional>
#include <memory>
#include <vector>

class ChartWidget;
class MultiScaleStripWidget;
class QAction;
class QComboBox;
class QLabel;
class QMenu;
class QMenuBar;
class QScrollBar;
class QTimer;
class QToolBar;
class SideGridView;
class TrendCursors;
class TrendMouseBand;
class TrendView;

// The trend view window of one view (1..10): the chart of the view's recording, the scroll bar
// along the plot, the side scale strips, the tool bar and the view's commands. The main window
// creates it, copies the selection into the view's tables (copySelectionToView) and calls
// LoadRecording().
class frmScrollTime : public QWidget {
    Q_OBJECT
public:
    explicit frmScrollTime(int viewNumber, QWidget* parent = nullptr);
    ~frmScrollTime() override;

    int GetGroup() const { return viewNumber_; }
    TrendView& trend() { return *trend_; }
    TrendCursors& cursors() { return *cursors_; }
    SideGridView* sideGrid() const { return sideGrid_; }

    // Reads the view's files into its store with a progress window, then shows the trend.
    // Failures show their message. False when no recording stands in the view afterwards.
    bool LoadRecording();

    // Runs a command of Toolbar2 and the chart's popup menu (1, 2, 11, 12, 13).
    void command(int number);
    // Runs a command of the view's Toolbar1 (1 close data, 2 open files, and the windows that
    // libraries above this one install: 5 the data list ...).
    void toolbar1Command(int number);
    // Installs the window that a Toolbar1 command opens for a view; set before views are made.
    using WindowOpener = std::function<void(frmScrollTime& view)>;
    static void setToolbar1Window(int number, WindowOpener opener);
    // Opens the multi-scale rows of the view (frmMultiScaleSet) and applies them on OK.
    void showMultiScaleSet();

    ChartWidget* chartWidget() const { return chart_; }
    QScrollBar* hsbTrendGraph() const { return hsbTrendGraph_; }
    QToolBar* Toolbar2() const { return Toolbar2_; }
    // The channel choice on Toolbar2: all channels, or one alone.
    QComboBox* cbxSelectCH() const { return cbxSelectCH_; }
    // The action of a Toolbar2 command; null for a command the bar does not carry.
    QAction* toolbar2Action(int number) const;
    // The chart's popup menu, as it stands now.
    QMenu* popupMenu() const { return popup_; }
    // The date line of the span on show.
    QString titleText() const;
    // The side scale strips on show (ScaleType 2).
    std::vector<MultiScaleStripWidget*> strips() const;

Q_SIGNALS:
    // The window closed; its slot is free again.
    void viewClosed(int viewNumber);
    // Files were dropped on the view (or chosen by its open command); the main window decides
    // what they open.
    void filesDropped(int viewNumber, const QStringList& paths);
    // The view's "Open files" command: the main window chooses the files for this view.
    void openFilesRequested(int viewNumber);

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildToolbars();
    void buildMenus(QMenuBar* bar);
    QAction* makeCommand(int number, const QString& text);
    void setHooks();
    void Form_Resize();
    void drawStrips();
    void syncControls();
    void scrolled(int value);
    void commandAfterDialog(int number);
    void buildCursorParts();
    void chartMouseMoved(const QPointF& pixel);
    void chartClicked(Qt::MouseButton button);
    void showHoverText();
    void followYRange();
    void setAlarmMarksShown(bool on);
    void showMarkerLine();
    void buildChannelChoice();
    void syncChannelChoice();
    void fitSideGrid();

    int viewNumber_;
    std::unique_ptr<TrendView> trend_;
    std::unique_ptr<TrendCursors> cursors_;
    SideGridView* sideGrid_ = nullptr;
    QTimer* Timer1_ = nullptr;
    QAction* alarmMarks_ = nullptr;
    bool followingY_ = false;
    bool markerShown_ = false;
    ChartWidget* chart_ = nullptr;
    QWidget* plotArea_ = nullptr;
    QLabel* lblTitle_ = nullptr;
    QLabel* lblDateTemp_ = nullptr;
    QScrollBar* hsbTrendGraph_ = nullptr;
    QToolBar* Toolbar2_ = nullptr;
    QLabel* lblSelectCH_ = nullptr;
    QComboBox* cbxSelectCH_ = nullptr;
    QMenu* popup_ = nullptr;
    TrendMouseBand* band_ = nullptr;
    std::array<QAction*, 23> commands_{};
    std::vector<MultiScaleStripWidget*> strips_;
    bool syncing_ = false;
    double stripPlotHeight_ = -1;
};

#pragma once

#include "analysis/GridModel.h"
#include "analysis/MarkerView.h"

#include <QWidget>

#include <functional>

class GridTableModel;
class QAction;
class QTableView;
class QToolBar;
class frmScrollTime;

// The marker view window of one view: tool bar (cursor steps, settings, statistics, outputs),
// the menus gamen_1 (on top), CAl_1 (automatic statistics), disp_1 and disp_2 (the column
// groups), and the grid vaSpread1. It stands beside its view and closes with it.
class frmMarkerView : public QWidget {
    Q_OBJECT
public:
    explicit frmMarkerView(frmScrollTime& view);
    ~frmMarkerView() override;

    // Opens the marker view of a view, or brings its open one to the front.
    static frmMarkerView* open(frmScrollTime& view);
    // What an output button (10 print settings, 11 preview, 12 print, 13 file) does; a button
    // without one stays disabled.
    using OutputCommand = std::function<void(frmMarkerView& window)>;
    static void setOutputCommand(int button, OutputCommand command);

    // The tool bar's action by button index.
    void ToolbarSet(int button);
    void copySelection(); // pop1_1

    MarkerView& marker() { return marker_; }
    GridModel& grid() { return grid_; }
    QTableView* vaSpread1() const { return vaSpread1_; }
    QAction* button(int index) const;
    QAction* menu(const char* name) const;

private:
    void buildToolbar();
    void buildMenus();
    void applyShape();
    void redraw();

    frmScrollTime& view_;
    GridModel grid_;
    MarkerView marker_;
    GridTableModel* model_ = nullptr;
    QTableView* vaSpread1_ = nullptr;
    QToolBar* Toolbar1_ = nullptr;
};

// Connects command 6 of the trend views to this window.
void installMarkerView();

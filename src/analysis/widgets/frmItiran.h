#pragma once

#include "analysis/DataList.h"
#include "analysis/GridModel.h"

#include <QWidget>

#include <array>
#include <functional>

class GridTableModel;
class QAction;
class QLabel;
class QMenu;
class QTableView;
class QToolBar;
class TrendView;
class frmScrollTime;

// The data list window of one view: the tool bar of row sets and outputs, Label1 with the hover
// text of a button, and the grid vaSpread1 over the list's virtual rows. It stands beside its
// view and closes with it.
class frmItiran : public QWidget {
    Q_OBJECT
public:
    frmItiran(TrendView& view, QWidget* parent = nullptr);
    ~frmItiran() override;

    // Opens the list of a view, or brings its open list to the front.
    static frmItiran* open(frmScrollTime& view);

    // Installs what an output button (5 print settings, 7 print, 8 file, 9 Excel, 11 help)
    // does; a button without one stays disabled.
    using OutputCommand = std::function<void(frmItiran& list)>;
    static void setOutputCommand(int button, OutputCommand command);

    // The circular graph moved to another circle. Invokable by name, so that the trend view
    // reaches it without knowing the class.
    Q_INVOKABLE void CircleRechange();
    // A tool bar button by index 1..11, as a click on it.
    void toolbarCommand(int index);
    // Copies the selected block to the clipboard (pop1_1).
    void copySelection();

    DataList& list() { return list_; }
    GridModel& grid() { return grid_; }
    QTableView* vaSpread1() const { return vaSpread1_; }
    QLabel* Label1() const { return Label1_; }
    QAction* button(int index) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildToolbar();
    void buildMenus();
    void applyShape();
    void cellChosen(const QModelIndex& index);
    void selectionMoved();

    GridModel grid_;
    DataList list_;
    GridTableModel* model_ = nullptr;
    QTableView* vaSpread1_ = nullptr;
    QToolBar* Toolbar1_ = nullptr;
    QLabel* Label1_ = nullptr;
    QMenu* pop1_ = nullptr;
    std::array<QAction*, 12> buttons_{};
};

// Lets every view open its data list (Toolbar1 command 5); called once at start.
void installDataList();

#pragma once

#include <QWidget>

#include <functional>

class QTableWidget;
class frmScrollTime;

// The batch information of a view beside its trend (spdBatchInfo), modeless; its menu keeps
// the window on top (mnuTopMost).
class frmBatchInfo : public QWidget {
    Q_OBJECT
public:
    frmBatchInfo(int viewNumber, QWidget* parent = nullptr);

    // Shows the table of the view, one window a view.
    static frmBatchInfo* ShowModeless(frmScrollTime& view);
    QTableWidget* spdBatchInfo() const { return table_; }
    int viewNumber() const { return viewNumber_; }

    // What the menu's print commands do (0 print settings, 1 print the table, 2 the report's
    // preview, 3 print the report); a command without one stays disabled.
    using Command = std::function<void(frmBatchInfo& window)>;
    static void setCommand(int which, Command command);

private:
    void fill();

    int viewNumber_;
    QTableWidget* table_;
};

// Connects tool bar command 13 of the trend views to this window.
void installBatchInfo();

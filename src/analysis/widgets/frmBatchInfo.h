#pragma once

#include <QWidget>

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

private:
    void fill();

    int viewNumber_;
    QTableWidget* table_;
};

// Connects tool bar command 13 of the trend views to this window.
void installBatchInfo();

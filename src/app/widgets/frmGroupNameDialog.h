#pragma once

#include <QDialog>

class QTableWidget;

// The ten group names, one row a view: the names can be edited, and the row chosen with OK is
// the view that the main window opens next. The edited names are kept in "GName.ini".
class frmGroupNameDialog final : public QDialog {
    Q_OBJECT
public:
    explicit frmGroupNameDialog(QWidget* parent = nullptr);
    // The view of the chosen row, 1..10; 0 when the dialog was cancelled.
    int chosenView() const { return chosen_; }
    void selectRow(int view);

private:
    void take();

    QTableWidget* grid_;
    int chosen_ = 0;
};

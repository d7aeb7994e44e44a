#pragma once

#include "ftp/CollectionEngine.h"

#include <QWidget>

#include <thread>

class FTPFile;
class QCheckBox;
class QPushButton;
class QTableWidget;

// The collection window: a row a recorder with its local folder, status and time; collect all,
// stop, the settings, OK and Cancel, and a row's own collection from its picture cell. Passes
// run on a worker thread; the grid follows their status changes.
class ftpDataForm : public QWidget {
    Q_OBJECT
public:
    explicit ftpDataForm(FTPFile& file, QWidget* parent = nullptr);
    ~ftpDataForm() override;

    CollectionEngine& engine() { return engine_; }
    QTableWidget* grid() const { return grid_; }
    QCheckBox* Check() const { return check_; }
    QPushButton* button(const char* name) const;

    // The pass of the timer (when due) and of the start-up.
    void tick();
    void RunCollection();
    void cmdGet();
    void cmdStop();
    void cmdSet();
    void cmdOK();
    void cmdCancel();
    // A click on a cell: column 4 collects the row, column 2 opens its folder.
    void cellClicked(int row, int column);
    // Waits for a running pass (tests, closing).
    void waitForPass();
    // Writes Tag, PCDir and Time of the table into the grid.
    void loadGrid();

protected:
    void closeEvent(class QCloseEvent* event) override;

private:
    void runOnWorker(std::function<void()> pass);
    void showRow(int row, const CollectionEngine::Row& r);
    void storeTimes();

    FTPFile& file_;
    CollectionEngine engine_;
    // What the grid shows of each row: the user interface reads this copy, never the rows a
    // worker may be writing.
    std::vector<CollectionEngine::Row> shown_;
    std::thread worker_;
    QTableWidget* grid_;
    QCheckBox* check_;
};

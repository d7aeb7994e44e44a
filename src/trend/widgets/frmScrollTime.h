#pragma once

#include <QStringList>
#include <QWidget>

#include <memory>

class ChartWidget;
class TrendView;

// The trend view window of one view (1..10): the chart of the view's recording, the scroll bars
// and the view's commands. The main window creates it, copies the selection into the view's
// tables (copySelectionToView) and calls LoadRecording().
class frmScrollTime : public QWidget {
    Q_OBJECT
public:
    explicit frmScrollTime(int viewNumber, QWidget* parent = nullptr);
    ~frmScrollTime() override;

    int GetGroup() const { return viewNumber_; }
    TrendView& trend() { return *trend_; }

    // Reads the view's files into its store with a progress window, then shows the trend.
    // Failures show their message. False when no recording stands in the view afterwards.
    bool LoadRecording();

Q_SIGNALS:
    // The window closed; its slot is free again.
    void viewClosed(int viewNumber);
    // Files were dropped on the view; the main window decides what they open.
    void filesDropped(int viewNumber, const QStringList& paths);

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    int viewNumber_;
    std::unique_ptr<TrendView> trend_;
    ChartWidget* chart_ = nullptr;
};

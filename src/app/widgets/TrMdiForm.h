#pragma once

#include <QMainWindow>
#include <QStringList>

class QMdiArea;
class QMdiSubWindow;

// The frame of the desktop program: the work area that holds the views (and the windows that
// belong to them) as sub-windows. frmMain puts its tool bar, status bars and window menu on it.
// Files dropped on the frame (outside any view) are handed on; closing the frame is the end of
// the program and is announced first, so that frmMain can keep its settings.
class TrMdiForm final : public QMainWindow {
    Q_OBJECT
public:
    explicit TrMdiForm(QWidget* parent = nullptr);

    QMdiArea* mdiArea() const { return mdiArea_; }
    QMdiSubWindow* addChild(QWidget* window);

    // Tiles the windows of the given kinds (class names, upper case) in the work area:
    // mode 0 side by side, mode 1 one above the other. Returns the number of windows tiled.
    int TileWindows(int mode, const QStringList& kinds);

Q_SIGNALS:
    void filesDropped(const QStringList& paths);
    void closing();

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    QMdiArea* mdiArea_;
};

// The local files of a drop.
QStringList droppedPaths(const QDropEvent* event);

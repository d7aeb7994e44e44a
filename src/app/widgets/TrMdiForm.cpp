#include "app/widgets/TrMdiForm.h"

#include "app/WindowRules.h"
#include "app/widgets/ToolIcons.h"
#include "base/widgets/ApplyLanguageFont.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMimeData>
#include <QScreen>

QStringList droppedPaths(const QDropEvent* event) {
    QStringList paths;
    if (event->mimeData() == nullptr) return paths;
    for (const QUrl& url : event->mimeData()->urls())
        if (url.isLocalFile()) paths << url.toLocalFile();
    return paths;
}

TrMdiForm::TrMdiForm(QWidget* parent) : QMainWindow(parent) {
    setObjectName(QStringLiteral("TrMdiForm"));
    ApplyLanguageFont(this);
    setAcceptDrops(true);
    mdiArea_ = new QMdiArea(this);
    mdiArea_->setObjectName(QStringLiteral("mdiArea"));
    mdiArea_->setBackground(QColor(0x5a, 0x6b, 0x7d));
    mdiArea_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    mdiArea_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setCentralWidget(mdiArea_);
    setWindowIcon(ToolIcons::mainButton(1));
    // Until the stored position is restored: most of the screen, in its middle.
    const QRect screenArea = screen()->availableGeometry();
    resize(screenArea.size() * 9 / 10);
    move(screenArea.center() - rect().center());
}

QMdiSubWindow* TrMdiForm::addChild(QWidget* window) {
    QMdiSubWindow* sub = mdiArea_->addSubWindow(window);
    sub->setAttribute(Qt::WA_DeleteOnClose);
    return sub;
}

int TrMdiForm::TileWindows(int mode, const QStringList& kinds) {
    QList<QMdiSubWindow*> tiled;
    for (QMdiSubWindow* sub : mdiArea_->subWindowList(QMdiArea::CreationOrder)) {
        if (sub->widget() == nullptr || !sub->isVisible()) continue;
        const QString kind =
            QString::fromLatin1(sub->widget()->metaObject()->className()).toUpper();
        if (kinds.contains(kind)) tiled << sub;
    }
    const int n = int(tiled.size());
    const QVector<QRect> rects = WindowRules::tiles(mode, n, mdiArea_->viewport()->rect());
    for (int i = 0; i < n; ++i) {
        QMdiSubWindow* sub = tiled[i];
        if (sub->isMinimized() || sub->isMaximized()) sub->showNormal();
        sub->setGeometry(rects[i]);
    }
    return n;
}

void TrMdiForm::closeEvent(QCloseEvent* event) {
    Q_EMIT closing();
    // The views close with the frame, each freeing its slot.
    mdiArea_->closeAllSubWindows();
    event->accept();
}

void TrMdiForm::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void TrMdiForm::dropEvent(QDropEvent* event) {
    const QStringList paths = droppedPaths(event);
    if (paths.isEmpty()) return;
    event->acceptProposedAction();
    Q_EMIT filesDropped(paths);
}

#include "trend/widgets/frmScrollTime.h"

#include "app/LanguageTable.h"
#include "app/ShowMsg.h"
#include "app/widgets/frmProgress.h"
#include "platform/widgets/ChartWidget.h"
#include "recording/RecordingLoader.h"
#include "trend/TrendView.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QVBoxLayout>

frmScrollTime::frmScrollTime(int viewNumber, QWidget* parent)
    : QWidget(parent), viewNumber_(viewNumber), trend_(std::make_unique<TrendView>(viewNumber)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setAcceptDrops(true);
    chart_ = new ChartWidget(&trend_->chart(), this);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(chart_);
    resize(1000, 640);
}

frmScrollTime::~frmScrollTime() = default;

bool frmScrollTime::LoadRecording() {
    ViewTables& view = views(viewNumber_);
    frmProgress progress(this);
    progress.show();
    LoadOptions options;
    options.progress = &progress;
    options.confirmCancel = [] { return ShowMsg(1, MsgText(574)) == kYes; };
    const LoadOutcome outcome = ::LoadRecording(view, options);
    if (outcome.message != 0) {
        QString text = MsgText(outcome.message);
        if (!outcome.detail.isEmpty()) text += QLatin1Char('\n') + outcome.detail;
        ShowMsg(outcome.ok() ? 4 : 2, text);
    }
    if (!outcome.ok()) return false;
    const bool shown = trend_->afterLoad(&progress);
    setWindowTitle(view.ViewTitle);
    return shown;
}

void frmScrollTime::closeEvent(QCloseEvent* event) {
    Q_EMIT viewClosed(viewNumber_);
    QWidget::closeEvent(event);
}

void frmScrollTime::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void frmScrollTime::dropEvent(QDropEvent* event) {
    QStringList paths;
    for (const QUrl& url : event->mimeData()->urls())
        if (url.isLocalFile()) paths << url.toLocalFile();
    if (!paths.isEmpty()) Q_EMIT filesDropped(viewNumber_, paths);
}

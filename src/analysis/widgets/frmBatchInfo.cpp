#include "analysis/widgets/frmBatchInfo.h"

#include "analysis/BatchTable.h"
#include "recording/ViewState.h"
#include "recording/clsBatchInfo.h"
#include "trend/widgets/frmScrollTime.h"

#include <QHeaderView>
#include <QMenuBar>
#include <QTableWidget>
#include <QVBoxLayout>

#include <map>

namespace {

std::map<int, frmBatchInfo::Command>& commands() {
    static std::map<int, frmBatchInfo::Command> registered;
    return registered;
}

} // namespace

void frmBatchInfo::setCommand(int which, Command command) {
    commands()[which] = std::move(command);
}

frmBatchInfo::frmBatchInfo(int viewNumber, QWidget* parent)
    : QWidget(parent, Qt::Window), viewNumber_(viewNumber), table_(new QTableWidget(this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("frmBatchInfo"));
    table_->setObjectName(QStringLiteral("spdBatchInfo"));
    table_->setColumnCount(2);
    table_->horizontalHeader()->setStretchLastSection(true);
    table_->verticalHeader()->hide();
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    auto* menu = new QMenuBar(this);
    QAction* topMost = menu->addAction(QStringLiteral("Top most"));
    topMost->setObjectName(QStringLiteral("mnuTopMost"));
    topMost->setCheckable(true);
    connect(topMost, &QAction::toggled, this, [this](bool on) {
        setWindowFlag(Qt::WindowStaysOnTopHint, on);
        show();
    });
    static const char* const kNames[] = {"mnuPrintSet", "mnuPrint", "mnuReportPreview",
                                         "mnuReport"};
    static const char* const kCaptions[] = {"Print settings", "Print", "Report preview", "Report"};
    for (int k = 0; k < 4; ++k) {
        QAction* action = menu->addAction(QLatin1String(kCaptions[k]));
        action->setObjectName(QLatin1String(kNames[k]));
        const auto it = commands().find(k);
        action->setEnabled(it != commands().end());
        if (it != commands().end())
            connect(action, &QAction::triggered, this, [this, c = it->second] { c(*this); });
    }
    auto* layout = new QVBoxLayout(this);
    layout->setMenuBar(menu);
    layout->addWidget(table_);
    fill();
    resize(420, 320);
}

void frmBatchInfo::fill() {
    const auto rows = batchTableRows(views(viewNumber_).part<clsBatchInfo>());
    table_->setRowCount(int(rows.size()));
    for (int r = 0; r < rows.size(); ++r) {
        table_->setItem(r, 0, new QTableWidgetItem(rows[r].first));
        table_->setItem(r, 1, new QTableWidgetItem(rows[r].second));
    }
    setWindowTitle(QStringLiteral("Batch - ") + views(viewNumber_).ViewTitle);
}

frmBatchInfo* frmBatchInfo::ShowModeless(frmScrollTime& view) {
    frmBatchInfo* window = view.findChild<frmBatchInfo*>(QString(), Qt::FindDirectChildrenOnly);
    if (window && !window->isVisible()) window = nullptr;
    if (!window) window = new frmBatchInfo(view.GetGroup(), &view);
    window->show();
    window->raise();
    return window;
}

void installBatchInfo() {
    frmScrollTime::setToolbar1Window(13, [](frmScrollTime& view) {
        if (views(view.GetGroup()).BatchInfoFound) frmBatchInfo::ShowModeless(view);
    });
}

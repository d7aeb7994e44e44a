#include "analysis/widgets/frmMarkerView.h"

#include "analysis/widgets/GridTableModel.h"
#include "analysis/widgets/frmMarkerViewSetting.h"
#include "base/LanguageTable.h"
#include "base/WinColor.h"
#include "base/clsCommon.h"
#include "trend/TrendCursors.h"
#include "trend/widgets/frmScrollTime.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStyle>
#include <QTableView>
#include <QToolBar>
#include <QVBoxLayout>

#include <map>

namespace {

std::map<int, frmMarkerView::OutputCommand>& outputCommands() {
    static std::map<int, frmMarkerView::OutputCommand> commands;
    return commands;
}

constexpr int kCharWidth = 7; // pixels a character of width, as the grid counts widths

} // namespace

frmMarkerView::frmMarkerView(frmScrollTime& view)
    : QWidget(&view, Qt::Window), view_(view), marker_(view.trend(), view.cursors(), grid_) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("frmMarkerView"));
    setWindowTitle(MsgText(78));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setMenuBar(new QMenuBar(this));
    buildToolbar();
    layout->addWidget(Toolbar1_);
    vaSpread1_ = new QTableView(this);
    vaSpread1_->setObjectName(QStringLiteral("vaSpread1"));
    model_ = new GridTableModel(grid_, this);
    model_->textTip = [this](int col, qint32 row) { return marker_.alarmTip(col, row); };
    model_->background = [](int col, qint32) {
        if (col >= 4 && col <= 8) return WinColor::toQColor(MarkerView::kAllBack);
        if (col >= 9) return WinColor::toQColor(MarkerView::kMarkerBack);
        return QColor();
    };
    vaSpread1_->setModel(model_);
    vaSpread1_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    vaSpread1_->setSelectionMode(QAbstractItemView::ContiguousSelection);
    vaSpread1_->setGridStyle(Qt::SolidLine);
    vaSpread1_->setStyleSheet(QStringLiteral("QTableView { gridline-color: rgb(192, 192, 192); }"));
    vaSpread1_->verticalHeader()->hide();
    vaSpread1_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(vaSpread1_, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        QMenu pop1;
        QAction* copy = pop1.addAction(MsgText(209));
        copy->setObjectName(QStringLiteral("pop1_1"));
        if (pop1.exec(vaSpread1_->viewport()->mapToGlobal(at)) == copy) copySelection();
    });
    layout->addWidget(vaSpread1_, 1);
    buildMenus();
    connect(model_, &GridTableModel::shapeChanged, this, &frmMarkerView::applyShape);
    marker_.changed = [this] { redraw(); };
    marker_.load();
    applyShape();
    redraw();
    resize(900, 360);
    if (const QScreen* s = screen()) move(s->availableGeometry().center() - rect().center());
}

frmMarkerView::~frmMarkerView() {
    marker_.changed = nullptr;
    delete vaSpread1_;
    delete model_;
}

void frmMarkerView::setOutputCommand(int button, OutputCommand command) {
    outputCommands()[button] = std::move(command);
}

frmMarkerView* frmMarkerView::open(frmScrollTime& view) {
    frmMarkerView* window = nullptr;
    for (frmMarkerView* w :
         view.findChildren<frmMarkerView*>(QString(), Qt::FindDirectChildrenOnly))
        if (w->isVisible()) window = w;
    if (!window) window = new frmMarkerView(view);
    window->show();
    window->raise();
    window->activateWindow();
    return window;
}

void installMarkerView() {
    frmScrollTime::setToolbar1Window(6, [](frmScrollTime& view) { frmMarkerView::open(view); });
}

QAction* frmMarkerView::button(int index) const {
    return findChild<QAction*>(QStringLiteral("Toolbar1_%1").arg(index));
}

QAction* frmMarkerView::menu(const char* name) const {
    return findChild<QAction*>(QLatin1String(name));
}

void frmMarkerView::buildToolbar() {
    Toolbar1_ = new QToolBar(this);
    Toolbar1_->setObjectName(QStringLiteral("Toolbar1"));
    const struct {
        int index;
        QStyle::StandardPixmap icon;
        QString tip;
    } buttons[] = {
        {1, QStyle::SP_ArrowLeft, MsgText(8)},      {2, QStyle::SP_ArrowRight, MsgText(8)},
        {4, QStyle::SP_ArrowLeft, MsgText(9)},      {5, QStyle::SP_ArrowRight, MsgText(9)},
        {7, QStyle::SP_FileDialogDetailedView, {}}, {8, QStyle::SP_BrowserReload, MsgText(161)},
        {10, QStyle::SP_FileDialogInfoView, {}},    {11, QStyle::SP_FileDialogContentsView, {}},
        {12, QStyle::SP_DialogSaveButton, {}},      {13, QStyle::SP_DriveFDIcon, {}},
        {15, QStyle::SP_DialogHelpButton, {}},
    };
    for (const auto& b : buttons) {
        QAction* action = Toolbar1_->addAction(style()->standardIcon(b.icon), b.tip);
        action->setObjectName(QStringLiteral("Toolbar1_%1").arg(b.index));
        const bool output = b.index >= 10 && b.index <= 13;
        action->setEnabled(!output || outputCommands().count(b.index));
        connect(action, &QAction::triggered, this, [this, i = b.index] { ToolbarSet(i); });
        if (b.index == 2 || b.index == 5 || b.index == 8) Toolbar1_->addSeparator();
    }
}

void frmMarkerView::buildMenus() {
    auto* bar = qobject_cast<QMenuBar*>(layout()->menuBar());
    QMenu* gamen = bar->addMenu(MsgText(19) + QStringLiteral("(&D)"));
    QAction* topMost = gamen->addAction(MsgText(20));
    topMost->setObjectName(QStringLiteral("gamen_1"));
    topMost->setCheckable(true);
    connect(topMost, &QAction::toggled, this, [this](bool on) {
        setWindowFlag(Qt::WindowStaysOnTopHint, on);
        show();
    });
    QAction* autoCalc = gamen->addAction(MsgText(161));
    autoCalc->setObjectName(QStringLiteral("CAl_1"));
    autoCalc->setCheckable(true);
    autoCalc->setChecked(marker_.autoCalc());
    connect(autoCalc, &QAction::toggled, this, [this](bool on) { marker_.setAutoCalc(on); });
    QAction* all = gamen->addAction(MsgText(65));
    all->setObjectName(QStringLiteral("disp_1"));
    all->setCheckable(true);
    all->setChecked(marker_.state().ShowAll);
    connect(all, &QAction::toggled, this, [this](bool on) { marker_.setShowAll(on); });
    QAction* span = gamen->addAction(MsgText(66));
    span->setObjectName(QStringLiteral("disp_2"));
    span->setCheckable(true);
    span->setChecked(marker_.state().ShowMarker);
    connect(span, &QAction::toggled, this, [this](bool on) { marker_.setShowMarker(on); });
}

void frmMarkerView::ToolbarSet(int button) {
    switch (button) {
    case 7: {
        frmMarkerViewSetting setting(view_.trend(), this);
        setting.exec();
        break;
    }
    case 15:
        if (QAction* top = menu("gamen_1")) top->setChecked(false);
        clsCommon::shared().ShowHelp(objectName());
        break;
    case 10:
    case 11:
    case 12:
    case 13:
        if (const auto it = outputCommands().find(button); it != outputCommands().end())
            it->second(*this);
        break;
    default:
        marker_.ToolbarSet(button);
        break;
    }
    view_.update();
    redraw();
}

void frmMarkerView::copySelection() {
    const QItemSelection ranges = vaSpread1_->selectionModel()->selection();
    if (ranges.isEmpty()) return;
    const QItemSelectionRange& r = ranges.first();
    const std::optional<QString> text =
        grid_.clipText({r.left(), r.top() + 1, r.right(), r.bottom() + 1});
    if (text) QApplication::clipboard()->setText(*text);
}

void frmMarkerView::applyShape() {
    for (int c = 0; c <= grid_.maxCols(); ++c) {
        vaSpread1_->setColumnHidden(c, grid_.colHidden(c));
        vaSpread1_->setColumnWidth(c, int(grid_.colWidth(c) * kCharWidth));
    }
    vaSpread1_->verticalHeader()->setDefaultSectionSize(int(MarkerView::kRowHeight * 1.5));
    vaSpread1_->horizontalHeader()->setMinimumHeight(int(MarkerView::kRowHeight * 2));
}

void frmMarkerView::redraw() {
    model_->cellsWritten();
    applyShape();
}

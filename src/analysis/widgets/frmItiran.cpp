#include "analysis/widgets/frmItiran.h"

#include "analysis/widgets/GridTableModel.h"
#include "analysis/widgets/frmSkipSet.h"
#include "base/LanguageTable.h"
#include "recording/widgets/frmProgress.h"
#include "trend/TrendView.h"
#include "trend/widgets/frmScrollTime.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStyle>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <map>

namespace {

constexpr int kPointSize = 9;
// A copy of more rows than this shows its progress.
constexpr qint32 kCopyProgressRows = 100000;

std::map<int, frmItiran::OutputCommand>& outputCommands() {
    static std::map<int, frmItiran::OutputCommand> commands;
    return commands;
}

bool isSeparator(int index) {
    return index == 4 || index == 6 || index == 10;
}

QStyle::StandardPixmap buttonIcon(int index) {
    switch (index) {
    case 1:
        return QStyle::SP_FileDialogListView;
    case 2:
        return QStyle::SP_ArrowRight;
    case 3:
        return QStyle::SP_FileDialogContentsView;
    case 5:
        return QStyle::SP_FileDialogDetailedView;
    case 7:
        return QStyle::SP_DialogSaveButton;
    case 8:
        return QStyle::SP_DriveFDIcon;
    case 9:
        return QStyle::SP_DirLinkIcon;
    default:
        return QStyle::SP_DialogHelpButton;
    }
}

// Shows the wait cursor while a piece of work runs.
struct WaitCursor {
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
};

} // namespace

frmItiran::frmItiran(TrendView& view, QWidget* parent) : QWidget(parent), list_(view, grid_) {
    setWindowFlag(Qt::Window);
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("frmItiran"));
    setWindowTitle(MsgText(174));
    setFont(QFont(LanguageFont(), kPointSize));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setMenuBar(new QMenuBar(this));
    buildToolbar();
    auto* bar = new QHBoxLayout;
    bar->setContentsMargins(2, 0, 2, 0);
    bar->addWidget(Toolbar1_);
    Label1_ = new QLabel(this);
    Label1_->setObjectName(QStringLiteral("Label1"));
    bar->addWidget(Label1_, 1);
    layout->addLayout(bar);

    vaSpread1_ = new QTableView(this);
    vaSpread1_->setObjectName(QStringLiteral("vaSpread1"));
    model_ = new GridTableModel(grid_, this);
    model_->textTip = [this](int col, qint32 row) { return list_.alarmTip(col, row); };
    vaSpread1_->setModel(model_);
    vaSpread1_->setWordWrap(false);
    vaSpread1_->setSelectionMode(QAbstractItemView::ContiguousSelection);
    vaSpread1_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    vaSpread1_->verticalHeader()->hide();
    vaSpread1_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    vaSpread1_->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    vaSpread1_->setContextMenuPolicy(Qt::DefaultContextMenu);
    vaSpread1_->viewport()->installEventFilter(this);
    layout->addWidget(vaSpread1_, 1);
    buildMenus();

    connect(model_, &GridTableModel::shapeChanged, this, &frmItiran::applyShape);
    connect(vaSpread1_, &QTableView::clicked, this, &frmItiran::cellChosen);
    connect(vaSpread1_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) { cellChosen(current); });
    connect(vaSpread1_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &frmItiran::selectionMoved);

    applyShape();
    list_.load();
    buttons_[3]->setVisible(list_.visibleSpanButton());
    resize(820, 520);
    if (const QScreen* s = screen()) move(s->availableGeometry().center() - rect().center());
}

// The view and its model read the grid and the list: they go before them.
frmItiran::~frmItiran() {
    delete vaSpread1_;
    delete model_;
}

void frmItiran::setOutputCommand(int button, OutputCommand command) {
    outputCommands()[button] = std::move(command);
}

frmItiran* frmItiran::open(frmScrollTime& view) {
    // A closed list may wait for its deletion: only a shown one is the view's list.
    frmItiran* list = nullptr;
    for (frmItiran* open : view.findChildren<frmItiran*>(QString(), Qt::FindDirectChildrenOnly))
        if (open->isVisible()) list = open;
    if (!list) list = new frmItiran(view.trend(), &view);
    list->show();
    list->raise();
    list->activateWindow();
    return list;
}

void installDataList() {
    frmScrollTime::setToolbar1Window(5, [](frmScrollTime& view) { frmItiran::open(view); });
}

QAction* frmItiran::button(int index) const {
    return index >= 1 && index < int(buttons_.size()) ? buttons_[size_t(index)] : nullptr;
}

void frmItiran::buildToolbar() {
    Toolbar1_ = new QToolBar(this);
    Toolbar1_->setObjectName(QStringLiteral("Toolbar1"));
    Toolbar1_->setIconSize(QSize(20, 20));
    for (int index = 1; index <= 11; ++index) {
        if (isSeparator(index)) {
            Toolbar1_->addSeparator();
            continue;
        }
        QAction* action = Toolbar1_->addAction(style()->standardIcon(buttonIcon(index)),
                                               DataList::toolbarHoverText(index));
        action->setObjectName(QStringLiteral("Toolbar1_%1").arg(index));
        if (index > 3) action->setEnabled(outputCommands().count(index) > 0);
        connect(action, &QAction::triggered, this, [this, index] { toolbarCommand(index); });
        buttons_[size_t(index)] = action;
        // Label1 shows the hover text of the button under the pointer, and nothing elsewhere.
        QWidget* widget = Toolbar1_->widgetForAction(action);
        widget->setProperty("buttonIndex", index);
        widget->installEventFilter(this);
    }
}

void frmItiran::buildMenus() {
    auto* bar = findChild<QMenuBar*>();
    QMenu* gamen = bar->addMenu(MsgText(19) + QStringLiteral("(&D)"));
    gamen->setObjectName(QStringLiteral("gamen"));
    QAction* onTop = gamen->addAction(MsgText(20));
    onTop->setObjectName(QStringLiteral("gamen_1"));
    onTop->setCheckable(true);
    connect(onTop, &QAction::toggled, this, [this](bool on) {
        setWindowFlag(Qt::WindowStaysOnTopHint, on);
        show();
    });
    QAction* skip = gamen->addAction(MsgText(285) + QStringLiteral("(&S)"));
    skip->setObjectName(QStringLiteral("skipset"));
    connect(skip, &QAction::triggered, this, [this] {
        frmSkipSet dialog(this);
        dialog.move(QCursor::pos());
        dialog.exec();
    });

    pop1_ = new QMenu(this);
    pop1_->setObjectName(QStringLiteral("pop1"));
    QAction* copy = pop1_->addAction(MsgText(209));
    copy->setObjectName(QStringLiteral("pop1_1"));
    connect(copy, &QAction::triggered, this, &frmItiran::copySelection);
}

// Widths in characters of the grid font, the fixed row height, hidden columns.
void frmItiran::applyShape() {
    const QFontMetrics metrics(vaSpread1_->font());
    const double perChar = metrics.averageCharWidth();
    QHeaderView* columns = vaSpread1_->horizontalHeader();
    for (int col = 0; col <= grid_.maxCols(); ++col) {
        columns->resizeSection(col, int(std::lround(grid_.colWidth(col) * perChar)) + 6);
        vaSpread1_->setColumnHidden(col, grid_.colHidden(col));
    }
    const int rowHeight =
        std::max(metrics.height() + 4, int(std::lround(grid_.rowHeight() * 4 / 3)));
    // A new default height walks every row: it is set while the grid is still empty.
    QHeaderView* rows = vaSpread1_->verticalHeader();
    if (rows->defaultSectionSize() != rowHeight) {
        rows->setMinimumSectionSize(1);
        rows->setDefaultSectionSize(rowHeight);
    }
}

void frmItiran::toolbarCommand(int index) {
    if (index >= 1 && index <= 3) {
        WaitCursor wait;
        list_.setRowSet(index);
        return;
    }
    const auto it = outputCommands().find(index);
    if (it != outputCommands().end() && it->second) it->second(*this);
}

void frmItiran::CircleRechange() {
    WaitCursor wait;
    list_.CircleRechange();
    buttons_[3]->setVisible(list_.visibleSpanButton());
}

void frmItiran::cellChosen(const QModelIndex& index) {
    if (!index.isValid() || index.column() < 1) return;
    list_.moveTrend(index.row() + 1);
}

// The grid's selection block: the bounds of what is selected.
void frmItiran::selectionMoved() {
    const QItemSelection ranges = vaSpread1_->selectionModel()->selection();
    if (ranges.isEmpty()) {
        grid_.setSelection({});
        return;
    }
    GridModel::Block block{ranges.first().left(), ranges.first().top() + 1, ranges.first().right(),
                           ranges.first().bottom() + 1};
    for (const QItemSelectionRange& r : ranges) {
        block.col1 = std::min(block.col1, r.left());
        block.col2 = std::max(block.col2, r.right());
        block.row1 = std::min(block.row1, r.top() + 1);
        block.row2 = std::max(block.row2, r.bottom() + 1);
    }
    grid_.setSelection(block);
}

void frmItiran::copySelection() {
    const GridModel::Block block = grid_.selection();
    if (block.row1 < 1) return;
    QString text;
    bool copied = false;
    if (std::abs(block.row2 - block.row1) >= kCopyProgressRows) {
        frmProgress progress(this);
        progress.show();
        copied = list_.copySelection(text, &progress);
    } else {
        copied = list_.copySelection(text);
    }
    if (copied) QGuiApplication::clipboard()->setText(text);
}

bool frmItiran::eventFilter(QObject* watched, QEvent* event) {
    // The event type first: while the table is destroyed its viewport still sends events, and
    // the table is no scroll area any more by then.
    if (event->type() == QEvent::ContextMenu && watched == vaSpread1_->viewport()) {
        pop1_->popup(static_cast<QContextMenuEvent*>(event)->globalPos());
        return true;
    }
    const QVariant index = watched->property("buttonIndex");
    if (index.isValid()) {
        const auto* widget = static_cast<QWidget*>(watched);
        if (event->type() == QEvent::Enter && widget->isVisible())
            Label1_->setText(DataList::toolbarHoverText(index.toInt()));
        else if (event->type() == QEvent::Leave || event->type() == QEvent::Hide)
            Label1_->clear();
    }
    return QWidget::eventFilter(watched, event);
}

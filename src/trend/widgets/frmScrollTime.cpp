#include "trend/widgets/frmScrollTime.h"

#include "base/LanguageTable.h"
#include "base/ShowMsg.h"
#include "base/clsCommon.h"
#include "platform/ChartGeometry.h"
#include "platform/widgets/ChartWidget.h"
#include "recording/RecordingLoader.h"
#include "recording/widgets/frmProgress.h"
#include "savedwork/BackupRecords.h"
#include "trend/AlarmMarks.h"
#include "trend/AlarmTable.h"
#include "trend/HoverReadout.h"
#include "trend/TrendCursors.h"
#include "trend/TrendView.h"
#include "trend/widgets/MultiScaleStrip.h"
#include "trend/widgets/SideGridView.h"
#include "trend/widgets/TrendIcons.h"
#include "trend/widgets/TrendMouseBand.h"
#include "trend/widgets/TrendTexts.h"
#include "trend/widgets/frmAlarmSymbolSetting.h"
#include "trend/widgets/frmMultiScaleSet.h"
#include "trend/widgets/frmTimeAxisSetting.h"
#include "trend/widgets/frmXlblSet.h"
#include "trend/widgets/frmYAxesStyle.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QScrollBar>
#include <QSplitter>
#include <QStyle>
#include <QTimer>
#include <QToolBar>
#include <QToolTip>
#include <QVBoxLayout>

#include <algorithm>
#include <map>

namespace {

// Fonts of the chart: the language's font at a size that reads well on screen.
constexpr int kChartPointSize = 9;

std::map<int, frmScrollTime::WindowOpener>& toolbar1Windows() {
    static std::map<int, frmScrollTime::WindowOpener> openers;
    return openers;
}

} // namespace

void frmScrollTime::setToolbar1Window(int number, WindowOpener opener) {
    toolbar1Windows()[number] = std::move(opener);
}

frmScrollTime::frmScrollTime(int viewNumber, QWidget* parent)
    : QWidget(parent), viewNumber_(viewNumber), trend_(std::make_unique<TrendView>(viewNumber)),
      cursors_(std::make_unique<TrendCursors>(*trend_)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setAcceptDrops(true);
    setFont(QFont(LanguageFont(), kChartPointSize));
    ChartModel& model = trend_->chart();
    const QFont chartFont(LanguageFont(), kChartPointSize);
    for (ChartAxis* axis : {&model.axisX(), &model.axisY(), &model.axisY2()}) {
        axis->setFont(chartFont);
        axis->setTitleFont(chartFont);
    }

    // The date line of the shown span stands above the chart, on the chart's own background.
    lblTitle_ = new QLabel(this);
    lblTitle_->setObjectName(QStringLiteral("lblTitle"));
    lblTitle_->setAlignment(Qt::AlignCenter);
    lblTitle_->setFont(QFont(LanguageFont(), kChartPointSize + 1, QFont::Bold));
    lblTitle_->setAutoFillBackground(true);
    QPalette titlePalette = lblTitle_->palette();
    titlePalette.setColor(QPalette::Window, model.colors().ChartAreaBackColor);
    lblTitle_->setPalette(titlePalette);
    lblTitle_->setContentsMargins(0, 3, 0, 1);

    plotArea_ = new QWidget(this);
    plotArea_->setAutoFillBackground(true);
    plotArea_->setPalette(titlePalette);
    plotArea_->installEventFilter(this);
    chart_ = new ChartWidget(&model, plotArea_);
    chart_->installEventFilter(this);
    hsbTrendGraph_ = new QScrollBar(Qt::Horizontal, plotArea_);
    hsbTrendGraph_->setObjectName(QStringLiteral("hsbTrendGraph"));
    hsbTrendGraph_->setEnabled(false);
    connect(hsbTrendGraph_, &QScrollBar::valueChanged, this, &frmScrollTime::scrolled);

    band_ = new TrendMouseBand(*trend_, *chart_, this);
    connect(band_, &TrendMouseBand::zoomed, this, &frmScrollTime::syncControls);
    connect(band_, &TrendMouseBand::popupRequested, this,
            [this](const QPoint& pixel) { popup_->popup(chart_->mapToGlobal(pixel)); });

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* menuBar = new QMenuBar(this);
    layout->setMenuBar(menuBar);
    buildToolbars();
    buildMenus(menuBar);
    auto* bars = new QWidget(this);
    auto* barsLayout = new QHBoxLayout(bars);
    barsLayout->setContentsMargins(2, 0, 2, 0);
    barsLayout->addWidget(findChild<QToolBar*>(QStringLiteral("Toolbar1")));
    barsLayout->addWidget(Toolbar2_);
    barsLayout->addStretch(1);
    lblDateTemp_ = new QLabel(bars);
    lblDateTemp_->setObjectName(QStringLiteral("lblDateTemp"));
    barsLayout->addWidget(lblDateTemp_);
    layout->addWidget(bars);
    layout->addWidget(lblTitle_);
    // The cursor readout stands beside the chart; the user may narrow it.
    auto* split = new QSplitter(Qt::Horizontal, this);
    split->addWidget(plotArea_);
    sideGrid_ = new SideGridView(cursors_->sideGrid(), split);
    split->addWidget(sideGrid_);
    split->setStretchFactor(0, 1);
    split->setStretchFactor(1, 0);
    split->setSizes({760, 240});
    layout->addWidget(split, 1);
    buildCursorParts();

    setHooks();
    // Whatever changes the chart (a dialog of another window too) brings the controls along.
    connect(&model, &ChartModel::changed, this, &frmScrollTime::syncControls);
    syncControls();
    resize(1000, 640);
}

frmScrollTime::~frmScrollTime() {
    // Windows of the view (list, marker view, batch table) hold its logic: they go first.
    for (QWidget* w : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (w->isWindow()) delete w;
    // The logic may outlive no window: its hooks point into this one.
    trend_->window() = TrendWindowState();
    // The side grid shows the cursors' grid, which goes before the child widgets would.
    delete sideGrid_;
}

QAction* frmScrollTime::makeCommand(int number, const QString& text) {
    auto* action = new QAction(Toolbar2Icon(number), text, this);
    action->setToolTip(text);
    connect(action, &QAction::triggered, this, [this, number] { command(number); });
    commands_[size_t(number)] = action;
    return action;
}

void frmScrollTime::buildToolbars() {
    auto* toolbar1 = new QToolBar(this);
    toolbar1->setObjectName(QStringLiteral("Toolbar1"));
    toolbar1->setIconSize(QSize(22, 22));
    QAction* open = toolbar1->addAction(style()->standardIcon(QStyle::SP_DialogOpenButton),
                                        TrendCaption(MsgId(604), "Open files"));
    connect(open, &QAction::triggered, this, [this] { toolbar1Command(2); });
    QAction* close = toolbar1->addAction(style()->standardIcon(QStyle::SP_DialogCloseButton),
                                         TrendCaption(MsgId(605), "Close data"));
    connect(close, &QAction::triggered, this, [this] { toolbar1Command(1); });
    // The windows other subsystems install: channel settings, data list, marker view, search,
    // batch table, calculation lines.
    const struct {
        int number;
        QStyle::StandardPixmap icon;
        QString caption;
    } windows[] = {
        {4, QStyle::SP_FileDialogListView, MsgText(234)},
        {5, QStyle::SP_FileDialogDetailedView, MsgText(174)},
        {6, QStyle::SP_FileDialogListView, MsgText(78)},
        {7, QStyle::SP_FileDialogContentsView, MsgText(68)},
        {13, QStyle::SP_FileDialogInfoView, QStringLiteral("Batch")},
        {18, QStyle::SP_FileDialogBack, MsgText(71) + QStringLiteral(" / ") + MsgText(73)},
    };
    for (const auto& w : windows) {
        if (!toolbar1Windows().count(w.number)) continue;
        QAction* action = toolbar1->addAction(style()->standardIcon(w.icon), w.caption);
        action->setObjectName(QStringLiteral("Toolbar1_%1").arg(w.number));
        // The batch information is there only while the recording has it.
        if (w.number == 13) action->setEnabled(false);
        connect(action, &QAction::triggered, this, [this, n = w.number] { toolbar1Command(n); });
    }

    Toolbar2_ = new QToolBar(this);
    Toolbar2_->setObjectName(QStringLiteral("Toolbar2"));
    Toolbar2_->setIconSize(QSize(22, 22));
    Toolbar2_->addAction(makeCommand(1, TrendCaption(MsgId(600), "Previous zoom level")));
    Toolbar2_->addAction(makeCommand(2, MsgText(65)));
    Toolbar2_->addSeparator();
    Toolbar2_->addAction(makeCommand(12, TrendCaption(MsgId(602), "Time axis settings")));
    Toolbar2_->addAction(makeCommand(13, TrendCaption(MsgId(603), "Time axis labels")));
    Toolbar2_->addAction(makeCommand(11, TrendCaption(MsgId(601), "Y axis settings")));
    Toolbar2_->addSeparator();
    for (int number : {6, 7}) {
        QAction* cursor = makeCommand(number, MsgText(number == 6 ? 8 : 9));
        cursor->setCheckable(true);
        Toolbar2_->addAction(cursor);
    }

    buildChannelChoice();

    popup_ = new QMenu(this);
    popup_->setObjectName(QStringLiteral("PopupMenu"));
    for (int number : {1, 2, 0, 6, 7, 0, 12, 13, 11}) {
        if (number == 0)
            popup_->addSeparator();
        else
            popup_->addAction(commands_[size_t(number)]);
    }
    popup_->addSeparator();
    alarmMarks_ = popup_->addAction(MsgText(228));
    alarmMarks_->setCheckable(true);
    connect(alarmMarks_, &QAction::toggled, this, &frmScrollTime::setAlarmMarksShown);
    popup_->addAction(MsgText(228) + QStringLiteral("..."), this, [this] {
        frmAlarmSymbolSetting dialog(*trend_, this);
        dialog.exec();
        setAlarmMarksShown(AlarmMarks::ShowAlarmMarks(viewNumber_));
    });
}

void frmScrollTime::buildMenus(QMenuBar* bar) {
    QMenu* file = bar->addMenu(MenuCaption(TrendCaption(MsgId(606), "File"), QLatin1Char('F')));
    file->addAction(TrendCaption(MsgId(604), "Open files"), this, [this] { toolbar1Command(2); });
    file->addAction(TrendCaption(MsgId(605), "Close data"), this, [this] { toolbar1Command(1); });

    QMenu* display = bar->addMenu(MenuCaption(MsgText(19), QLatin1Char('V')));
    for (int number : {1, 2, 0, 12, 13, 11}) {
        if (number == 0)
            display->addSeparator();
        else
            display->addAction(commands_[size_t(number)]);
    }
    display->addSeparator();
    display->addAction(TrendCaption(MsgId(607), "Multi-scale settings"), this,
                       &frmScrollTime::showMultiScaleSet);

    QMenu* window = bar->addMenu(MenuCaption(MsgText(4), QLatin1Char('W')));
    QAction* onTop = window->addAction(MsgText(20));
    onTop->setCheckable(true);
    connect(onTop, &QAction::toggled, this, [this](bool on) {
        setWindowFlag(Qt::WindowStaysOnTopHint, on);
        show();
    });
    window->addSeparator();
    window->addAction(MsgText(18), this, &QWidget::close);
}

void frmScrollTime::setHooks() {
    TrendWindowState& w = trend_->window();
    w.formResize = [this] { Form_Resize(); };
    w.multiScaleDrawn = [this] { drawStrips(); };
    w.beep = [] { QApplication::beep(); };
    // The cursor side panels, the title's rotation and the legend marks have no window parts
    // of their own here: the chart draws the title and legend from its model.
    w.sidePanels = [this] {
        cursors_->refreshSidePanels();
        sideGrid_->refresh();
    };
    w.titleRolaction = [] {};
    w.legendMarks = [] {};
    w.dataListDispCheck = [this] { cursors_->sideGrid().DataList_disp_check(); };
}

QAction* frmScrollTime::toolbar2Action(int number) const {
    if (number < 0 || number >= int(commands_.size())) return nullptr;
    return commands_[size_t(number)];
}

std::vector<MultiScaleStripWidget*> frmScrollTime::strips() const {
    std::vector<MultiScaleStripWidget*> shown;
    for (MultiScaleStripWidget* strip : strips_)
        if (!strip->isHidden()) shown.push_back(strip);
    return shown;
}

bool frmScrollTime::LoadRecording() {
    ViewState& view = views(viewNumber_);
    // The channel series read the store's cells: they go before the reader empties the store,
    // since the window may repaint while the load lets events through.
    trend_->chart().setSeriesCount(0);
    trend_->chart().axisX().setOriginAuto(true);
    trend_->window().DateTemp.clear();
    frmProgress progress(this);
    progress.show();
    LoadOptions options;
    options.gsMode = clsCommon::shared().isGsMode();
    options.progress = &progress;
    options.confirmCancel = [] { return ShowMsg(kMsgQuestion, MsgText(574)) == kYes; };
    const LoadOutcome outcome = ::LoadRecording(view, options);
    if (outcome.message != 0) ShowMsg(outcome.ok() ? kMsgInformation : kMsgWarning, outcome.text());
    if (outcome.status == LoadOutcome::Status::Cancelled) {
        // A load the user stopped closes its view.
        progress.close();
        close();
        return false;
    }
    if (!outcome.ok()) return false;
    bool shown = trend_->afterLoad(&progress);
    if (shown) {
        cursors_->afterLoad();
        if (!AlarmMarks(*trend_).afterLoad() && alarmTable(viewNumber_).points() == 0 &&
            view.PointCount > 0) {
            // No alarm table could be held ("Out of memory." was shown): the recording goes.
            trend_->chart().setSeriesCount(0);
            view.clearRecording();
            shown = false;
        }
        alarmMarks_->setChecked(false);
        sideGrid_->refresh();
    }
    trend_->window().Caption = shown ? view.ViewTitle : QString();
    syncControls();
    Form_Resize();
    return shown;
}

void frmScrollTime::command(int number) {
    const bool cursor = number == 6 || number == 7;
    if (cursor ? !views(viewNumber_).Loaded
               : !trend_->window().Toolbar2Enabled[size_t(qBound(0, number, 22))])
        return;
    if (number == 6 || number == 7)
        cursors_->command(number);
    else if (number == 11 || number == 12 || number == 13)
        commandAfterDialog(number);
    else
        trend_->command(number);
    followYRange();
    syncControls();
}

void frmScrollTime::toolbar1Command(int number) {
    if (number == 1) {
        close();
    } else if (number == 2) {
        Q_EMIT openFilesRequested(viewNumber_);
    } else if (const auto it = toolbar1Windows().find(number);
               it != toolbar1Windows().end() && views(viewNumber_).Loaded) {
        it->second(*this);
    }
}

// Lays the chart and the scroll bar out: the bar runs along the plot's left and width.
void frmScrollTime::Form_Resize() {
    const int barHeight = hsbTrendGraph_->sizeHint().height();
    const QSize area = plotArea_->size();
    chart_->setGeometry(0, 0, area.width(), std::max(0, area.height() - barHeight));
    const QRectF plot = chart_->chartGeometry().plotArea();
    hsbTrendGraph_->setGeometry(int(plot.left()), area.height() - barHeight, int(plot.width()),
                                barHeight);
    trend_->scales().setPlotHeight(plot.height());
    if (trend_->state().ScaleType == ScaleType::MultiScale && plot.height() != stripPlotHeight_) {
        stripPlotHeight_ = plot.height();
        trend_->scales().MultiScaleDispResize();
    } else {
        drawStrips();
    }
}

void frmScrollTime::drawStrips() {
    const auto& layout = trend_->scales().strips();
    const bool shown = trend_->state().ScaleType == ScaleType::MultiScale;
    // The strips' tag and unit stand above the plot: keep two lines of room there.
    ChartModel& model = trend_->chart();
    QMargins margins = model.chartAreaMargins();
    const int head =
        shown ? 5 * QFontMetrics(QFont(QStringLiteral("Tahoma"), kChartPointSize)).height() / 2 : 0;
    if (margins.top() != head) {
        margins.setTop(head);
        model.setChartAreaMargins(margins);
    }
    while (strips_.size() < layout.size()) strips_.push_back(new MultiScaleStripWidget(chart_));
    const QRectF plot = chart_->chartGeometry().plotArea();
    const int size = trend_->chart().axisY().font().pointSize();
    for (size_t i = 0; i < strips_.size(); ++i) {
        MultiScaleStripWidget* strip = strips_[i];
        if (!shown || i >= layout.size()) {
            strip->hide();
            continue;
        }
        strip->setGeometry(int(i) * TrendScaleAxes::kStripWidth, 0, TrendScaleAxes::kStripWidth,
                           chart_->height());
        strip->setStrip(layout[i], plot.top(), plot.height(), size);
        strip->show();
    }
}

// Copies what the logic decided to the controls: buttons, scroll bar, caption.
void frmScrollTime::syncControls() {
    const TrendWindowState& w = trend_->window();
    for (size_t n = 0; n < commands_.size(); ++n)
        if (commands_[n])
            commands_[n]->setEnabled(n == 6 || n == 7 ? views(viewNumber_).Loaded
                                                      : w.Toolbar2Enabled[n]);
    commands_[6]->setChecked(trend_->state().CursorAOn);
    commands_[7]->setChecked(trend_->state().CursorBOn);
    const ScrollBarState& bar = w.hsbTrendGraph;
    syncing_ = true;
    hsbTrendGraph_->setRange(bar.Min, std::max(bar.Min, bar.Max));
    hsbTrendGraph_->setPageStep(std::max<int>(1, bar.LargeChange));
    hsbTrendGraph_->setSingleStep(std::max<int>(1, bar.SmallChange));
    hsbTrendGraph_->setValue(bar.Value);
    hsbTrendGraph_->setEnabled(bar.Enabled);
    syncing_ = false;
    setWindowTitle(w.Caption);
    if (auto* batch = findChild<QAction*>(QStringLiteral("Toolbar1_13")))
        batch->setEnabled(views(viewNumber_).Loaded && views(viewNumber_).BatchInfoFound);
    lblDateTemp_->setText(w.DateTemp);
    showMarkerLine();
    syncChannelChoice();
    // The chart's "Title" label is shown by lblTitle above the plot rather than over it.
    if (ChartLabel* title = trend_->chart().labels().item(QStringLiteral("Title"))) {
        lblTitle_->setText(title->Text);
        if (title->IsShown) {
            title->IsShown = false;
            trend_->chart().touch();
        }
    }
}

void frmScrollTime::scrolled(int value) {
    if (syncing_) return;
    trend_->zoom().scroll(value);
    syncControls();
}

// Commands 11, 12 and 13 open their dialog with the view as owner.
void frmScrollTime::commandAfterDialog(int number) {
    if (number == 12) {
        frmTimeAxisSetting dialog(*trend_, this);
        if (dialog.exec() == QDialog::Accepted) TimeAxisSetting::apply(*trend_, dialog.setting());
    } else if (number == 13) {
        frmXlblSet dialog(*trend_, this);
        dialog.exec();
    } else if (number == 11) {
        frmYAxesStyle dialog(*trend_, this);
        dialog.exec();
    }
}

void frmScrollTime::showMultiScaleSet() {
    frmMultiScaleSet dialog(*trend_, this);
    dialog.fillEmptyScales();
    if (dialog.exec() != QDialog::Accepted) return;
    WriteMultiScaleBak(viewNumber_); // read again when files are next read into this view
    trend_->showMultiScaleStrips();
    syncControls();
    stripPlotHeight_ = -1;
    Form_Resize();
}

bool frmScrollTime::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && (watched == plotArea_ || watched == chart_)) {
        if (watched == plotArea_)
            Form_Resize();
        else
            drawStrips();
    }
    return QWidget::eventFilter(watched, event);
}

void frmScrollTime::closeEvent(QCloseEvent* event) {
    trend_->chart().setSeriesCount(0); // the view's store is emptied once the slot is free
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

QString frmScrollTime::titleText() const {
    return lblTitle_->text();
}

// Cursor placing, the tracking line, the hover text (Timer1) and the alarm marks.
void frmScrollTime::buildCursorParts() {
    Timer1_ = new QTimer(this);
    Timer1_->setSingleShot(true);
    Timer1_->setInterval(600);
    connect(Timer1_, &QTimer::timeout, this, &frmScrollTime::showHoverText);
    connect(chart_, &ChartWidget::mouseMoved, this,
            [this](Qt::MouseButtons, const QPointF& pixel) { chartMouseMoved(pixel); });
    connect(chart_, &ChartWidget::mousePressed, this,
            [this](Qt::MouseButton button) { chartClicked(button); });
    connect(band_, &TrendMouseBand::zoomed, this, &frmScrollTime::followYRange);
}

void frmScrollTime::chartMouseMoved(const QPointF& pixel) {
    QToolTip::hideText();
    Timer1_->start();
    if (cursors_->mouseMove(chart_->chartGeometry(), pixel)) {
        const TrackingMarker& m = cursors_->marker();
        chart_->setCursorLines({{m.x, m.color, m.width}});
        markerShown_ = true;
    } else if (markerShown_ && !cursors_->marker().tracking) {
        // Only a shown marker costs a repaint to take away; plain mouse moves cost none.
        showMarkerLine();
        markerShown_ = false;
    }
}

// The marker line: the tracking cursor's while a cursor button is on, else at the X origin
// that a list moved the view to, else none.
void frmScrollTime::showMarkerLine() {
    const TrackingMarker& m = cursors_->marker();
    const ChartAxis& x = trend_->chart().axisX();
    if (m.tracking)
        chart_->setCursorLines({{m.x, m.color, m.width}});
    else if (!x.isOriginAuto())
        chart_->setCursorLines({{x.origin(), m.color, m.width}});
    else
        chart_->setCursorLines({});
}

void frmScrollTime::chartClicked(Qt::MouseButton button) {
    if (button != Qt::LeftButton || cursors_->activeCursor() == 0) return;
    if (cursors_->click(chart_->chartGeometry())) {
        sideGrid_->refresh();
        fitSideGrid();
    }
}

void frmScrollTime::showHoverText() {
    const QPoint local = chart_->mapFromGlobal(QCursor::pos());
    if (!chart_->rect().contains(local)) return;
    const auto hover =
        HoverReadout::at(*trend_, chart_->chartGeometry(), QPointF(local), band_->active());
    if (hover && !hover->text.isEmpty()) QToolTip::showText(QCursor::pos(), hover->text, chart_);
}

// The cursor lines reach over the whole Y range after a zoom.
void frmScrollTime::followYRange() {
    if (followingY_) return;
    followingY_ = true;
    cursors_->followYRange();
    followingY_ = false;
}

void frmScrollTime::setAlarmMarksShown(bool on) {
    AlarmMarks::ShowAlarmMarks(viewNumber_) = on;
    AlarmMarks marks(*trend_);
    marks.clear();
    if (on) marks.draw();
    if (alarmMarks_->isChecked() != on) alarmMarks_->setChecked(on);
}

// cbxSelectCH after the cursor buttons: "TAG" and every channel, or one channel alone.
void frmScrollTime::buildChannelChoice() {
    Toolbar2_->addSeparator();
    lblSelectCH_ = new QLabel(Toolbar2_);
    lblSelectCH_->setContentsMargins(4, 0, 4, 0);
    Toolbar2_->addWidget(lblSelectCH_);
    cbxSelectCH_ = new QComboBox(Toolbar2_);
    cbxSelectCH_->setObjectName(QStringLiteral("cbxSelectCH"));
    cbxSelectCH_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    cbxSelectCH_->setMinimumContentsLength(12);
    Toolbar2_->addWidget(cbxSelectCH_);
    connect(cbxSelectCH_, &QComboBox::activated, this, [this](int item) {
        trend_->plot().selectChannel(item);
        followYRange();
        syncControls();
    });
}

// The choice shows the view's channels and what the chart shows of them.
void frmScrollTime::syncChannelChoice() {
    const QStringList items = trend_->plot().channelChoiceItems();
    QStringList now;
    for (int i = 0; i < cbxSelectCH_->count(); ++i) now << cbxSelectCH_->itemText(i);
    const QSignalBlocker quiet(cbxSelectCH_);
    if (now != items) {
        cbxSelectCH_->clear();
        cbxSelectCH_->addItems(items);
    }
    cbxSelectCH_->setCurrentIndex(trend_->plot().shownChannelItem());
    cbxSelectCH_->setEnabled(views(viewNumber_).Loaded && items.size() > 1);
    lblSelectCH_->setText(trend_->window().SelectCaption);
}

// With both cursors placed the readout pane widens to show A, B and A-B whole; the splitter
// may narrow it again.
void frmScrollTime::fitSideGrid() {
    const TrendViewState& st = trend_->state();
    auto* split = qobject_cast<QSplitter*>(sideGrid_->parentWidget());
    if (!split || st.CursorPoint[0] <= 0 || st.CursorPoint[1] <= 0) return;
    QList<int> sizes = split->sizes();
    const int want = sideGrid_->widthForColumns(3);
    if (sizes.size() != 2 || sizes[1] >= want) return;
    const int total = sizes[0] + sizes[1];
    sizes[1] = std::min(want, total / 2); // the chart keeps at least half
    sizes[0] = total - sizes[1];
    split->setSizes(sizes);
}

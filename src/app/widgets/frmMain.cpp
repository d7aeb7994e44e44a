#include "app/widgets/frmMain.h"

#include "app/ClickFile.h"
#include "app/StartFiles.h"
#include "app/SubMain.h"
#include "app/WindowRules.h"
#include "app/widgets/ToolIcons.h"
#include "app/widgets/TrMdiForm.h"
#include "app/widgets/ViewForms.h"
#include "app/widgets/dlgSelect.h"
#include "app/widgets/frmGroupNameDialog.h"
#include "app/widgets/frmVersion.h"
#include "base/AppPaths.h"
#include "base/GSMode.h"
#include "base/LanguageTable.h"
#include "base/LocaleInfo.h"
#include "base/clsCommon.h"
#include "ftp/FTPFile.h"
#include "ftp/widgets/ftpDataForm.h"
#include "ftp/widgets/ftpForm.h"
#include "recording/DroppedFiles.h"
#include "recording/FamilyCodes.h"
#include "recording/FileRecognition.h"
#include "recording/RecordingLoader.h"
#include "recording/SelectionLists.h"
#include "recording/ViewSlots.h"
#include "savedwork/BackupRecords.h"
#include "trend/widgets/frmScrollTime.h"

#include <QApplication>
#include <QDateTime>
#include <QFile>
#include <QLabel>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QTime>
#include <QTimer>
#include <QToolBar>

namespace {

// The kinds of window that the tiling arranges.
const QStringList kTiledKinds{QStringLiteral("FRMSCROLLTIME"), QStringLiteral("FRMMARKERVIEW"),
                              QStringLiteral("FRMITIRAN"), QStringLiteral("FRMRENZOKUFORM")};
// Modal settings windows during which a hand-off is refused.
const QStringList kSettingsWindows{QStringLiteral("ftpSetForm"), QStringLiteral("frmDirectory"),
                                   QStringLiteral("frmEthernet")};
// frmMain's own record among the window backups (views use 1..10).
constexpr int kMainWindowRecord = 0;

bool gsMode() {
    return clsCommon::shared().isGsMode();
}

} // namespace

frmMain::frmMain(TrMdiForm* frame)
    : QObject(frame), frame_(frame), forms_(new ViewForms(frame)),
      timDoubleClick_(new QTimer(this)), timWindow_(new QTimer(this)), timFTP_(new QTimer(this)),
      ftpFile_(std::make_unique<FTPFile>()) {
    setObjectName(QStringLiteral("frmMain"));
    ftpFile_->FTPDataInit();
    ftpFile_->FTPDataFi();
    buildToolbar();
    buildMenu();
    StatusBar1_ = frame_->statusBar();
    StatusBar1_->setObjectName(QStringLiteral("StatusBar1"));
    Label2_ = new QLabel(frame_);
    Label2_->setObjectName(QStringLiteral("Label2"));
    Label2_->setMinimumWidth(60);
    Label2_->setAlignment(Qt::AlignCenter);
    StatusBar2_ = new QLabel(frame_);
    StatusBar2_->setObjectName(QStringLiteral("StatusBar2"));
    StatusBar1_->addPermanentWidget(Label2_);
    StatusBar1_->addPermanentWidget(StatusBar2_);

    timDoubleClick_->setObjectName(QStringLiteral("timDoubleClick"));
    timDoubleClick_->setInterval(kDoubleClickPollMs);
    connect(timDoubleClick_, &QTimer::timeout, this, &frmMain::timDoubleClick_Timer);
    timWindow_->setObjectName(QStringLiteral("timWindow"));
    timWindow_->setSingleShot(true);
    timWindow_->setInterval(100);
    connect(timWindow_, &QTimer::timeout, this, &frmMain::timWindow_Timer);
    timFTP_->setObjectName(QStringLiteral("timFTP"));
    timFTP_->setInterval(1000);
    connect(timFTP_, &QTimer::timeout, this, &frmMain::timFTP_Timer);

    connect(frame_, &TrMdiForm::filesDropped, this, &frmMain::dropOnMain);
    connect(frame_, &TrMdiForm::closing, this, &frmMain::Form_Unload);
    connect(forms_, &ViewForms::filesDropped, this, &frmMain::dropOnView);
    connect(forms_, &ViewForms::openFilesRequested, this, &frmMain::openFilesInto);
}

// The collection window reads the table: it goes before it.
frmMain::~frmMain() {
    delete dataForm_.data();
}

void frmMain::buildToolbar() {
    Toolbar1_ = new QToolBar(frame_);
    Toolbar1_->setObjectName(QStringLiteral("Toolbar1"));
    Toolbar1_->setMovable(false);
    Toolbar1_->setIconSize(QSize(32, 32));
    Toolbar1_->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    frame_->addToolBar(Qt::TopToolBarArea, Toolbar1_);
    for (int index = 1; index <= 8; ++index) {
        if (index == 6) {
            Toolbar1_->addSeparator();
            continue;
        }
        QAction* action = Toolbar1_->addAction(ToolIcons::mainButton(index), QString());
        action->setObjectName(QStringLiteral("Toolbar1_%1").arg(index));
        action->setData(index);
        connect(action, &QAction::triggered, this, [this, index] { Toolbar1_ButtonClick(index); });
    }
    // The collection windows come with the FTP part of the program.
    for (int index : {4, 5})
        Toolbar1_->findChild<QAction*>(QStringLiteral("Toolbar1_%1").arg(index))->setEnabled(false);
}

void frmMain::buildMenu() {
    PopMenu1_ = frame_->menuBar()->addMenu(QString());
    PopMenu1_->setObjectName(QStringLiteral("PopMenu1"));
    QAction* horiozontal = PopMenu1_->addAction(ToolIcons::mainButton(3), QString());
    horiozontal->setObjectName(QStringLiteral("horiozontal"));
    connect(horiozontal, &QAction::triggered, this,
            [this] { frame_->TileWindows(1, kTiledKinds); });
    QAction* Vertical = PopMenu1_->addAction(ToolIcons::mainButton(2), QString());
    Vertical->setObjectName(QStringLiteral("Vertical"));
    connect(Vertical, &QAction::triggered, this, [this] { frame_->TileWindows(0, kTiledKinds); });
    frame_->mdiArea()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(frame_->mdiArea(), &QWidget::customContextMenuRequested, this,
            [this](const QPoint& at) { PopMenu1_->popup(frame_->mdiArea()->mapToGlobal(at)); });
}

void frmMain::setTexts() {
    const QString title = QStringLiteral("recview") + GSMode().GSTitleSuffix;
    frame_->setWindowTitle(mainWindowTitle(title));
    const int texts[] = {0, 450, 451, 452, 453, 454, 0, 455, 497};
    for (QAction* action : Toolbar1_->actions()) {
        const int index = action->data().toInt();
        if (index < 1) continue;
        action->setText(MsgText(texts[index]));
        action->setToolTip(MsgText(texts[index]));
        action->setStatusTip(MsgText(texts[index]));
    }
    PopMenu1_->setTitle(MsgText(4));
    PopMenu1_->findChild<QAction*>(QStringLiteral("horiozontal"))->setText(MsgText(61));
    PopMenu1_->findChild<QAction*>(QStringLiteral("Vertical"))->setText(MsgText(62));
}

void frmMain::Form_Load() {
    restoreWindow();
    setTexts();
    LoadShowPoints();
    timFTP_Timer();
    timDoubleClick_->start();
    timFTP_->start();
    if (selection().SelFileCount > 0) OpenView(FirstFreeView());
    // The start-up pass, once, after the files of the command line.
    if (ftpFile_->table.AutoReadFlg == 1) dataForm().RunCollection();
}

void frmMain::Form_Unload() {
    if (unloaded_) return;
    unloaded_ = true;
    timDoubleClick_->stop();
    timFTP_->stop();
    saveWindow();
    writeFtpSettings();
}

void frmMain::writeFtpSettings() {
    if (dataForm_) dataForm_->waitForPass();
    ftpFile_->FTPDataFo();
}

ftpDataForm& frmMain::dataForm() {
    if (!dataForm_) dataForm_ = new ftpDataForm(*ftpFile_, frame_);
    return *dataForm_;
}

void frmMain::restoreWindow() {
    WindBakRecord rec;
    if (!ReadWindBak(kMainWindowRecord, rec)) return;
    const QRect saved(rec.Window[0], rec.Window[1], rec.Window[2], rec.Window[3]);
    if (const auto placed =
            WindowRules::restoredGeometry(saved, frame_->screen()->availableGeometry()))
        frame_->setGeometry(*placed);
    if (rec.WindowState == 2) frame_->showMaximized();
}

void frmMain::saveWindow() {
    WindBakRecord rec;
    ReadWindBak(kMainWindowRecord, rec);
    rec.WindowState = frame_->isMinimized() ? 1 : frame_->isMaximized() ? 2 : 0;
    if (rec.WindowState == 0) {
        const QRect g = frame_->geometry();
        rec.Window = {g.x(), g.y(), g.width(), g.height()};
    }
    WriteWindBak(kMainWindowRecord, rec);
}

frmScrollTime* frmMain::ViewForm(int n) const {
    return forms_->ViewForm(n);
}

int frmMain::openViewCount() const {
    return forms_->openCount();
}

QString frmMain::Label2Text() const {
    return Label2_->text();
}

bool frmMain::OpenView(int number) {
    if (number < 1 || number > MaxViews) return false;
    const SelectionLists& sel = selection();
    Label2_->setText(familyWord(sel.SelFileType, sel.SelFileName.value(0)));
    for (int group = 1; group <= MaxViews; ++group) setGroupName(group, GroupNames(group));
    frmScrollTime* form = forms_->ensure(number);
    copySelectionToView(views(number));
    forms_->bringForward(number);
    const bool shown = form->LoadRecording();
    pendingView_ = number;
    timWindow_->start();
    return shown;
}

void frmMain::timWindow_Timer() {
    timWindow_->stop();
    forms_->fitIfAlone(pendingView_);
    forms_->bringForward(pendingView_);
}

void frmMain::timFTP_Timer() {
    StatusBar2_->setText(
        LocaleInfo::systemLocale().toString(QDateTime::currentDateTime(), QLocale::ShortFormat));
    // The daily pass, when its minute has come and nothing runs.
    if (ftpFile_) dataForm().tick();
    // Ticks fall just after whole seconds, so that drift never skips second 0.
    if (timFTP_->isActive()) timFTP_->start(1000 - QTime::currentTime().msec() + 5);
}

bool frmMain::anyViewLoading() const {
    for (int n = 1; n <= MaxViews; ++n)
        if (views(n).Loading) return true;
    return false;
}

bool frmMain::settingsWindowOpen() const {
    const QWidgetList widgets = QApplication::allWidgets();
    return std::any_of(widgets.begin(), widgets.end(), [](const QWidget* w) {
        return kSettingsWindows.contains(w->objectName()) ||
               kSettingsWindows.contains(QString::fromLatin1(w->metaObject()->className()));
    });
}

void frmMain::timDoubleClick_Timer() {
    const QString path = clickFilePath();
    WindowRules::HandOffPoll poll;
    poll.started = AppStarted();
    poll.anyViewLoading = anyViewLoading();
    poll.fileWaiting = QFile::exists(path);
    poll.settingsOpen = poll.fileWaiting && settingsWindowOpen();
    poll.freeView = FirstFreeView();
    const WindowRules::HandOff step = WindowRules::handOffStep(poll);
    if (step == WindowRules::HandOff::Later) return;
    timDoubleClick_->stop();
    if (step == WindowRules::HandOff::Discard) QFile::remove(path);
    if (step == WindowRules::HandOff::Open && WindowRules::takeClickFile(selection(), path))
        OpenView(poll.freeView);
    if (!unloaded_) timDoubleClick_->start();
}

void frmMain::dropOnMain(const QStringList& paths) {
    const int n = FirstFreeView();
    if (n == 0) return;
    views(n).MessageFiles.clear();
    if (DroppedFiles::OpenDroppedFiles(paths, views(n), gsMode())) OpenView(n);
}

void frmMain::dropOnView(int viewNumber, const QStringList& paths) {
    if (DroppedFiles::OpenDroppedFiles(paths, views(viewNumber), gsMode())) OpenView(viewNumber);
}

bool frmMain::openFilesInto(int viewNumber) {
    dlgSelect dialog(viewNumber, frame_);
    dialog.setDispType(gsMode() ? Family::P4F : Family::VXF);
    return dialog.exec() == QDialog::Accepted && OpenView(viewNumber);
}

int frmMain::NewView() {
    int n = 0;
    if (forms_->openCount() == 0) {
        n = 1;
        setGroupName(1, GroupNames(1));
    } else {
        frmGroupNameDialog dialog(frame_);
        if (dialog.exec() == QDialog::Accepted) n = dialog.chosenView();
    }
    if (n <= 0) return 0;
    const bool isNew = forms_->ViewForm(n) == nullptr;
    forms_->ensure(n);
    forms_->bringForward(n);
    // An empty view asks for its files at once.
    if (isNew) openFilesInto(n);
    return n;
}

void frmMain::Toolbar1_ButtonClick(int index) {
    switch (index) {
    case 1:
        NewView();
        break;
    case 2:
    case 3: {
        frame_->TileWindows(WindowRules::tilingMode(index, forms_->openCount()), kTiledKinds);
        break;
    }
    case 7: {
        frmVersion version(frame_);
        version.exec();
        break;
    }
    case 4:
        ftpForm::open(frame_);
        break;
    case 5:
        dataForm().show();
        dataForm().raise();
        break;
    case 8:
        ShowHelp();
        break;
    default:
        break;
    }
}

#include "ftp/widgets/ftpForm.h"

#include "base/LanguageTable.h"
#include "base/clsCommon.h"
#include "ftp/FtpTable.h"
#include "ftp/widgets/frmIpInput.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QEvent>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QStatusBar>
#include <QStorageInfo>
#include <QTableView>
#include <QToolBar>
#include <QTreeView>
#include <QVBoxLayout>

ftpForm::ftpForm(QWidget* parent, const QString& settingsPath)
    : QWidget(parent, Qt::Window),
      settingsPath_(settingsPath.isEmpty() ? ftpSetPath() : settingsPath) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("ftpForm"));
    setWindowTitle(MsgText(244));
    transfer_.load(settingsPath_);

    Toolbar1_ = new QToolBar(this);
    QAction* connectAction = Toolbar1_->addAction(MsgText(243));
    connectAction->setObjectName(QStringLiteral("Toolbar1_3"));
    connect(connectAction, &QAction::triggered, this, &ftpForm::connectHost);
    QAction* disconnectAction = Toolbar1_->addAction(QStringLiteral("×"));
    disconnectAction->setObjectName(QStringLiteral("Toolbar1_4"));
    connect(disconnectAction, &QAction::triggered, this, &ftpForm::disconnectHost);
    connect(Toolbar1_->addAction(QStringLiteral("?")), &QAction::triggered, this,
            [this] { clsCommon::shared().ShowHelp(objectName()); });

    address_ = new QLineEdit(transfer_.TAddress, this);
    address_->setObjectName(QStringLiteral("TAddress"));
    address_->setReadOnly(true);
    user_ = new QLineEdit(this);
    user_->setObjectName(QStringLiteral("TUserID"));
    password_ = new QLineEdit(transfer_.TPassword, this);
    password_->setObjectName(QStringLiteral("TPassword"));
    password_->setEchoMode(QLineEdit::Password);
    auto* addressButton = new QPushButton(QStringLiteral("…"), this);
    connect(addressButton, &QPushButton::clicked, this,
            [this] { address_->setText(frmIpInput::ShowModeress(this, address_->text())); });

    places_ = new QComboBox(this);
    places_->addItem(QDir::rootPath());
    places_->addItem(QDir::homePath());
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes())
        if (volume.isValid() && volume.isReady() && volume.rootPath() != QDir::rootPath())
            places_->addItem(volume.rootPath());
    dirs_ = new QFileSystemModel(this);
    dirs_->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot);
    dirs_->setRootPath(QDir::rootPath());
    Dir_ = new QTreeView(this);
    Dir_->setModel(dirs_);
    for (int c = 1; c < dirs_->columnCount(); ++c) Dir_->hideColumn(c);
    files_ = new QFileSystemModel(this);
    files_->setFilter(QDir::Files);
    File_ = new QListView(this);
    File_->setObjectName(QStringLiteral("File"));
    File_->setModel(files_);
    File_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    connect(Dir_, &QTreeView::clicked, this,
            [this](const QModelIndex& i) { setLocalDir(dirs_->filePath(i)); });
    connect(places_, &QComboBox::currentTextChanged, this, &ftpForm::setLocalDir);

    remote_ = new QTableView(this);
    remote_->setObjectName(QStringLiteral("vaSpread1"));
    remote_->setModel(&transfer_.remote());
    remote_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    remote_->setSelectionBehavior(QAbstractItemView::SelectRows);
    remote_->verticalHeader()->hide();
    connect(remote_, &QTableView::doubleClicked, this, [this](const QModelIndex& i) {
        transfer_.enter(i.row());
        syncState();
    });

    const auto makeButton = [this](const QString& text, const char* name, void (ftpForm::*slot)()) {
        auto* b = new QPushButton(text, this);
        b->setObjectName(QLatin1String(name));
        connect(b, &QPushButton::clicked, this, slot);
        return b;
    };
    auto* get = makeButton(QStringLiteral("<--"), "CGet", &ftpForm::CGet);
    auto* put = makeButton(QStringLiteral("-->"), "CPut", &ftpForm::CPut);
    auto* remove = makeButton(MsgText(51), "Delete", &ftpForm::Delete);
    Label5_ = new QLabel(this);
    Label5_->setObjectName(QStringLiteral("Label5"));
    StatusBar1_ = new QStatusBar(this);

    auto* grid = new QGridLayout;
    grid->addWidget(new QLabel(MsgText(243), this), 0, 0);
    grid->addWidget(address_, 0, 1);
    grid->addWidget(addressButton, 0, 2);
    grid->addWidget(new QLabel(MsgText(247), this), 1, 0);
    grid->addWidget(user_, 1, 1);
    grid->addWidget(new QLabel(MsgText(248), this), 2, 0);
    grid->addWidget(password_, 2, 1);
    auto* sides = new QHBoxLayout;
    auto* local = new QVBoxLayout;
    local->addWidget(places_);
    local->addWidget(Dir_, 1);
    local->addWidget(File_, 1);
    auto* middle = new QVBoxLayout;
    middle->addStretch();
    middle->addWidget(get);
    middle->addWidget(put);
    middle->addWidget(remove);
    middle->addStretch();
    sides->addLayout(local, 1);
    sides->addLayout(middle);
    sides->addWidget(remote_, 2);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Toolbar1_);
    layout->addLayout(grid);
    layout->addLayout(sides, 1);
    layout->addWidget(Label5_);
    layout->addWidget(StatusBar1_);
    // Transfers block in the FTP client: the window is disabled meanwhile and keeps drawing
    // through the transfer's progress.
    transfer_.progress() = [](qint64, qint64) {
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    };
    setLocalDir(transfer_.Dir);
    syncState();
    resize(900, 600);
}

ftpForm::~ftpForm() {
    remote_->setModel(nullptr);
}

ftpForm* ftpForm::open(QWidget* owner) {
    ftpForm* window = owner->findChild<ftpForm*>(QString(), Qt::FindDirectChildrenOnly);
    if (!window) window = new ftpForm(owner);
    window->show();
    window->raise();
    return window;
}

QPushButton* ftpForm::button(const char* name) const {
    return findChild<QPushButton*>(QLatin1String(name));
}

void ftpForm::setLocalDir(const QString& dir) {
    if (!QDir(dir).exists()) return;
    transfer_.Dir = dir;
    File_->setRootIndex(files_->setRootPath(dir));
}

// Not connected: the three boxes open, CGet and CPut off; connected the other way round.
void ftpForm::syncState() {
    const bool on = transfer_.connected();
    for (QLineEdit* box : {address_, user_, password_}) box->setEnabled(!on);
    button("CGet")->setEnabled(on);
    button("CPut")->setEnabled(on);
    StatusBar1_->showMessage(on ? transfer_.statusText() : QString());
}

void ftpForm::connectHost() {
    transfer_.TAddress = address_->text();
    transfer_.TUserID = user_->text();
    transfer_.TPassword = password_->text();
    Label5_->setText(MsgText(245));
    setEnabled(false);
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    transfer_.Connect();
    setEnabled(true);
    Label5_->clear();
    syncState();
}

void ftpForm::disconnectHost() {
    transfer_.Disconnect();
    syncState();
}

QList<int> ftpForm::chosenRows() const {
    QList<int> rows;
    for (const QModelIndex& i : remote_->selectionModel()->selectedRows()) rows << i.row();
    std::sort(rows.begin(), rows.end());
    return rows;
}

void ftpForm::CGet() {
    const auto line = [this](const QString& text) {
        Label5_->setText(text);
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    };
    setEnabled(false);
    transfer_.CGet(chosenRows(), line);
    setEnabled(true);
    syncState();
}

void ftpForm::CPut() {
    QStringList names;
    for (const QModelIndex& i : File_->selectionModel()->selectedIndexes())
        names << files_->fileName(i);
    const auto line = [this](const QString& text) {
        Label5_->setText(text);
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    };
    setEnabled(false);
    transfer_.CPut(names, line);
    setEnabled(true);
    syncState();
}

void ftpForm::Delete() {
    transfer_.Delete(chosenRows());
    syncState();
}

void ftpForm::closeEvent(QCloseEvent* event) {
    transfer_.TAddress = address_->text();
    transfer_.save(settingsPath_);
    if (transfer_.connected()) transfer_.Disconnect();
    event->accept();
}

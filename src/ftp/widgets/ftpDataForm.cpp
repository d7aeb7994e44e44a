#include "ftp/widgets/ftpDataForm.h"

#include "base/LanguageTable.h"
#include "base/WinColor.h"
#include "ftp/FTPFile.h"
#include "ftp/widgets/ftpSetForm.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QStyle>
#include <QTableWidget>
#include <QUrl>
#include <QVBoxLayout>

#include <chrono>

ftpDataForm::ftpDataForm(FTPFile& file, QWidget* parent)
    : QWidget(parent, Qt::Window), file_(file),
      engine_(
          [this](int row) {
              int result = 0;
              file_.GetFile(row, false, 0, result);
              return result == 1;
          },
          [] { return QDateTime::currentDateTime(); },
          [](int ms) { std::this_thread::sleep_for(std::chrono::milliseconds(ms)); }),
      grid_(new QTableWidget(FtpTable::kRows, 6, this)), check_(new QCheckBox(this)) {
    setObjectName(QStringLiteral("ftpDataForm"));
    setWindowTitle(MsgText(478));
    grid_->setObjectName(QStringLiteral("vaSpread1"));
    grid_->setHorizontalHeaderLabels(
        {MsgText(478), QString(), MsgText(482), QString(), MsgText(483), MsgText(484)});
    const double widths[] = {15, 3.5, 20, 3.5, 18, 30};
    for (int c = 0; c < 6; ++c) grid_->setColumnWidth(c, int(widths[c] * 8));
    grid_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    connect(grid_, &QTableWidget::cellClicked, this,
            [this](int r, int c) { cellClicked(r + 1, c + 1); });
    // Status changes come from the worker: the grid follows them on this thread.
    engine_.changed = [this](int row) {
        const CollectionEngine::Row copy = engine_.rows[size_t(row - 1)];
        QMetaObject::invokeMethod(
            this, [this, row, copy] { showRow(row, copy); }, Qt::QueuedConnection);
    };
    engine_.closeConnection = [this] { file_.FTPConectClose(); };
    check_->setObjectName(QStringLiteral("Check"));
    check_->setChecked(file_.table.AutoReadFlg == 1);
    auto* buttons = new QHBoxLayout;
    const struct {
        const char* name;
        QString caption;
        void (ftpDataForm::*slot)();
    } commands[] = {{"cmdGet", QStringLiteral("Get"), &ftpDataForm::cmdGet},
                    {"cmdStop", QStringLiteral("Stop"), &ftpDataForm::cmdStop},
                    {"cmdSet", QStringLiteral("Set"), &ftpDataForm::cmdSet},
                    {"cmdOK", MsgText(46), &ftpDataForm::cmdOK},
                    {"cmdCancel", MsgText(47), &ftpDataForm::cmdCancel}};
    for (const auto& c : commands) {
        auto* b = new QPushButton(c.caption, this);
        b->setObjectName(QLatin1String(c.name));
        connect(b, &QPushButton::clicked, this, c.slot);
        buttons->addWidget(b);
    }
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(check_);
    layout->addWidget(grid_);
    layout->addLayout(buttons);
    loadGrid();
    resize(760, 560);
}

ftpDataForm::~ftpDataForm() {
    cmdStop();
    waitForPass(); // the changes it posted to this window are dropped with it
}

QPushButton* ftpDataForm::button(const char* name) const {
    return findChild<QPushButton*>(QLatin1String(name));
}

void ftpDataForm::loadGrid() {
    if (engine_.passRunning()) return; // the rows belong to the pass until it ends
    engine_.rows.resize(FtpTable::kRows);
    shown_.resize(FtpTable::kRows);
    engine_.Retry = file_.table.Retry;
    engine_.Wait = file_.table.Wait;
    engine_.RegularH = file_.table.RegularH;
    engine_.RegularM = file_.table.RegularM;
    for (int r = 1; r <= FtpTable::kRows; ++r) {
        const FtpRow& row = *file_.table.row(r);
        CollectionEngine::Row& e = engine_.rows[size_t(r - 1)];
        e.tag = row.Tag;
        e.pcDir = row.PCDir;
        e.time = row.Time;
        e.shownTime = row.Time;
        e.status = row.status.isEmpty() ? MsgText(496) : row.status;
        showRow(r, e);
        const bool configured = e.configured();
        const auto picture = [&](int col, QStyle::StandardPixmap icon) {
            auto* item = new QTableWidgetItem();
            if (configured) item->setIcon(style()->standardIcon(icon));
            grid_->setItem(r - 1, col, item);
        };
        picture(1, QStyle::SP_DirOpenIcon);
        picture(3, QStyle::SP_ArrowDown);
    }
    button("cmdSet")->setEnabled(engine_.CollectionBusyRow == 0);
}

void ftpDataForm::showRow(int row, const CollectionEngine::Row& r) {
    shown_[size_t(row - 1)] = r;
    const auto cell = [&](int col, const QString& text) {
        QTableWidgetItem* item = grid_->item(row - 1, col);
        if (!item) grid_->setItem(row - 1, col, item = new QTableWidgetItem());
        item->setText(text);
        return item;
    };
    cell(0, r.tag);
    cell(2, r.pcDir);
    cell(4, r.status)->setBackground(WinColor::toQColor(r.color));
    cell(5, r.shownTime);
    if (QPushButton* set = button("cmdSet")) set->setEnabled(engine_.cmdSetEnabled);
}

void ftpDataForm::runOnWorker(std::function<void()> pass) {
    if (engine_.passRunning()) return;
    if (worker_.joinable()) worker_.join();
    file_.StopRequested = false;
    worker_ = std::thread(std::move(pass));
}

void ftpDataForm::waitForPass() {
    if (worker_.joinable()) worker_.join();
}

void ftpDataForm::tick() {
    if (engine_.CollectionBusyRow != 0 || !engine_.due(QDateTime::currentDateTime())) return;
    runOnWorker([this] { engine_.tick(); });
}

void ftpDataForm::RunCollection() {
    button("cmdSet")->setEnabled(false);
    runOnWorker([this] { engine_.RunCollection(); });
}

void ftpDataForm::cmdGet() {
    runOnWorker([this] { engine_.cmdGet(); });
}

void ftpDataForm::cmdStop() {
    engine_.cmdStop();
    file_.StopRequested = true;
    button("cmdSet")->setEnabled(true);
}

void ftpDataForm::cellClicked(int row, int column) {
    if (row < 1 || row > FtpTable::kRows) return;
    const CollectionEngine::Row& r = shown_[size_t(row - 1)];
    if (column == 4 && r.configured()) runOnWorker([this, row] { engine_.rowClick(row); });
    if (column == 2 && !r.pcDir.trimmed().isEmpty())
        QDesktopServices::openUrl(QUrl::fromLocalFile(r.pcDir.trimmed()));
}

// The table belongs to a running pass (its fetches read it): times are stored once it ended.
void ftpDataForm::storeTimes() {
    if (engine_.passRunning()) return;
    for (int r = 1; r <= FtpTable::kRows; ++r)
        file_.table.row(r)->Time = shown_[size_t(r - 1)].time;
}

void ftpDataForm::cmdOK() {
    file_.table.AutoReadFlg = check_->isChecked() ? 1 : 0;
    storeTimes(); // tag and folder are not edited here: the settings window keeps them
    hide();
}

// The settings window; the grid is loaded again when it closes.
void ftpDataForm::cmdSet() {
    if (engine_.passRunning()) return;
    ftpSetForm settings(file_, this);
    settings.exec();
    loadGrid();
}

void ftpDataForm::cmdCancel() {
    hide();
}

void ftpDataForm::closeEvent(QCloseEvent* event) {
    storeTimes();
    event->accept();
}

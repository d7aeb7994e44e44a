#include "ftp/widgets/ftpDir.h"

#include "base/LanguageTable.h"
#include "ftp/FTPFile.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QIdentityProxyModel>
#include <QStyle>
#include <QTableView>
#include <QVBoxLayout>

namespace {

// Shows the pictures of the list as icons.
class FtpIconModel final : public QIdentityProxyModel {
public:
    using QIdentityProxyModel::QIdentityProxyModel;
    QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::DecorationRole) return QIdentityProxyModel::data(index, role);
        const int image = QIdentityProxyModel::data(index, FtpListModel::kImageRole).toInt();
        QStyle* style = QApplication::style();
        switch (image) {
        case FtpListModel::kFolder:
            return style->standardIcon(QStyle::SP_DirIcon);
        case FtpListModel::kWayUp:
            return style->standardIcon(QStyle::SP_FileDialogToParent);
        case FtpListModel::kQdfFile:
        case FtpListModel::kVxfFile:
            return style->standardIcon(QStyle::SP_FileDialogDetailedView);
        case FtpListModel::kFile:
            return style->standardIcon(QStyle::SP_FileIcon);
        default:
            return {};
        }
    }
};

} // namespace

ftpDir::ftpDir(FTPFile& ftpFile, QWidget* parent) : QDialog(parent), ftpFile_(ftpFile) {
    setModal(true);
    icons_ = new FtpIconModel(this);
    icons_->setSourceModel(&model_);
    table_ = new QTableView(this);
    table_->setModel(icons_);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->verticalHeader()->hide();
    table_->setShowGrid(false);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(table_);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &ftpDir::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ftpDir::reject);
    connect(table_, &QTableView::doubleClicked, this,
            [this](const QModelIndex& index) { activateRow(index.row()); });
    connect(&model_, &QAbstractItemModel::modelReset, table_, &QTableView::resizeColumnsToContents);
    worker_.moveToThread(&thread_);
    thread_.start();
    resize(560, 420);
}

ftpDir::~ftpDir() {
    ftpFile_.cancel();
    thread_.quit();
    thread_.wait();
    icons_->setSourceModel(nullptr);
}

void ftpDir::runInBackground(std::function<Listing()> job) {
    if (busy_) return;
    busy_ = true;
    table_->setEnabled(false);
    QMetaObject::invokeMethod(&worker_, [this, job] {
        const Listing listing = job();
        QMetaObject::invokeMethod(this, [this, listing] {
            busy_ = false;
            table_->setEnabled(true);
            if (listing.ok) model_.setListing(listing.curDir, listing.entries);
            Q_EMIT listingReady(listing.ok);
        });
    });
}

void ftpDir::openAt(const QString& address, const QString& password) {
    runInBackground([this, address, password] {
        Listing listing;
        ftpFile_.FTPConectTEST(address, password, listing.ok);
        if (listing.ok) {
            listing.curDir = ftpFile_.CurDir();
            listing.entries = ftpFile_.currentListing();
        }
        return listing;
    });
}

void ftpDir::activateRow(int row) {
    QString target;
    if (const FtpEntry* entry = model_.entryAt(row)) {
        if (!entry->isDirectory() || entry->Name.trimmed() != QLatin1String("DATA")) return;
        target = entry->Name;
    } else if (row == 0 && model_.curDir() != QLatin1String("/")) {
        target = QStringLiteral("../");
    } else {
        return;
    }
    runInBackground([this, target] {
        ftpFile_.setCurDir(target);
        Listing listing;
        listing.ok = true;
        listing.curDir = ftpFile_.CurDir();
        listing.entries = ftpFile_.currentListing();
        return listing;
    });
}

void ftpDir::accept() {
    const FtpEntry* entry = model_.entryAt(table_->currentIndex().row());
    chosen_ = ftpChosenPath(model_.curDir(), entry ? entry->Name : QString());
    QDialog::accept();
}

#include "app/widgets/dlgSelect.h"

#include "app/StartFiles.h"
#include "base/LanguageTable.h"
#include "base/LocaleInfo.h"
#include "base/clsCommon.h"
#include "base/widgets/ApplyLanguageFont.h"
#include "recording/Families.h"
#include "recording/ViewState.h"

#include <QButtonGroup>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSplitter>
#include <QTreeView>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

QTreeWidget* fileList(QWidget* parent, const char* name) {
    auto* list = new QTreeWidget(parent);
    list->setObjectName(QLatin1String(name));
    list->setHeaderLabels({MsgText(218), MsgText(219), MsgText(220)});
    list->setRootIsDecorated(false);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->setUniformRowHeights(true);
    list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    list->header()->setStretchLastSection(false);
    return list;
}

void addFileRow(QTreeWidget* list, const QFileInfo& info, const QString& name) {
    const qint64 kb = (info.size() + 1023) / 1024;
    auto* item =
        new QTreeWidgetItem(list, {name, QLocale().toString(kb) + QStringLiteral(" KB"),
                                   QLocale().toString(info.lastModified(), QLocale::ShortFormat)});
    item->setData(0, Qt::UserRole, info.absoluteFilePath());
    item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
}

} // namespace

QString dlgSelect::pattern(int family) {
    const FamilyInfo* f = Families::byCode(family);
    return f && f->pattern ? QLatin1String(f->pattern) : QString();
}

QStringList dlgSelect::matchingFiles(const QString& dir, int family) {
    const QString p = pattern(family);
    if (p.isEmpty()) return {};
    // "*.***" is every file; the others match their extension in any case.
    const QStringList filters{p == QLatin1String("*.***") ? QStringLiteral("*") : p};
    return QDir(dir).entryList(filters, QDir::Files, QDir::Name | QDir::IgnoreCase);
}

dlgSelect::dlgSelect(int viewNumber, QWidget* parent)
    : QDialog(parent), viewNumber_(viewNumber), gsMode_(clsCommon::shared().isGsMode()),
      chooser_(gsMode_) {
    setObjectName(QStringLiteral("dlgSelect"));
    ApplyLanguageFont(this);
    setWindowTitle(MsgText(217));

    buildFolderTree();
    lblPath_ = new QLabel(this);
    lblPath_->setObjectName(QStringLiteral("lblPath"));
    lstFiles_ = fileList(this, "File1");
    connect(lstFiles_, &QTreeWidget::itemDoubleClicked, this, [this] { btnSelect_Click(); });
    lstChosen_ = fileList(this, "lstChosen");

    btnSelect_ = new QPushButton(QStringLiteral("▼"), this);
    btnSelect_->setObjectName(QStringLiteral("btnSelect"));
    btnUnSelect_ = new QPushButton(QStringLiteral("▲"), this);
    btnUnSelect_->setObjectName(QStringLiteral("btnUnSelect"));
    connect(btnSelect_, &QPushButton::clicked, this, &dlgSelect::btnSelect_Click);
    connect(btnUnSelect_, &QPushButton::clicked, this, &dlgSelect::btnUnSelect_Click);
    auto* buttons = new QDialogButtonBox(this);
    btnRegister_ = buttons->addButton(MsgText(46), QDialogButtonBox::AcceptRole);
    btnRegister_->setObjectName(QStringLiteral("btnRegister"));
    buttons->addButton(MsgText(47), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &dlgSelect::btnRegister_Click);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* right = new QWidget(this);
    auto* grid = new QGridLayout(right);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(lblPath_, 0, 0);
    grid->addWidget(lstFiles_, 1, 0);
    grid->addWidget(buildOptions(), 1, 1);
    auto* moves = new QHBoxLayout;
    moves->addStretch();
    moves->addWidget(btnSelect_);
    moves->addWidget(btnUnSelect_);
    moves->addStretch();
    grid->addLayout(moves, 2, 0);
    grid->addWidget(lstChosen_, 3, 0, 1, 2);
    auto* splitter = new QSplitter(this);
    splitter->addWidget(dirTree_);
    splitter->addWidget(right);
    splitter->setStretchFactor(1, 3);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(splitter, 1);
    layout->addWidget(buttons);
    resize(900, 600);

    setDispType(gsMode_ ? Family::P4F : Family::VXF);
    setDirectory(ReadLastDirectory());
}

void dlgSelect::buildFolderTree() {
    folders_ = new QFileSystemModel(this);
    folders_->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot);
    folders_->setRootPath(QStringLiteral("/"));
    dirTree_ = new QTreeView(this);
    dirTree_->setObjectName(QStringLiteral("Dir1"));
    dirTree_->setModel(folders_);
    for (int column = 1; column < folders_->columnCount(); ++column) dirTree_->hideColumn(column);
    dirTree_->setHeaderHidden(true);
    dirTree_->setSortingEnabled(true);
    dirTree_->sortByColumn(0, Qt::AscendingOrder);
    connect(dirTree_, &QTreeView::clicked, this,
            [this](const QModelIndex& index) { setDirectory(folders_->filePath(index)); });
}

QWidget* dlgSelect::buildOptions() {
    auto* box = new QGroupBox(this);
    box->setObjectName(QStringLiteral("fraType"));
    auto* column = new QVBoxLayout(box);
    options_ = new QButtonGroup(this);
    for (const FamilyInfo& f : Families::all()) {
        if (!f.offeredIn(gsMode_)) continue;
        auto* radio = new QRadioButton(QLatin1String(f.caption), box);
        radio->setObjectName(QStringLiteral("optType%1").arg(f.code));
        options_->addButton(radio, f.code);
        column->addWidget(radio);
    }
    column->addStretch();
    connect(options_, &QButtonGroup::idClicked, this, [this] { fillFiles(); });
    return box;
}

void dlgSelect::setDispType(int family) {
    if (QAbstractButton* radio = options_->button(family)) radio->setChecked(true);
    fillFiles();
}

int dlgSelect::DispType() const {
    return options_->checkedId();
}

void dlgSelect::setDirectory(const QString& dir) {
    QString path = QDir(dir).exists() ? QDir(dir).absolutePath() : QDir::homePath();
    directory_ = path;
    lblPath_->setText(QDir::toNativeSeparators(path));
    const QModelIndex index = folders_->index(path);
    dirTree_->setCurrentIndex(index);
    dirTree_->scrollTo(index);
    fillFiles();
}

void dlgSelect::fillFiles() {
    lstFiles_->clear();
    if (directory_.isEmpty()) return;
    const QDir dir(directory_);
    for (const QString& name : matchingFiles(directory_, DispType()))
        addFileRow(lstFiles_, QFileInfo(dir.filePath(name)), name);
    lstFiles_->resizeColumnToContents(1);
    lstFiles_->resizeColumnToContents(2);
}

void dlgSelect::fillChosen() {
    lstChosen_->clear();
    for (const SelectionChooser::Entry& e : chooser_.chosen())
        addFileRow(lstChosen_, QFileInfo(e.path), e.path);
    lstChosen_->resizeColumnToContents(1);
    lstChosen_->resizeColumnToContents(2);
    btnSelect_->setEnabled(chooser_.selectEnabled());
}

void dlgSelect::selectFiles(const QStringList& names) {
    for (int i = 0; i < lstFiles_->topLevelItemCount(); ++i) {
        QTreeWidgetItem* item = lstFiles_->topLevelItem(i);
        item->setSelected(names.contains(item->text(0)));
    }
}

void dlgSelect::btnSelect_Click() {
    if (!chooser_.selectEnabled()) return;
    for (int i = 0; i < lstFiles_->topLevelItemCount(); ++i) {
        QTreeWidgetItem* item = lstFiles_->topLevelItem(i);
        if (!item->isSelected()) continue;
        if (chooser_.take(item->data(0, Qt::UserRole).toString(), DispType()) != 0) break;
        if (!chooser_.selectEnabled()) break;
    }
    fillChosen();
}

void dlgSelect::btnUnSelect_Click() {
    for (int i = lstChosen_->topLevelItemCount() - 1; i >= 0; --i)
        if (lstChosen_->topLevelItem(i)->isSelected()) chooser_.unselect(i);
    fillChosen();
}

void dlgSelect::btnRegister_Click() {
    if (!chooser_.registerSelection(directory_)) return;
    if (viewNumber_ >= 1) views(viewNumber_).MessageFiles = chooser_.messageFiles();
    accept();
}

void dlgSelect::done(int result) {
    if (!directory_.isEmpty()) SaveLastDirectory(directory_);
    QDialog::done(result);
}

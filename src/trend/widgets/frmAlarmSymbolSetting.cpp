#include "trend/widgets/frmAlarmSymbolSetting.h"

#include "base/LanguageTable.h"
#include "base/Progress.h"
#include "base/WinColor.h"
#include "platform/ChartRenderer.h"

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

constexpr int kSymbolRole = Qt::UserRole + 1;

// A symbol shape as the chart draws it, for the combo cells.
QIcon symbolIcon(int shape) {
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::white);
    RenderPlan plan;
    plan.layout.plot = QRectF(0, 0, 16, 16);
    RenderPlan::Series series;
    series.symbols.push_back({QPointF(8, 8), Chart::SymbolShape(shape), 10, Qt::black});
    plan.series.push_back(series);
    QPainter painter(&pixmap);
    ChartRenderer::paint(plan, painter);
    return QIcon(pixmap);
}

// Symbol cells edit through a combo box of the chart's shapes.
class SymbolDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                          const QModelIndex&) const override {
        auto* box = new QComboBox(parent);
        for (int s = 1; s <= AlarmSymbolSettings::kSymbolCount; ++s)
            box->addItem(symbolIcon(s), QString::number(s), s);
        return box;
    }
    void setEditorData(QWidget* editor, const QModelIndex& index) const override {
        auto* box = static_cast<QComboBox*>(editor);
        box->setCurrentIndex(box->findData(index.data(kSymbolRole)));
    }
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override {
        const int shape = static_cast<QComboBox*>(editor)->currentData().toInt();
        model->setData(index, shape, kSymbolRole);
        model->setData(index, QString::number(shape), Qt::DisplayRole);
        model->setData(index, symbolIcon(shape), Qt::DecorationRole);
    }
};

// The dialog's own progress bar, pumping events as the work goes on.
class BarProgress final : public Progress {
public:
    explicit BarProgress(QProgressBar* bar) : bar_(bar) {}
    void setValue(int percent) override { bar_->setValue(percent); }
    bool poll() override {
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        return false;
    }

private:
    QProgressBar* bar_;
};

} // namespace

frmAlarmSymbolSetting::frmAlarmSymbolSetting(TrendView& view, QWidget* parent)
    : QDialog(parent), settings_(view) {
    setObjectName(QStringLiteral("frmAlarmSymbolSetting"));
    setWindowTitle(MsgText(229));
    setFont(QFont(LanguageFont(), 9));
    auto* layout = new QVBoxLayout(this);

    const int rows = settings_.channelCount();
    const int cols = AlarmSymbolSettings::kLevels * AlarmSymbolSettings::kColumnsPerLevel;
    SpreadAlarm_ = new QTableWidget(rows, cols, this);
    SpreadAlarm_->setObjectName(QStringLiteral("SpreadAlarm"));
    SpreadAlarm_->setItemDelegate(new QStyledItemDelegate(SpreadAlarm_));
    SpreadAlarm_->horizontalHeader()->setDefaultAlignment(Qt::AlignCenter);
    SpreadAlarm_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    SpreadAlarm_->verticalHeader()->setMinimumWidth(20 * fontMetrics().averageCharWidth());
    for (int c = 1; c <= cols; ++c) {
        SpreadAlarm_->setHorizontalHeaderItem(c - 1,
                                              new QTableWidgetItem(settings_.columnHeader(c)));
        if (AlarmSymbolSettings::kindOfColumn(c) == 0)
            SpreadAlarm_->setItemDelegateForColumn(c - 1, new SymbolDelegate(SpreadAlarm_));
    }
    SpreadAlarm_->setEditTriggers(QAbstractItemView::DoubleClicked |
                                  QAbstractItemView::SelectedClicked);
    layout->addWidget(SpreadAlarm_);

    Frame6_ = new QFrame(this);
    Frame6_->setObjectName(QStringLiteral("Frame6"));
    auto* frameLayout = new QHBoxLayout(Frame6_);
    ProgressBar1_ = new QProgressBar(Frame6_);
    ProgressBar1_->setObjectName(QStringLiteral("ProgressBar1"));
    ProgressBar1_->setRange(0, 100);
    frameLayout->addWidget(ProgressBar1_);
    layout->addWidget(Frame6_);

    chkShow_ = new QCheckBox(MsgText(229), this);
    chkShow_->setObjectName(QStringLiteral("chkShow"));
    chkShow_->setChecked(settings_.chkShow);
    layout->addWidget(chkShow_);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    QPushButton* preview = buttons->addButton(MsgText(45), QDialogButtonBox::ApplyRole);
    preview->setObjectName(QStringLiteral("btnPreview"));
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &frmAlarmSymbolSetting::btnOK_Click);
    connect(buttons, &QDialogButtonBox::rejected, this, &frmAlarmSymbolSetting::btnCancel_Click);
    connect(preview, &QPushButton::clicked, this, &frmAlarmSymbolSetting::btnPreview_Click);
    connect(SpreadAlarm_, &QTableWidget::cellClicked, this, &frmAlarmSymbolSetting::chooseColor);
    connect(SpreadAlarm_, &QTableWidget::cellChanged, this, &frmAlarmSymbolSetting::takeCell);
    fillGrid();
    resize(900, 480);
}

void frmAlarmSymbolSetting::fillGrid() {
    filling_ = true;
    Frame6_->show();
    const AlarmStyle& style = settings_.working();
    const int rows = settings_.channelCount();
    for (int ch = 1; ch <= rows; ++ch) {
        SpreadAlarm_->setVerticalHeaderItem(ch - 1, new QTableWidgetItem(settings_.rowHeader(ch)));
        for (int level = 1; level <= AlarmSymbolSettings::kLevels; ++level) {
            const int col = (level - 1) * AlarmSymbolSettings::kColumnsPerLevel;
            auto* symbol = new QTableWidgetItem(QString::number(style.Symbol(level, ch)));
            symbol->setData(kSymbolRole, int(style.Symbol(level, ch)));
            symbol->setIcon(symbolIcon(style.Symbol(level, ch)));
            auto* color = new QTableWidgetItem;
            color->setFlags(Qt::ItemIsEnabled);
            color->setBackground(WinColor::toQColor(style.Color(level, ch)));
            auto* size = new QTableWidgetItem;
            size->setData(Qt::EditRole, int(style.Size(level, ch)));
            SpreadAlarm_->setItem(ch - 1, col, symbol);
            SpreadAlarm_->setItem(ch - 1, col + 1, color);
            SpreadAlarm_->setItem(ch - 1, col + 2, size);
        }
        ProgressBar1_->setValue(100 * ch / std::max(rows, 1));
    }
    Frame6_->hide();
    filling_ = false;
}

void frmAlarmSymbolSetting::takeCell(int row, int col) {
    if (filling_) return;
    const QTableWidgetItem* item = SpreadAlarm_->item(row, col);
    if (!item) return;
    const int level = AlarmSymbolSettings::levelOfColumn(col + 1);
    AlarmStyle& style = settings_.working();
    switch (AlarmSymbolSettings::kindOfColumn(col + 1)) {
    case 0:
        style.setSymbol(level, row + 1, qint16(item->data(kSymbolRole).toInt()));
        break;
    case 1:
        style.setColor(level, row + 1, WinColor::fromQColor(item->background().color()));
        break;
    default:
        style.setSize(level, row + 1, item->data(Qt::EditRole).toInt());
        break;
    }
}

void frmAlarmSymbolSetting::chooseColor(int row, int col) {
    if (AlarmSymbolSettings::kindOfColumn(col + 1) != 1) return;
    QTableWidgetItem* item = SpreadAlarm_->item(row, col);
    if (!item) return;
    const QColor chosen = QColorDialog::getColor(item->background().color(), this);
    if (chosen.isValid()) item->setBackground(chosen); // cellChanged takes it over
}

void frmAlarmSymbolSetting::takeGrid() {
    settings_.chkShow = chkShow_->isChecked();
}

void frmAlarmSymbolSetting::btnOK_Click() {
    takeGrid();
    Frame6_->show();
    BarProgress progress(ProgressBar1_);
    settings_.OK(&progress);
    accept();
}

void frmAlarmSymbolSetting::btnCancel_Click() {
    Frame6_->show();
    BarProgress progress(ProgressBar1_);
    settings_.Cancel(&progress);
    reject();
}

void frmAlarmSymbolSetting::btnPreview_Click() {
    takeGrid();
    Frame6_->show();
    BarProgress progress(ProgressBar1_);
    settings_.preview(&progress);
    Frame6_->hide();
}

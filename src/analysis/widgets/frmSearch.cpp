#include "analysis/widgets/frmSearch.h"

#include "base/LanguageTable.h"
#include "base/Progress.h"
#include "base/ShowMsg.h"
#include "base/TimeBase.h"
#include "recording/ViewState.h"
#include "trend/TrendTimeAxis.h"
#include "trend/TrendView.h"
#include "trend/widgets/frmScrollTime.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QVBoxLayout>

// The hits as a table: texts made only for the rows the view draws.
class SearchResultModel final : public QAbstractTableModel {
public:
    SearchResultModel(TrendView& view, QObject* parent)
        : QAbstractTableModel(parent), view_(view) {}
    void show(const Search::Input& in, const Search::Result* result) {
        beginResetModel();
        in_ = in;
        result_ = result;
        endResetModel();
    }
    int rowCount(const QModelIndex& parent = QModelIndex()) const override {
        return parent.isValid() || !result_ ? 0 : int(result_->hits.size());
    }
    int columnCount(const QModelIndex& parent = QModelIndex()) const override {
        return parent.isValid() ? 0 : int(Search::headers(in_.kind).size());
    }
    QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::DisplayRole || !result_) return QVariant();
        return Search::rowTexts(view_, in_, *result_, size_t(index.row())).value(index.column());
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (role != Qt::DisplayRole || orientation != Qt::Horizontal) return QVariant();
        return Search::headers(in_.kind).value(section);
    }
    QStringList row(int r) const {
        return result_ ? Search::rowTexts(view_, in_, *result_, size_t(r)) : QStringList();
    }

private:
    TrendView& view_;
    Search::Input in_;
    const Search::Result* result_ = nullptr;
};

namespace {

// Pbar1 as the search's progress; events run so the window stays drawn.
class BarProgress final : public Progress {
public:
    explicit BarProgress(QProgressBar* bar) : bar_(bar) {}
    void setValue(int percent) override { bar_->setValue(percent); }
    bool poll() override {
        QApplication::processEvents();
        return false;
    }

private:
    QProgressBar* bar_;
};

QDateTime dateTimeOf(qint64 secondsSince2000) {
    const TimeBase::CalendarTime f = TimeBase::fromSeconds(secondsSince2000);
    return QDateTime(QDate(f.year, f.month, f.day), QTime(f.hour, f.minute, f.second));
}

qint64 secondsOf(const QDateTime& t) {
    const QDate d = t.date();
    const QTime c = t.time();
    return TimeBase::toSeconds({d.year(), d.month(), d.day(), c.hour(), c.minute(), c.second()});
}

} // namespace

frmSearch::frmSearch(frmScrollTime& view) : QWidget(&view, Qt::Window), view_(view) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("frmSearch"));
    setWindowTitle(MsgText(68));
    const ViewState& t = view.trend().tables();
    kind_ = new QComboBox(this);
    for (int m = 71; m <= 79; ++m) kind_->addItem(MsgText(m));
    kind_->addItem(MsgText(228));
    channel_ = new QComboBox(this);
    options_ = new QButtonGroup(this);
    auto* optionRow = new QHBoxLayout;
    for (int k = 0; k < 4; ++k) {
        auto* option = new QRadioButton(this);
        option->setObjectName(QStringLiteral("Option1_%1").arg(k));
        options_->addButton(option, k);
        optionRow->addWidget(option);
    }
    options_->button(0)->setChecked(true);
    label1_ = new QLabel(this);
    text1_ = new QLineEdit(this);
    text1_->setObjectName(QStringLiteral("Text1"));
    label2_ = new QLabel(QStringLiteral("～"), this);
    text2_ = new QLineEdit(this);
    text2_->setObjectName(QStringLiteral("Text2"));
    from_ = new QDateTimeEdit(dateTimeOf(SampleTimeText(0, view.GetGroup()).seconds), this);
    to_ = new QDateTimeEdit(
        dateTimeOf(SampleTimeText(std::max(0, t.PointCount - 1), view.GetGroup()).seconds), this);
    combo1_ = new QComboBox(this);
    label3_ = new QLabel(this);
    auto* search = new QPushButton(MsgText(68), this);
    search->setObjectName(QStringLiteral("cmdSearch"));
    Pbar1_ = new QProgressBar(this);
    Pbar1_->setObjectName(QStringLiteral("Pbar1"));
    Pbar1_->hide();
    model_ = new SearchResultModel(view.trend(), this);
    results_ = new QTableView(this);
    results_->setObjectName(QStringLiteral("vaSpread1"));
    results_->setModel(model_);
    results_->verticalHeader()->hide();
    results_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    results_->setSelectionBehavior(QAbstractItemView::SelectRows);
    results_->hide();

    auto* form = new QFormLayout;
    form->addRow(kind_);
    form->addRow(channel_);
    form->addRow(optionRow);
    auto* values = new QHBoxLayout;
    values->addWidget(text1_);
    values->addWidget(label2_);
    values->addWidget(text2_);
    form->addRow(label1_, values);
    auto* times = new QHBoxLayout;
    times->addWidget(from_);
    times->addWidget(to_);
    form->addRow(times);
    form->addRow(label3_, combo1_);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(search);
    layout->addWidget(Pbar1_);
    layout->addWidget(results_, 1);

    connect(kind_, &QComboBox::currentIndexChanged, this, [this] { applyKind(); });
    connect(options_, &QButtonGroup::idClicked, this, [this] { applyKind(); });
    connect(search, &QPushButton::clicked, this, &frmSearch::cmdSearch);
    connect(results_, &QTableView::clicked, this,
            [this](const QModelIndex& index) { hitClicked(index.row()); });
    applyKind();
    resize(520, 300);
}

frmSearch::~frmSearch() {
    model_->show(shownInput_, nullptr);
}

frmSearch* frmSearch::open(frmScrollTime& view) {
    frmSearch* window = nullptr;
    for (frmSearch* w : view.findChildren<frmSearch*>(QString(), Qt::FindDirectChildrenOnly))
        if (w->isVisible()) window = w;
    if (!window) window = new frmSearch(view);
    window->show();
    window->raise();
    return window;
}

void installSearch() {
    frmScrollTime::setToolbar1Window(7, [](frmScrollTime& view) { frmSearch::open(view); });
}

void frmSearch::setKind(int kind) {
    kind_->setCurrentIndex(kind);
}

// The form of the condition for the kind: channel choice, option captions, labels.
void frmSearch::applyKind() {
    const int kind = kind_->currentIndex();
    const ViewState& t = view_.trend().tables();
    const QString previous = channel_->currentText();
    channel_->clear();
    if (kind == Search::SearchKindMarker) {
        channel_->addItems({MsgText(8), MsgText(9)});
        for (int m = 71; m <= 75; ++m) channel_->addItem(MsgText(m));
    } else {
        for (int c = 1; c <= t.ChannelCount; ++c)
            channel_->addItem(t.Channels.ChTag[size_t(c)].trimmed());
        channel_->addItem(MsgText(91));
    }
    channel_->setVisible(kind != Search::SearchKindTime && kind != Search::SearchKindComment);
    static const int captions[][4] = {{84, 85, 86, 89}, {87, 88, 0, 0}, {91, 92, 93, 94}};
    const int* caption = kind == Search::SearchKindSigma     ? captions[1]
                         : kind == Search::SearchKindComment ? captions[2]
                         : (kind == Search::KindMean || kind == Search::SearchKindStat5 ||
                            kind == Search::SearchKindValue || kind == Search::SearchKindTime)
                             ? captions[0]
                             : nullptr;
    for (int k = 0; k < 4; ++k) {
        QAbstractButton* option = options_->button(k);
        option->setVisible(caption && caption[k] != 0);
        if (caption && caption[k]) option->setText(MsgText(caption[k]));
    }
    const int option = options_->checkedId();
    const bool range = option == 3 && caption == captions[0];
    label1_->setText(MsgText(kind == Search::SearchKindComment ? 81
                             : range                           ? 83
                             : kind == Search::SearchKindTime  ? 82
                                                               : 80));
    label2_->setVisible(range);
    text2_->setVisible(range || kind == Search::SearchKindSigma);
    from_->setVisible(kind == Search::SearchKindTime);
    to_->setVisible(kind == Search::SearchKindTime && option == 3);
    combo1_->clear();
    if (kind == Search::SearchKindAlarm) {
        combo1_->addItem(MsgText(91));
        for (int level = 1; level <= 4; ++level)
            combo1_->addItem(MsgText(229) + QString::number(level));
        label3_->setText(MsgText(83));
    } else if (kind == Search::SearchKindMarker) {
        for (int c = 1; c <= t.ChannelCount; ++c)
            combo1_->addItem(t.Channels.ChTag[size_t(c)].trimmed());
        combo1_->addItem(MsgText(91));
        label3_->setText(MsgText(70));
    }
    combo1_->setVisible(combo1_->count() > 0);
    label3_->setVisible(combo1_->count() > 0);
    if (const int i = channel_->findText(previous); i >= 0) channel_->setCurrentIndex(i);
}

Search::Input frmSearch::input() const {
    Search::Input in;
    in.kind = kind_->currentIndex();
    in.option = std::max(0, options_->checkedId());
    in.text1 = text1_->text();
    in.text2 = text2_->text();
    in.fromSeconds = secondsOf(from_->dateTime());
    in.toSeconds = secondsOf(to_->dateTime());
    if (in.kind == Search::SearchKindMarker) {
        in.item = channel_->currentIndex();
        in.combo1 = combo1_->currentIndex();
    } else {
        in.channelItem = channel_->currentIndex();
        in.combo1 = combo1_->currentIndex() < 0 ? 0 : combo1_->currentIndex();
    }
    return in;
}

void frmSearch::cmdSearch() {
    model_->show(shownInput_, nullptr);
    results_->hide();
    Pbar1_->show();
    shownInput_ = input();
    BarProgress progress(Pbar1_);
    result_ = Search::run(view_.trend(), shownInput_, &progress);
    Pbar1_->hide();
    if (shownInput_.kind == Search::SearchKindSigma ||
        shownInput_.kind == Search::SearchKindMarker) {
        text1_->setText(result_.text1);
        text2_->setText(result_.text2);
    }
    if (result_.message == 101)
        ShowMsg(kMsgInformation, MsgText(101), MsgText(68));
    else if (result_.message)
        ShowMsg(kMsgWarning, MsgText(result_.message), MsgText(68));
    if (result_.hits.empty()) return;
    model_->show(shownInput_, &result_);
    results_->show();
    resize(width(), std::max(height(), 520));
}

void frmSearch::hitClicked(int row) {
    const QStringList texts = model_->row(row);
    if (texts.isEmpty() || texts.value(0).isEmpty()) return;
    Search::jump(view_.trend(), texts);
    view_.update();
}

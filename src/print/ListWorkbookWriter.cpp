#include "print/ListWorkbookWriter.h"

#include "analysis/DataList.h"
#include "analysis/DataListState.h"
#include "analysis/ListRows.h"
#include "analysis/SkipCount.h"
#include "base/LanguageTable.h"
#include "base/Progress.h"
#include "base/clsConst.h"
#include "platform/ChartModel.h"
#include "print/ExcelCells.h"
#include "print/ListChart.h"
#include "print/ListComments.h"
#include "print/ListRowTexts.h"
#include "print/WorkbookLayout.h"
#include "recording/ViewState.h"
#include "trend/TrendTimeAxis.h"
#include "trend/TrendView.h"
#include "trend/TrendViewState.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <xlsxwriter.h>

#include <cstdio>
#include <string_view>

namespace {

constexpr qint64 kBlockRows = 16384;

// One workbook being written to its temporary name.
class Book {
public:
    Book(DataList& list, Progress* progress) : list_(list), progress_(progress) {}

    bool write(const QString& temp, QString& error);

private:
    bool writeSheet(lxw_worksheet* sheet, const QString& name, qint64 first, qint64 last,
                    bool lastSheet);
    void writeHeader(lxw_worksheet* sheet);
    void writeCell(lxw_worksheet* sheet, lxw_row_t row, lxw_col_t col, std::string_view text);
    void writeComments(lxw_worksheet* sheet, lxw_row_t row);
    bool poll(qint64 done);

    DataList& list_;
    Progress* progress_;
    lxw_workbook* book_ = nullptr;
    lxw_format* dateFormat_ = nullptr;
    lxw_format* timeFormat_ = nullptr;
    std::vector<int> shown_; // channels in the workbook's columns, from the third on
    qint64 rows_ = 0;
    qint32 step_ = 1;
    bool logarithmic_ = false;
    char decimal_ = '.';
};

bool Book::poll(qint64 done) {
    if (!progress_) return true;
    if (progress_->poll()) return false;
    progress_->setValue(int(100 * done / std::max<qint64>(rows_, 1)));
    return true;
}

void Book::writeHeader(lxw_worksheet* sheet) {
    for (size_t k = 0; k < shown_.size(); ++k) {
        const QByteArray text = list_.grid().headerText(shown_[k] + 1).toUtf8();
        worksheet_write_string(sheet, 0, lxw_col_t(2 + k), text.constData(), nullptr);
    }
}

// Numbers become number cells; under a logarithmic axis those not above 0 stay empty. Anything
// else (a status word) is text.
void Book::writeCell(lxw_worksheet* sheet, lxw_row_t row, lxw_col_t col, std::string_view text) {
    double value;
    if (ExcelCells::numberOf(text.data(), qsizetype(text.size()), decimal_, value)) {
        if (!(logarithmic_ && value <= 0)) worksheet_write_number(sheet, row, col, value, nullptr);
        return;
    }
    const std::string s(text);
    worksheet_write_string(sheet, row, col, s.c_str(), nullptr);
}

void Book::writeComments(lxw_worksheet* sheet, lxw_row_t row) {
    if (!hasCommentBlock(list_.trendView())) return;
    const auto put = [sheet](lxw_row_t r, lxw_col_t c, const QString& text) {
        worksheet_write_string(sheet, r, c, text.toUtf8().constData(), nullptr);
    };
    row += 1; // an empty row
    put(row++, 0, MsgText(292));
    put(row, 0, MsgText(220));
    put(row, 1, MsgText(77));
    put(row++, 2, MsgText(293));
    for (const ListComment& c : listComments(list_.trendView())) {
        put(row, 0, c.date);
        put(row, 1, c.time);
        put(row++, 2, c.text);
    }
}

// Rows first..last of the step sequence (1-based) go below the header row.
bool Book::writeSheet(lxw_worksheet* sheet, const QString& name, qint64 first, qint64 last,
                      bool lastSheet) {
    writeHeader(sheet);
    const ListRows rows(list_.trendView());
    const qint64 offset = list_.state().ListRowOffset;
    const int vn = list_.viewNumber();
    ListRowTexts texts(list_, shown_.empty() ? 0 : shown_.back());
    std::vector<qsizetype> points;
    std::vector<qint32> samples;
    std::vector<qint64> sheetRows;
    std::vector<std::string> lines(static_cast<size_t>(kBlockRows));
    lxw_row_t row = 0;
    for (qint64 j0 = first; j0 <= last; j0 += kBlockRows) {
        const qint64 j1 = std::min(last, j0 + kBlockRows - 1);
        points.clear();
        samples.clear();
        sheetRows.clear();
        for (qint64 j = j0; j <= j1; ++j) {
            qsizetype p;
            qint32 sample;
            if (!list_.locate(rows, 1 + (j - 1) * step_ + offset, p, sample)) continue;
            lines[points.size()].clear();
            points.push_back(p);
            samples.push_back(sample);
            sheetRows.push_back(j - first + 1);
        }
        texts.append(points, samples, '\t', lines);
        for (size_t k = 0; k < points.size(); ++k) {
            row = lxw_row_t(sheetRows[k]);
            const SampleTime t = SampleTimeText(samples[k] - 1, vn);
            worksheet_write_number(sheet, row, 0, ExcelCells::serialDay(t.seconds), dateFormat_);
            worksheet_write_number(sheet, row, 1, ExcelCells::dayFraction(t.seconds, t.msec),
                                   timeFormat_);
            // The line is "\tfield\tfield...": one field a shown channel.
            std::string_view rest(lines[k]);
            for (lxw_col_t col = 2; !rest.empty(); ++col) {
                rest.remove_prefix(1);
                const size_t end = std::min(rest.find('\t'), rest.size());
                if (end > 0) writeCell(sheet, row, col, rest.substr(0, end));
                rest.remove_prefix(end);
            }
        }
        if (!poll(j1)) return false;
    }
    if (lastSheet) writeComments(sheet, lxw_row_t(last - first + 2));
    if (logarithmic_) return true;
    ListChartSheet layout;
    layout.name = name;
    layout.rows = int(last - first + 1);
    layout.channels = shown_;
    layout.percentMode = trendState(vn).ScalePercentMode;
    layout.intervalMs = views(vn).SampleInterval;
    return addListChart(book_, sheet, list_.trendView().chart(), layout);
}

bool Book::write(const QString& temp, QString& error) {
    const ChartModel& chart = list_.trendView().chart();
    const clsConst& locale = clsConst::shared();
    decimal_ =
        locale.DecimalSeparator().size() == 1 ? char(locale.DecimalSeparator()[0].toLatin1()) : '.';
    logarithmic_ = chart.axis(Chart::Axis::Y).isLogarithmic();
    step_ = SkipStep();
    const int columns = std::min(list_.grid().maxCols(), WorkbookLayout::kMaxColumns);
    for (int c = 2; c <= columns; ++c)
        if (!list_.grid().colHidden(c) && c - 1 <= list_.channelColumns()) shown_.push_back(c - 1);
    rows_ = WorkbookLayout::rowCount(list_.grid().maxRows(), step_);
    const qint64 perSheet = WorkbookLayout::rowsPerSheet(rows_, int(shown_.size()));
    const qint64 sheets = WorkbookLayout::sheetCount(rows_, perSheet);
    const QStringList names = WorkbookLayout::sheetNames(
        chart.header().Text, views(list_.viewNumber()).ViewTitle, sheets);

    const QByteArray tempName = QFile::encodeName(temp);
    const QByteArray tmpdir = QFile::encodeName(QDir::tempPath());
    lxw_workbook_options options{};
    options.constant_memory = LXW_TRUE;
    options.tmpdir = const_cast<char*>(tmpdir.constData());
    options.use_zip64 = LXW_TRUE;
    book_ = workbook_new_opt(tempName.constData(), &options);
    if (!book_) {
        error = QStringLiteral("the workbook could not be created");
        return false;
    }
    dateFormat_ = workbook_add_format(book_);
    format_set_num_format(
        dateFormat_,
        ExcelCells::dateFormat(locale.DateDisplayOrder(), locale.DateSeparator()).toUtf8());
    timeFormat_ = workbook_add_format(book_);
    format_set_num_format(
        timeFormat_,
        ExcelCells::timeFormat(views(list_.viewNumber()).SampleInterval < 1000).toUtf8());
    bool ok = true;
    for (qint64 k = 1; ok && k <= sheets; ++k) {
        const QByteArray name = names[int(k - 1)].toUtf8();
        lxw_worksheet* sheet = workbook_add_worksheet(book_, name.constData());
        ok = sheet && writeSheet(sheet, names[int(k - 1)], (k - 1) * perSheet + 1,
                                 std::min(k * perSheet, rows_), k == sheets);
    }
    const lxw_error closed = workbook_close(book_);
    book_ = nullptr;
    if (!ok) {
        error = QStringLiteral("the export was stopped");
        return false;
    }
    if (closed != LXW_NO_ERROR) {
        error = QString::fromUtf8(lxw_strerror(closed));
        return false;
    }
    return true;
}

} // namespace

bool WriteListExcel(DataList& list, const QString& path, Progress* progress, QString& error) {
    // A name of our own beside the target, so that the rename replaces it in one step.
    QTemporaryFile reserve(QFileInfo(path).absolutePath() + QStringLiteral("/.xlsx-XXXXXX"));
    if (!reserve.open()) {
        error = reserve.errorString();
        return false;
    }
    const QString temp = reserve.fileName();
    reserve.close();
    // The workbook is an ordinary file of the user once it is in place.
    reserve.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup |
                           QFile::ReadOther);
    if (progress) progress->setValue(0);
    Book book(list, progress);
    const bool ok = book.write(temp, error);
    if (ok && std::rename(QFile::encodeName(temp).constData(),
                          QFile::encodeName(path).constData()) == 0) {
        reserve.setAutoRemove(false);
        if (progress) progress->setValue(100);
        return true;
    }
    if (ok) error = QStringLiteral("the workbook could not be renamed into place");
    return false; // the reserved temporary name is removed with it
}

#include "print/clsBatchUtil.h"

#include "analysis/DetailRecords.h"
#include "base/TimeBase.h"
#include "base/VbFormat.h"
#include "base/clsCommon.h"
#include "platform/PrintOutput.h"
#include "recording/ViewState.h"
#include "recording/clsBatchInfo.h"
#include "trend/TrendImage.h"
#include "trend/TrendView.h"

#include <QDateTime>
#include <QFileInfo>

namespace {

const PrintFont kCourier{QStringLiteral("Courier New"), 10};
constexpr double kWidthCells = 72, kHeaderRows = 12, kChartRows = 24;

} // namespace

void clsBatchUtil::Initialize(PrintOutput& out, const clsBatchInfo& batch, TrendView& view) {
    out_ = &out;
    batch_ = &batch;
    view_ = &view;
    dateFormat_ = clsCommon::shared().GetLongDateFormat(-1).toUpper().replace(
                      QStringLiteral("MM"), QStringLiteral("MMM")) +
                  QStringLiteral(" hh:nn");
}

void clsBatchUtil::text(double col, double row, const QString& s) {
    out_->textOut(x(col), y(row), s);
}

void clsBatchUtil::DrawWaku() {
    out_->setFont(kCourier);
    cellW_ = out_->textWidth(QStringLiteral("W"));
    cellH_ = out_->textHeight();
    out_->setTextColor(Qt::black);
    // The title row, then the frame of the header lines, the pairs and the chart.
    out_->setFont({kCourier.name, 20});
    text(0, 0, QStringLiteral("BATCH REPORT"));
    out_->setFont(kCourier);
    const double pairsRows = std::max(2, int(batch_->BatchTextCount()) + 1);
    out_->box(x(0), y(3), x(kWidthCells), y(3 + kHeaderRows), 4);
    out_->line(x(kWidthCells / 2), y(3), x(kWidthCells / 2), y(3 + kHeaderRows), 1);
    out_->box(x(0), y(4 + kHeaderRows), x(kWidthCells), y(4 + kHeaderRows + pairsRows), 4);
    out_->line(x(kWidthCells / 2), y(4 + kHeaderRows), x(kWidthCells / 2),
               y(4 + kHeaderRows + pairsRows), 1);
}

void clsBatchUtil::DrawData(const QString& fileName) {
    out_->setFont(kCourier);
    out_->setTextColor(Qt::black);
    const clsDetailCollection details = detailsOf(views(view_->GetGroup()).DataProperty);
    const QFileInfo file(fileName);
    QString name = file.fileName();
    if (const qsizetype cut = name.indexOf(QLatin1Char('(')); cut >= 0) name = name.left(cut);
    const QDateTime now = QDateTime::currentDateTime();
    const qint64 seconds =
        TimeBase::toSeconds({now.date().year(), now.date().month(), now.date().day(),
                             now.time().hour(), now.time().minute(), now.time().second()});
    const VbFormat::Separators seps = VbFormat::Separators::system();
    const QString printed =
        VbFormat::formatSeconds(seconds, clsCommon::shared().GetLongDateFormat(-1), seps) +
        VbFormat::formatSeconds(seconds, QStringLiteral(" hh:mm:ss"), seps);
    const double half = kWidthCells / 2 + 1;
    text(1, 4,
         QStringLiteral("Created by:") + QStringLiteral("recview ") +
             QStringLiteral(RECVIEW_VERSION));
    text(half, 4, QStringLiteral("File Name:") + name);
    text(1, 5, printed);
    text(1, 6,
         QStringLiteral("Device name") + QStringLiteral(":  ") +
             details.valueOf(QStringLiteral("Device name")));
    text(half, 6,
         QStringLiteral("Recording sycle") + QStringLiteral(" :") +
             details.valueOf(QStringLiteral("Recording sycle")));
    text(1, 7,
         QStringLiteral("Total data count") + QStringLiteral(":") +
             details.valueOf(QStringLiteral("Total data count")));
    text(1, 8, QStringLiteral("Directory:") + file.absolutePath());
    text(1, 9,
         QStringLiteral("Serial number") + QStringLiteral(":") +
             details.valueOf(QStringLiteral("Serial number")));
    text(1, 10, QStringLiteral("Batch name:") + batch_->BatchName());
    text(half, 10, QStringLiteral("LOT No:") + batch_->LotNumber());
    text(1, 11,
         QStringLiteral("Version No.") + QStringLiteral(":") +
             details.valueOf(QStringLiteral("Version No.")));
    for (int i = 0; i < batch_->BatchTextCount(); ++i) {
        text(1, 5 + kHeaderRows + i, batch_->GetBatchTextTitle(i));
        text(half, 5 + kHeaderRows + i, batch_->GetBatchTextContext(i));
    }
    // The chart below the pairs, drawn by the chart renderer.
    const double chartTop = 6 + kHeaderRows + std::max(2, int(batch_->BatchTextCount()) + 1);
    const double w = kWidthCells * cellW_, h = kChartRows * cellH_;
    out_->image(x(0), y(chartTop), w, h, TrendImage::image(*view_, QSize(int(w * 8), int(h * 8))));
    // The boxes for signatures at the foot.
    const double foot = chartTop + kChartRows + 2;
    for (int k = 0; k < 2; ++k) {
        const double left = kWidthCells - 28 + 14 * k;
        out_->box(x(left), y(foot), x(left + 14), y(foot + 6), 1);
        text(left + 1, foot, k == 0 ? QStringLiteral("Signature") : QStringLiteral("Authorized"));
    }
}

bool clsBatchUtil::print(PrintOutput& out, const clsBatchInfo& batch, TrendView& view,
                         const QString& fileName) {
    out.setPaper(QPageSize::A4);
    out.setOrientation(QPageLayout::Portrait);
    if (!out.begin()) return false;
    clsBatchUtil report;
    report.Initialize(out, batch, view);
    report.DrawWaku();
    report.DrawData(fileName);
    return out.endDocument();
}

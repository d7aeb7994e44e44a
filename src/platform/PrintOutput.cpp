#include "platform/PrintOutput.h"

#include <QFile>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>

namespace {
constexpr double kMmPerInch = 25.4;
}

PainterOutput::PainterOutput(QPagedPaintDevice& device) : device_(device) {
    device_.setPageMargins(QMarginsF(0, 0, 0, 0), QPageLayout::Millimeter);
}

PainterOutput::~PainterOutput() {
    endPainting();
}

void PainterOutput::endPainting() {
    if (painter_ && painter_->isActive()) painter_->end();
}

void PainterOutput::setOrientation(QPageLayout::Orientation orientation) {
    device_.setPageOrientation(orientation);
}

void PainterOutput::setPaper(QPageSize::PageSizeId paper) {
    device_.setPageSize(QPageSize(paper));
}

bool PainterOutput::begin() {
    painter_ = std::make_unique<QPainter>();
    if (!painter_->begin(&device_)) return false;
    painter_->setBackgroundMode(Qt::TransparentMode);
    return true;
}

double PainterOutput::px(double mm) const {
    return mm * device_.logicalDpiX() / kMmPerInch;
}

double PainterOutput::width() const {
    return device_.pageLayout().fullRect(QPageLayout::Millimeter).width();
}

double PainterOutput::height() const {
    return device_.pageLayout().fullRect(QPageLayout::Millimeter).height();
}

QFont PainterOutput::qfont() const {
    QFont f(font_.name);
    f.setPointSizeF(font_.size > 0 ? font_.size : 12);
    f.setBold(font_.bold);
    f.setItalic(font_.italic);
    f.setUnderline(font_.underline);
    f.setStrikeOut(font_.strikeout);
    return f;
}

void PainterOutput::setFont(const PrintFont& font) {
    font_ = font;
    if (painter_) painter_->setFont(qfont());
}

double PainterOutput::textWidth(const QString& text) const {
    return QFontMetricsF(qfont(), &device_).horizontalAdvance(text) * kMmPerInch /
           device_.logicalDpiX();
}

double PainterOutput::textHeight() const {
    return QFontMetricsF(qfont(), &device_).height() * kMmPerInch / device_.logicalDpiY();
}

void PainterOutput::setTextColor(const QColor& color) {
    color_ = color;
}

void PainterOutput::textOut(double x, double y, const QString& text) {
    if (!painter_) return;
    painter_->setPen(color_);
    const QFontMetricsF metrics(painter_->font(), &device_);
    painter_->drawText(QPointF(px(x), px(y) + metrics.ascent()), text);
}

void PainterOutput::line(double x1, double y1, double x2, double y2, int width) {
    if (!painter_) return;
    painter_->setPen(QPen(Qt::black, px(0.1 * std::max(width, 1))));
    painter_->drawLine(QPointF(px(x1), px(y1)), QPointF(px(x2), px(y2)));
}

void PainterOutput::box(double x1, double y1, double x2, double y2, int width) {
    if (!painter_) return;
    painter_->setPen(QPen(Qt::black, px(0.1 * std::max(width, 1))));
    painter_->setBrush(Qt::NoBrush);
    painter_->drawRect(QRectF(QPointF(px(x1), px(y1)), QPointF(px(x2), px(y2))));
}

void PainterOutput::image(double x, double y, double w, double h, const QImage& picture) {
    if (painter_) painter_->drawImage(QRectF(px(x), px(y), px(w), px(h)), picture);
}

bool PainterOutput::newPage() {
    return device_.newPage();
}

bool PainterOutput::endDocument() {
    return painter_ && painter_->end();
}

namespace {

// The writer lives as long as its painter.
class PdfOutput final : public PainterOutput {
public:
    explicit PdfOutput(std::unique_ptr<QPdfWriter> writer)
        : PainterOutput(*writer), writer_(std::move(writer)) {}
    ~PdfOutput() override { endPainting(); }

private:
    std::unique_ptr<QPdfWriter> writer_;
};

} // namespace

std::unique_ptr<PrintOutput> makePdfOutput(const QString& path) {
    auto writer = std::make_unique<QPdfWriter>(path);
    writer->setResolution(600);
    writer->setCreator(QStringLiteral("recview"));
    return std::make_unique<PdfOutput>(std::move(writer));
}

bool printToPdfFile(const QString& path, const std::function<bool(PrintOutput&)>& draw) {
    const QString temp = path + QStringLiteral(".part");
    bool ok;
    {
        std::unique_ptr<PrintOutput> out = makePdfOutput(temp);
        ok = draw(*out);
    } // the writer closes the file here
    if (ok) {
        QFile::remove(path);
        ok = QFile::rename(temp, path);
    }
    if (!ok) QFile::remove(temp);
    return ok;
}

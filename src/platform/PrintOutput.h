#pragma once

#include <QColor>
#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QString>

#include <functional>
#include <memory>

class QPagedPaintDevice;
class QPainter;

// A font of printed text.
struct PrintFont {
    QString name;
    double size = 12; // points
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeout = false;
};

// What the sheet printing engine draws on: a paged output with lengths in millimetres from the
// paper's top left corner (the engine's ScaleMode 6). A printer, its preview and a PDF file are
// the same engine over a QPainter.
class PrintOutput {
public:
    virtual ~PrintOutput() = default;

    virtual void setOrientation(QPageLayout::Orientation orientation) = 0;
    virtual void setPaper(QPageSize::PageSizeId paper) = 0;
    // Starts the document; false when the output cannot be opened.
    virtual bool begin() = 0;
    // The paper's size in the current orientation.
    virtual double width() const = 0;
    virtual double height() const = 0;

    virtual void setFont(const PrintFont& font) = 0;
    virtual PrintFont font() const = 0;
    virtual double textWidth(const QString& text) const = 0;
    virtual double textHeight() const = 0;
    virtual void setTextColor(const QColor& color) = 0;
    // Text with its top left at (x, y).
    virtual void textOut(double x, double y, const QString& text) = 0;
    // Lines and frames; width in the printer's line units (1 thin, 4 the frame).
    virtual void line(double x1, double y1, double x2, double y2, int width) = 0;
    virtual void box(double x1, double y1, double x2, double y2, int width) = 0;

    // An image scaled into the box (x, y, width, height).
    virtual void image(double x, double y, double w, double h, const QImage& picture) = 0;

    virtual bool newPage() = 0;
    // Ends the document; false when it could not be written.
    virtual bool endDocument() = 0;
};

// The engine over a painter on a paged device (a QPdfWriter, a QPrinter, a preview's printer).
class PainterOutput : public PrintOutput {
public:
    explicit PainterOutput(QPagedPaintDevice& device);
    ~PainterOutput() override;

    void setOrientation(QPageLayout::Orientation orientation) override;
    void setPaper(QPageSize::PageSizeId paper) override;
    bool begin() override;
    double width() const override;
    double height() const override;
    void setFont(const PrintFont& font) override;
    PrintFont font() const override { return font_; }
    double textWidth(const QString& text) const override;
    double textHeight() const override;
    void setTextColor(const QColor& color) override;
    void textOut(double x, double y, const QString& text) override;
    void line(double x1, double y1, double x2, double y2, int width) override;
    void box(double x1, double y1, double x2, double y2, int width) override;
    void image(double x, double y, double w, double h, const QImage& picture) override;
    bool newPage() override;
    bool endDocument() override;

protected:
    // Ends an unfinished document; an owner of the device calls it before the device goes.
    void endPainting();

private:
    double px(double mm) const;
    QFont qfont() const;

    QPagedPaintDevice& device_;
    std::unique_ptr<QPainter> painter_;
    PrintFont font_;
    QColor color_ = Qt::black;
};

// A PDF file as output: written under the given path when the document ends.
std::unique_ptr<PrintOutput> makePdfOutput(const QString& path);

// Draws a document into a PDF under a temporary name beside path and renames it into place
// when draw succeeded; nothing is left under either name otherwise.
bool printToPdfFile(const QString& path, const std::function<bool(PrintOutput&)>& draw);

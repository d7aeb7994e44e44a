#include "TrendFixture.h"
#include "support/VxfWriter.h"
#include "trend/TrendImage.h"
#include "trend/TrendView.h"

#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace trendtest;

namespace {

// The line colour, also where anti-aliasing blends it with the background.
bool isRed(QRgb c) {
    return qRed(c) > 150 && qRed(c) - qGreen(c) > 50 && qRed(c) - qBlue(c) > 50;
}

// Pixels of the line colour in each of n vertical bands of the image.
std::vector<int> redPerBand(const QImage& image, int bands) {
    std::vector<int> counts(size_t(bands), 0);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (isRed(image.pixel(x, y))) ++counts[size_t(x * bands / image.width())];
    return counts;
}

} // namespace

// The chart of a view drawn to a PNG shows its line across the plot, and a PDF is one page.
TEST(TrendImage, PngShowsTheLineAndPdfIsWritten) {
    std::vector<qint16> wave;
    for (int i = 0; i < 2000; ++i) wave.push_back(qint16(500 + (i % 200) - 100));
    makeView(10, {wave}, 0, QStringLiteral("0"), QStringLiteral("1000"));
    TrendView view(10);
    ASSERT_TRUE(view.afterLoad());
    QTemporaryDir dir;
    const QString png = dir.filePath(QStringLiteral("t.png"));
    ASSERT_TRUE(TrendImage::save(view, png, QSize(640, 360)));
    const QImage image(png);
    ASSERT_EQ(image.size(), QSize(640, 360));
    const std::vector<int> bands = redPerBand(image, 8);
    for (size_t b = 1; b + 1 < bands.size(); ++b) EXPECT_GT(bands[b], 20) << "band " << b;

    const QString pdf = dir.filePath(QStringLiteral("t.pdf"));
    ASSERT_TRUE(TrendImage::save(view, pdf, QSize(640, 360)));
    QFile file(pdf);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().startsWith("%PDF"));
}

// The command line: a VXF file to a PNG with a time range; bad arguments fail with a message.
TEST(TrendImage, RenderCommand) {
    const QString program = QCoreApplication::applicationDirPath() + QStringLiteral("/../recview");
    if (!QFile::exists(program)) GTEST_SKIP() << "recview is not built";
    QTemporaryDir dir;
    const QString vxf = dir.filePath(QStringLiteral("a.vxf"));
    // Two hours at 10 s: a first hour at 30.0 and a second one at 70.0; the ends make the
    // automatic range 0..100.
    ASSERT_TRUE(fixtures::writeFile(
        vxf, fixtures::buildVxf(fixtures::simpleVxf(1, 720, 0, 100, [](int row, int) {
            if (row <= 10 || row > 710) return qint16(row <= 10 ? 0 : 1000);
            return qint16(row <= 360 ? 300 : 700);
        }))));
    const QString png = dir.filePath(QStringLiteral("out.png"));
    QProcess run;
    run.start(program, {QStringLiteral("render"), vxf, QStringLiteral("-o"), png,
                        QStringLiteral("--size"), QStringLiteral("400x300"),
                        QStringLiteral("--from"), QStringLiteral("2000-01-01 00:30:00"),
                        QStringLiteral("--to"), QStringLiteral("2000-01-01 01:30:00")});
    ASSERT_TRUE(run.waitForFinished(30000));
    EXPECT_EQ(run.exitCode(), 0) << run.readAllStandardError().toStdString();
    const QImage image(png);
    ASSERT_EQ(image.size(), QSize(400, 300));
    // The shown hour holds the step: low on the left, high on the right.
    double leftY = 0, rightY = 0;
    int left = 0, right = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (!isRed(image.pixel(x, y))) continue;
            if (x < 150)
                leftY += y, ++left;
            else if (x > 250)
                rightY += y, ++right;
        }
    }
    ASSERT_GT(left, 20);
    ASSERT_GT(right, 20);
    EXPECT_GT(leftY / left, rightY / right + 100);

    run.start(program, {QStringLiteral("render"), vxf, QStringLiteral("-o"), png,
                        QStringLiteral("--size"), QStringLiteral("big")});
    ASSERT_TRUE(run.waitForFinished(30000));
    EXPECT_NE(run.exitCode(), 0);
    EXPECT_FALSE(run.readAllStandardError().isEmpty());
}

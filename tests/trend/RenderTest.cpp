#include "TrendFixture.h"
#include "support/VxfWriter.h"
#include "trend/TrendImage.h"

#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace trendtest;

namespace {

// Pixels of the line colour (also where anti-aliasing blends it) in columns x0..x1, and the
// mean row they stand in.
std::pair<int, double> redIn(const QImage& image, int x0, int x1) {
    int count = 0;
    double rows = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = x0; x <= x1; ++x) {
            const QRgb c = image.pixel(x, y);
            if (qRed(c) > 150 && qRed(c) - qGreen(c) > 50 && qRed(c) - qBlue(c) > 50)
                ++count, rows += y;
        }
    }
    return {count, count ? rows / count : 0};
}

} // namespace

// The chart of a view drawn to a PNG shows its line across the plot.
TEST(TrendImage, PngShowsTheLine) {
    std::vector<qint16> wave;
    for (int i = 0; i < 2000; ++i) wave.push_back(qint16(500 + (i % 200) - 100));
    LoadedView v(10, {wave}, 0, QStringLiteral("0"), QStringLiteral("1000"));
    QTemporaryDir dir;
    const QString png = dir.filePath(QStringLiteral("t.png"));
    ASSERT_TRUE(TrendImage::save(v.view, png, QSize(640, 360)));
    const QImage image(png);
    ASSERT_EQ(image.size(), QSize(640, 360));
    for (int b = 1; b < 7; ++b) EXPECT_GT(redIn(image, b * 80, b * 80 + 79).first, 20) << b;
}

// The command line: a VXF file to a PNG with a time range; bad arguments fail with a message.
TEST(TrendImage, RenderCommand) {
    const QString program = QCoreApplication::applicationDirPath() + QStringLiteral("/../recview");
    if (!QFile::exists(program)) GTEST_SKIP() << "recview is not built";
    QTemporaryDir dir;
    const QString vxf = dir.filePath(QStringLiteral("a.vxf"));
    // Two hours at 10 s: a first hour at 30.0 and a second one at 70.0; the ends make the
    // automatic range -10..110 (the extremes kept off the frame).
    ASSERT_TRUE(fixtures::writeFile(
        vxf, fixtures::buildVxf(fixtures::simpleVxf(1, 720, 0, 100, [](int row, int) {
            if (row <= 10 || row > 710) return qint16(row <= 10 ? 0 : 1000);
            return qint16(row <= 360 ? 300 : 700);
        }))));
    const QString png = dir.filePath(QStringLiteral("out.png"));
    const QStringList common = {QStringLiteral("render"), vxf, QStringLiteral("-o"), png,
                                QStringLiteral("--size")};
    QProcess run;
    run.start(program, common + QStringList{"400x300", "--from", "2000-01-01 00:30:00", "--to",
                                            "2000-01-01 01:30:00"});
    ASSERT_TRUE(run.waitForFinished(30000));
    EXPECT_EQ(run.exitCode(), 0) << run.readAllStandardError().toStdString();
    const QImage image(png);
    ASSERT_EQ(image.size(), QSize(400, 300));
    // The shown hour holds the step: low on the left, high on the right.
    const auto left = redIn(image, 0, 149), right = redIn(image, 251, 399);
    ASSERT_GT(left.first, 20);
    ASSERT_GT(right.first, 20);
    // 40 of 120 units on a plot of some 215 rows: about 70 rows apart.
    EXPECT_GT(left.second, right.second + 60);

    run.start(program, common + QStringList{"big"});
    ASSERT_TRUE(run.waitForFinished(30000));
    EXPECT_NE(run.exitCode(), 0);
    EXPECT_FALSE(run.readAllStandardError().isEmpty());
}

// The date line of a drawn chart stands clear of every axis text, the top Y label included.
TEST(TrendImage, TitleClearOfTheAxisTexts) {
    // Percent mode: the top label "1000" stands beside the axis title, near the plot's corner.
    LoadedView v(10, {ramp(600, 0), ramp(600, 400)}, 0, QStringLiteral("0"),
                 QStringLiteral("1000"));
    v.view.state().ScalePercentMode = true;
    v.view.plot().CH_DataSet();
    v.view.chart().axisY().setLabelInterval(10);
    v.view.scales().Y_AxisSet(false, 1, 1);
    const ChartLabel* title = v.view.chart().labels().item(QStringLiteral("Title"));
    ASSERT_TRUE(title && !title->Text.isEmpty());
    const RenderPlan plan = TrendImage::plan(v.view, QSizeF(640, 360));
    std::vector<QRectF> titles, others;
    for (const RenderPlan::Text& t : plan.texts) {
        if (t.text.isEmpty()) continue;
        (t.text == title->Text ? titles : others).push_back(t.rect.translated(t.origin));
    }
    ASSERT_EQ(titles.size(), 1u);
    ASSERT_GT(others.size(), 4u);
    for (const QRectF& r : others) EXPECT_FALSE(titles[0].intersects(r)) << r.top() << r.left();
    EXPECT_TRUE(title->IsShown) << "the model is left as it was";
}

#include "analysis/ListFixture.h"
#include "platform/PrintOutput.h"
#include "print/ListPrint.h"
#include "print/clsBatchUtil.h"
#include "recording/clsBatchInfo.h"

#include <QCoreApplication>
#include <QProcess>

using namespace listtest;

namespace {

// An output that keeps what is drawn.
class RecordingOutput final : public PrintOutput {
public:
    QStringList texts;
    int images = 0, boxes = 0;
    void setOrientation(QPageLayout::Orientation) override {}
    void setPaper(QPageSize::PageSizeId) override {}
    bool begin() override { return true; }
    double width() const override { return 210; }
    double height() const override { return 297; }
    void setFont(const PrintFont& f) override { font_ = f; }
    PrintFont font() const override { return font_; }
    double textWidth(const QString& t) const override { return 2.0 * t.size(); }
    double textHeight() const override { return 4; }
    void setTextColor(const QColor&) override {}
    void textOut(double, double, const QString& t) override { texts << t; }
    void line(double, double, double, double, int) override {}
    void box(double, double, double, double, int) override { ++boxes; }
    void image(double, double, double, double, const QImage&) override { ++images; }
    bool newPage() override { return true; }
    bool endDocument() override { return true; }

private:
    PrintFont font_;
};

fixtures::VxfDescription batchRecording() {
    fixtures::VxfDescription d = twoChannels(20);
    d.batchHead = fixtures::batchHead("Batch-7", "LOT0042", 2);
    d.batchBlock = fixtures::batchTexts({"Operator", "Recipe"}, {"Sato", "R-12"});
    d.modelText = "RX-400";
    return d;
}

TEST(BatchReport, TheLabelsInTheirOrderAndTheNameCutAtTheParenthesis) {
    ListView v(QStringLiteral("kiln(3).vxf"), fixtures::buildVxf(batchRecording()));
    const clsBatchInfo& batch = views(1).part<clsBatchInfo>();
    ASSERT_TRUE(batch.HasBatchInfo());
    RecordingOutput out;
    ASSERT_TRUE(clsBatchUtil::print(out, batch, *v.view, v.dir.path("kiln(3).vxf")));
    const QStringList prefixes = {"BATCH REPORT",
                                  "Created by:recview ",
                                  "File Name:kiln",
                                  "",
                                  "Device name:  RX-400",
                                  "Recording sycle :",
                                  "Total data count:20",
                                  "Directory:",
                                  "Serial number:",
                                  "Batch name:Batch-7",
                                  "LOT No:LOT0042",
                                  "Version No.:",
                                  "Operator",
                                  "Sato",
                                  "Recipe",
                                  "R-12",
                                  "Signature",
                                  "Authorized"};
    ASSERT_EQ(out.texts.size(), prefixes.size()) << out.texts.join('|').toStdString();
    for (int k = 0; k < prefixes.size(); ++k)
        EXPECT_TRUE(out.texts[k].startsWith(prefixes[k])) << k << " " << out.texts[k].toStdString();
    EXPECT_EQ(out.texts[2], QStringLiteral("File Name:kiln"));
    EXPECT_EQ(out.texts[8], QStringLiteral("Serial number:")); // no file gives one
    EXPECT_EQ(out.images, 1);                                  // the chart
    EXPECT_GE(out.boxes, 4);
    clsBatchUtil util;
    util.Initialize(out, batch, *v.view);
    EXPECT_TRUE(util.dateFormat().endsWith(QStringLiteral(" hh:nn")));
}

TEST(BatchReport, TheCommandLineWritesOnePdfPage) {
    ListView v(QStringLiteral("report.vxf"), fixtures::buildVxf(batchRecording()));
    const QString pdf = v.dir.path("report.pdf");
    QProcess p;
    p.start(QCoreApplication::applicationDirPath() + QStringLiteral("/../recview"),
            {QStringLiteral("batch"), QStringLiteral("--report"), pdf, v.dir.path("report.vxf")});
    p.waitForFinished(60000);
    ASSERT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
    QProcess text;
    text.start(QStringLiteral("pdftotext"),
               {QStringLiteral("-enc"), QStringLiteral("UTF-8"), pdf, QStringLiteral("-")});
    text.waitForFinished(30000);
    const QString out = QString::fromUtf8(text.readAllStandardOutput());
    EXPECT_TRUE(out.contains(QStringLiteral("Recording sycle :"))) << out.toStdString();
    EXPECT_TRUE(out.contains(QStringLiteral("LOT No:LOT0042")));
    EXPECT_EQ(out.count(QLatin1Char('\f')), 1); // one page
}

TEST(BatchReport, TheBatchTablePrintsThroughTheSheetEngine) {
    ListView v(QStringLiteral("table.vxf"), fixtures::buildVxf(batchRecording()));
    const QString pdf = v.dir.path("table.pdf");
    {
        std::unique_ptr<PrintOutput> out = makePdfOutput(pdf);
        ListPrintSettings settings;
        settings.header = QStringLiteral("/cBatch table");
        ASSERT_TRUE(PrintBatchTable(1, settings, *out));
    }
    QProcess text;
    text.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), QStringLiteral("-enc"),
                                             QStringLiteral("UTF-8"), pdf, QStringLiteral("-")});
    text.waitForFinished(30000);
    const QString out = QString::fromUtf8(text.readAllStandardOutput());
    for (const char* expected : {"Batch table", "Batch-7", "LOT0042", "Recipe", "R-12", "1/1"})
        EXPECT_TRUE(out.contains(QLatin1String(expected))) << expected << "\n" << out.toStdString();
}

} // namespace

#include "base/LanguageTable.h"
#include "recording/CommandFiles.h"
#include "recording/DroppedFiles.h"
#include "recording/FamilyCodes.h"
#include "recording/SelectionChooser.h"
#include "support/NpWriter.h"
#include "support/RecordingFixture.h"
#include "support/RecordingMessageSink.h"
#include "support/VxfWriter.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

using namespace fixtures;

qint16 flat(int, int) {
    return 5;
}

class Selection : public ::testing::Test {
protected:
    QString vxf(const QString& name, quint32 start, quint32 intervalTenths = 10, int rows = 3) {
        return dir.write(name, buildVxf(simpleVxf(2, rows, start, intervalTenths, flat)));
    }
    QString junk(const QString& name) { return dir.write(name, "JUNKJUNKJUNK"); }
    FixtureDir dir;
    SelectionLists sel;
    RecordingMessageSink sink;
};

TEST(CommandLineTokens, QuotedAndBlankForms) {
    EXPECT_EQ(CommandFiles::tokens(QStringLiteral("\"/a b/x.vxf\" \"/c.vxf\"")),
              QStringList({QStringLiteral("/a b/x.vxf"), QStringLiteral("/c.vxf")}));
    EXPECT_EQ(CommandFiles::tokens(QStringLiteral("/a.vxf /b.vxf")),
              QStringList({QStringLiteral("/a.vxf"), QStringLiteral("/b.vxf")}));
    EXPECT_EQ(CommandFiles::tokens(QStringLiteral("\"unclosed")), QStringList());
}

TEST_F(Selection, CommandLineDropsOtherIntervalsMagicsAndFamilies) {
    const QString a = vxf("a.vxf", 100), b = vxf("b.vxf", 200, 20), c = vxf("c.VXF", 300);
    const QString wrongMagic = junk("w.vxf");
    const QString qdf = dir.write("q.qdf", QByteArray("QD30") + QByteArray(300, '\0'));
    CommandFiles::ParseCommandFiles(CommandFiles::quotedCommandLine({wrongMagic, a, b, qdf, c}),
                                    false, sel);
    EXPECT_EQ(sel.SelFileName, QVector<QString>({a, c}));
    EXPECT_EQ(sel.SelStart, QVector<qint64>({100, 300}));
    EXPECT_EQ(sel.SelInterval, 1000);
    EXPECT_EQ(sel.SelFileType, Family::VXF);
}

// A second instance started in another folder hands over paths the first can open.
TEST_F(Selection, RelativePathsAreMadeAbsoluteWhereTheyAreTyped) {
    const QString a = vxf("a.vxf", 100);
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(QFileInfo(a).absolutePath()));
    CommandFiles::ParseCommandFiles(QStringLiteral("a.vxf"), false, sel);
    QDir::setCurrent(before);
    EXPECT_EQ(sel.SelFileName, QVector<QString>({a}));
}

TEST_F(Selection, AVxbTokenEndsTheParsing) {
    const QString a = vxf("a.vxf", 100), archive = junk("saved.vxb"), b = vxf("b.vxf", 200);
    CommandFiles::ParseCommandFiles(CommandFiles::quotedCommandLine({a, archive, b}), false, sel);
    EXPECT_EQ(sel.SelFileName, QVector<QString>({archive}));
    EXPECT_EQ(sel.SelFileCount, 1);
    EXPECT_EQ(sel.SelFileType, Family::VXB);
}

TEST_F(Selection, GsModeTakesOnlyArchivesAndP4f) {
    const QString a = vxf("a.vxf", 100);
    CommandFiles::ParseCommandFiles(CommandFiles::quotedCommandLine({a}), true, sel);
    EXPECT_EQ(sel.SelFileCount, 0);
}

TEST_F(Selection, DropOpensTheGoodFilesAndListsMessageFiles) {
    ViewState view;
    const QString a = vxf("a.vxf", 100), bad = junk("bad.vxf"), b = vxf("b.vxf", 103);
    const QString msg = dir.write("ops.msg", "TM0M....");
    EXPECT_TRUE(DroppedFiles::OpenDroppedFiles({a, bad, msg, b}, view, false, sel));
    EXPECT_EQ(sel.SelFileName, QVector<QString>({a, b}));
    EXPECT_EQ(view.MessageFiles, QStringList({msg}));
    EXPECT_TRUE(sink.calls().isEmpty());
}

TEST_F(Selection, DropPrefersCsvOverVxfAndTakesOneCsv) {
    ViewState view;
    const QString a = vxf("a.vxf", 100), c1 = junk("one.csv"), c2 = junk("two.csv");
    EXPECT_TRUE(DroppedFiles::OpenDroppedFiles({a, c1, c2}, view, false, sel));
    EXPECT_EQ(sel.SelFileName, QVector<QString>({c1}));
    EXPECT_EQ(sel.SelFileType, Family::CSV);
}

TEST_F(Selection, DropOfNothingUsableShows553AndAMessageFileAloneOpensNothing) {
    ViewState view;
    EXPECT_FALSE(DroppedFiles::OpenDroppedFiles({junk("x.vxf")}, view, false, sel));
    ASSERT_EQ(sink.calls().size(), 1);
    EXPECT_EQ(sink.last().text, MsgText(553));
    EXPECT_EQ(sink.last().title, MsgText(217));
    sink.clear();
    EXPECT_FALSE(DroppedFiles::OpenDroppedFiles({dir.write("m.msg", "TM1M")}, view, false, sel));
    EXPECT_TRUE(sink.calls().isEmpty());
    EXPECT_EQ(view.MessageFiles.size(), 1);
}

TEST_F(Selection, DropWithoutReadableHeadersRestoresTheSelection) {
    ViewState view;
    sel.append(QStringLiteral("/kept.vxf"), 1, 0);
    EXPECT_FALSE(DroppedFiles::OpenDroppedFiles({dir.write("short.vxf", QByteArray("VX2\0abc", 7))},
                                                view, false, sel));
    EXPECT_EQ(sel.SelFileName, QVector<QString>({QStringLiteral("/kept.vxf")}));
    EXPECT_EQ(sink.last().text, MsgText(561));
}

TEST_F(Selection, ChooserRefusesWithTheRightMessages) {
    SelectionChooser chooser(false);
    const QString a = vxf("a.vxf", 300), b = vxf("b.vxf", 100), other = vxf("o.vxf", 50, 50);
    EXPECT_EQ(chooser.take(dir.path("missing.vxf"), Family::VXF), 0);
    EXPECT_EQ(chooser.take(junk("j.vxf"), Family::VXF), 553);
    EXPECT_EQ(chooser.take(a, Family::VXF), 0);
    EXPECT_EQ(chooser.take(a, Family::VXF), 554);
    EXPECT_EQ(chooser.take(other, Family::VXF), 556);
    EXPECT_EQ(chooser.take(junk("x.csv"), Family::CSV), 551);
    EXPECT_EQ(chooser.take(b, Family::VXF), 0);
    EXPECT_EQ(sink.last().title, MsgText(217));

    ASSERT_TRUE(chooser.registerSelection(dir.path(QString()), sel));
    EXPECT_EQ(sel.SelFileName, QVector<QString>({b, a})); // sorted by start
    EXPECT_EQ(sel.SelInterval, 1000);
    EXPECT_EQ(chooser.viewTitle(), QLatin1String("b.vxf"));
}

TEST_F(Selection, ChooserHoldsOneCsvAndRegisteringNothingWarns) {
    SelectionChooser chooser(false);
    EXPECT_FALSE(chooser.registerSelection(QStringLiteral("/tmp"), sel));
    EXPECT_EQ(sink.last().text, MsgText(561));
    EXPECT_EQ(chooser.take(junk("a.csv"), Family::CSV), 0);
    EXPECT_FALSE(chooser.selectEnabled());
    EXPECT_EQ(chooser.take(junk("b.csv"), Family::CSV), 552);
    chooser.unselect(0);
    EXPECT_TRUE(chooser.selectEnabled());
}

TEST_F(Selection, ChooserWarnsAboveTheSizeLimitAndNoEmptiesTheSelection) {
    SelectionChooser chooser(false);
    VxfDescription big = simpleVxf(2, 1, 100, 10, flat);
    big.rowCount = 1800001; // 2 x 1,800,001 points: one above the limit, as the head says
    ASSERT_EQ(chooser.take(dir.write("big.vxf", buildVxf(big)), Family::VXF), 0);
    sink.setAnswer(kNo);
    EXPECT_FALSE(chooser.registerSelection(QStringLiteral("/d"), sel));
    EXPECT_EQ(sel.SelFileCount, 0);
    EXPECT_TRUE(sink.last().text.contains(QStringLiteral("3600002 : 3600000")));
    sink.setAnswer(kYes);
    EXPECT_TRUE(chooser.registerSelection(QStringLiteral("/d"), sel));
    EXPECT_EQ(sel.SelFileCount, 1);
}

TEST_F(Selection, GsChooserRefusesP4fFilesOutOfPhase) {
    const auto p4f = [&](const QString& name, quint32 startUnix) {
        NpDescription d;
        d.magic = QByteArray("PA4\0", 4);
        d.gsStride = true;
        d.intervalTenths = 100; // 10 s
        d.startUnix = startUnix;
        d.channels = {{"T", "C", 1, 0}};
        d.rows = {{{1, 0, 0}}, {{2, 0, 0}}};
        return dir.write(name, buildNp(d));
    };
    const quint32 t0 = 1700000000; // a multiple of ten seconds
    SelectionChooser chooser(true);
    EXPECT_EQ(chooser.take(p4f("a.p4f", t0), Family::P4F), 0);
    EXPECT_EQ(chooser.take(p4f("b.p4f", t0 + 3600), Family::P4F), 0);
    EXPECT_EQ(chooser.take(p4f("c.p4f", t0 + 7205), Family::P4F), 586);
    EXPECT_EQ(chooser.chosen().size(), 2);
}

} // namespace

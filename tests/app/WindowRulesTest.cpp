#include "app/WindowRules.h"
#include "app/ClickFile.h"
#include "support/RecordingFixture.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace WindowRules;

TEST(WindowRules, RestoredGeometryIsCutToTheScreenOrRefused) {
    const QRect screen(0, 0, 1280, 1024);
    EXPECT_EQ(restoredGeometry({100, 100, 800, 600}, screen), QRect(100, 100, 800, 600));
    EXPECT_EQ(restoredGeometry({900, 800, 800, 600}, screen), QRect(900, 800, 380, 224));
    EXPECT_EQ(restoredGeometry({-50, 0, 400, 300}, screen), QRect(0, 0, 350, 300));
    EXPECT_FALSE(restoredGeometry({2000, 0, 800, 600}, screen)); // off the screen
    EXPECT_FALSE(restoredGeometry({0, 0, 319, 600}, screen));    // too narrow
    EXPECT_FALSE(restoredGeometry({0, 0, 800, 239}, screen));    // too low
}

TEST(WindowRules, TilingFillsTheAreaWithoutGaps) {
    EXPECT_EQ(tilingMode(2, 3), 0);
    EXPECT_EQ(tilingMode(3, 3), 1);
    EXPECT_EQ(tilingMode(2, 1), 1); // one view always fills the area
    const QRect area(0, 0, 1000, 601);
    const QVector<QRect> side = tiles(0, 3, area);
    ASSERT_EQ(side.size(), 3);
    EXPECT_EQ(side[0], QRect(0, 0, 333, 601));
    EXPECT_EQ(side[1].left(), 333);
    EXPECT_EQ(side[2].right(), 999);
    const QVector<QRect> stacked = tiles(1, 2, area);
    EXPECT_EQ(stacked[0], QRect(0, 0, 1000, 300));
    EXPECT_EQ(stacked[1], QRect(0, 300, 1000, 301));
    EXPECT_TRUE(tiles(0, 0, area).isEmpty());
}

TEST(WindowRules, HandOffWaitsRefusesOrOpens) {
    const struct {
        HandOffPoll poll;
        HandOff step;
    } cases[] = {
        {{false, false, true, false, 1}, HandOff::Later}, // start-up not finished
        {{true, true, true, false, 1}, HandOff::Later},   // a view is loading
        {{true, false, false, false, 1}, HandOff::Nothing},
        {{true, false, true, true, 1}, HandOff::Discard},  // a settings window is open
        {{true, false, true, false, 0}, HandOff::Discard}, // all ten views in use
        {{true, false, true, false, 4}, HandOff::Open},
    };
    for (const auto& c : cases) EXPECT_EQ(handOffStep(c.poll), c.step);
}

TEST(WindowRules, TakenHandOffFileIsGoneBeforeTheLoad) {
    FixtureDir dir;
    SelectionLists written;
    written.SelFileType = 0;
    written.SelInterval = 1000;
    written.append(QStringLiteral("/data/a.vxf"), 100, 0);
    const QString path = dir.path(QStringLiteral("D_Click.ini"));
    ASSERT_TRUE(WriteClickFile(written, path));
    SelectionLists sel;
    EXPECT_TRUE(takeClickFile(sel, path));
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_EQ(sel.SelFileName.value(0), QStringLiteral("/data/a.vxf"));
    // A file that names nothing is removed all the same.
    QFile bad(path);
    ASSERT_TRUE(bad.open(QIODevice::WriteOnly));
    bad.write("FILECOUNT=0\r\n");
    bad.close();
    EXPECT_FALSE(takeClickFile(sel, path));
    EXPECT_FALSE(QFile::exists(path));
}

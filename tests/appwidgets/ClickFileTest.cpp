// The hand-off file between a second instance and the first.
#include "app/ClickFile.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

SelectionLists twoVxfFiles() {
    SelectionLists sel;
    sel.SelFileType = 0;
    sel.SelInterval = 1000;
    sel.append(QStringLiteral("/data/a b.vxf"), 789012345, 250);
    sel.append(QStringLiteral("/data/c.vxf"), 789015945, 0);
    return sel;
}

TEST(ClickFile, LinesFollowTheFileLayout) {
    EXPECT_EQ(clickFileLines(twoVxfFiles()),
              QStringList({"FILECOUNT=2", "FILETYPE=0", "INTVAL=1000", "NAME=/data/a b.vxf",
                           "START=789012345", "STARTMSEC=250", "NAME=/data/c.vxf",
                           "START=789015945", "STARTMSEC=0"}));
    SelectionLists trend;
    trend.SelFileType = 1;
    trend.append(QStringLiteral("/data/t.vxb"), 0, 0);
    // A saved trend carries no start lines.
    EXPECT_EQ(clickFileLines(trend),
              QStringList({"FILECOUNT=1", "FILETYPE=1", "INTVAL=0", "NAME=/data/t.vxb"}));
}

TEST(ClickFile, WrittenFileReadsBackAsTheSelection) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("D_Click.ini"));
    const SelectionLists sel = twoVxfFiles();
    ASSERT_TRUE(WriteClickFile(sel, path));
    SelectionLists read;
    ASSERT_TRUE(ReadClickFile(read, path));
    EXPECT_EQ(clickFileLines(read), clickFileLines(sel));
}

TEST(ClickFile, ReadingRules) {
    const struct {
        const char* name;
        bool ok;
        int count;
        qint64 firstStart;
        QStringList lines;
    } cases[] = {
        {"keys and values are trimmed, other keys ignored",
         true,
         1,
         42,
         {"  FILECOUNT = 1 ", "COMMENT=x", "FILETYPE=3", " NAME = /d/x.tm ", "START=42.5",
          "STARTMSEC=7", "no equals sign"}},
        {"a value may hold '='", true, 1, 0, {"FILECOUNT=1", "NAME=/d/a=b.vxf"}},
        {"FILECOUNT 0 ends the reading", false, 0, 0, {"FILECOUNT=0", "NAME=/d/x.vxf"}},
        {"a negative count too", false, 0, 0, {"FILECOUNT=-3", "NAME=/d/x.vxf"}},
        {"no count line", false, 0, 0, {"NAME=/d/x.vxf"}},
        {"no file named", false, 0, 0, {"FILECOUNT=2", "FILETYPE=0"}},
        {"empty file", false, 0, 0, {}},
    };
    for (const auto& c : cases) {
        SelectionLists sel;
        sel.append(QStringLiteral("/kept.vxf"), 1, 1);
        EXPECT_EQ(parseClickFile(c.lines, sel), c.ok) << c.name;
        if (c.ok) {
            EXPECT_EQ(sel.SelFileCount, c.count) << c.name;
            EXPECT_EQ(sel.SelStart.value(0), c.firstStart) << c.name;
        } else {
            EXPECT_EQ(sel.SelFileName.value(0), QLatin1String("/kept.vxf")) << c.name;
        }
    }
    SelectionLists sel;
    EXPECT_FALSE(ReadClickFile(sel, QStringLiteral("/nonexistent/D_Click.ini")));
}

} // namespace

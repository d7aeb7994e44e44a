#include "print/PrintSetting.h"

#include <gtest/gtest.h>

namespace {

TEST(PrintSetting, ProgramsOfTheFourStylesAndAQuotedFontName) {
    const QString texts[3] = {QStringLiteral("L"), QStringLiteral("C"), QStringLiteral("R")};
    EXPECT_EQ(PrintSetting::program(QStringLiteral("MS Gothic"), 10, false, false, texts),
              QStringLiteral("/fn\"MS Gothic\"/fz\"10\"/fb0/fi0/fu0/fk0/lL/cC/rR"));
    EXPECT_TRUE(PrintSetting::program("F", 9, false, true, texts).contains("/fb0/fi1/fu0/fk0"));
    EXPECT_TRUE(PrintSetting::program("F", 9, true, false, texts).contains("/fb1/fi0/fu0/fk0"));
    EXPECT_TRUE(PrintSetting::program("F", 9, true, true, texts).contains("/fb1/fi1/fu0/fk0"));
}

TEST(PrintSetting, TheSheetSettingsOfARecord) {
    PrintSetting s;
    s.Range = 2;
    s.FromPage = 5;
    s.ToPage = 2; // the smaller page first
    s.Orientation = 1;
    s.Paper = 4;
    ListPrintSettings sheet = s.sheetSettings();
    EXPECT_EQ(sheet.fromPage, 2);
    EXPECT_EQ(sheet.toPage, 5);
    EXPECT_TRUE(sheet.landscape);
    EXPECT_EQ(sheet.paper, 4);
    EXPECT_TRUE(sheet.header.isEmpty());
    EXPECT_EQ(sheet.footer, ListPrintSettings().footer); // no footer text: page / pages
    s.FooterText[1] = QStringLiteral("/p");
    s.Range = 1;
    sheet = s.sheetSettings();
    EXPECT_TRUE(sheet.footer.endsWith(QStringLiteral("/c/p/r")));
    EXPECT_TRUE(sheet.selection);
    EXPECT_EQ(sheet.fromPage, 0);
}

} // namespace

#include "print/PrintProgram.h"

#include <gtest/gtest.h>

namespace {

using PrintProgram::Entry;
using PrintProgram::kLiteral;
using PrintProgram::parse;

TEST(PrintProgram, TheParserTakesCodesAsTheyAreTyped) {
    const struct {
        const char* program;
        QVector<Entry> entries;
    } cases[] = {
        {"/fz\"12\"/c/p///pa", {{13, "12"}, {4, ""}, {5, ""}, {11, ""}, {6, ""}}},
        {"a//b", {{kLiteral, "a"}, {11, ""}, {kLiteral, "b"}}},
        {"/fz12", {{kLiteral, "/fz12"}}},          // no quote: printed as text
        {"/pages", {{6, ""}, {kLiteral, "ges"}}},  // /p before an "a" reads as /pa
        {"/P/N/L", {{5, ""}, {1, ""}, {2, ""}}},   // upper case codes
        {"/d/df\"yyyy\"", {{7, ""}, {8, "yyyy"}}}, // /d against /df
        {"/t x", {{9, ""}, {kLiteral, " x"}}},
        {"/fn\"MS Gothic\"x", {{12, "MS Gothic"}, {kLiteral, "x"}}}, // a name with a space
        {"/fn\"open", {{kLiteral, "/fn\"open"}}},                    // an unclosed quote: no code
        {"x/fb1y/fi0", {{kLiteral, "x"}, {15, ""}, {kLiteral, "y"}, {16, ""}}},
        {"", {}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(parse(QString::fromUtf8(c.program)), c.entries) << c.program;
}

TEST(PrintProgram, AProgramStopsAtAHundredEntries) {
    QString program;
    for (int i = 0; i < 101; ++i) program += QStringLiteral("/n");
    const QVector<Entry> entries = parse(program);
    ASSERT_EQ(entries.size(), 100);
    EXPECT_EQ(entries.last(), (Entry{1, ""}));
    EXPECT_EQ(parse(QStringLiteral("x/n").repeated(60)).size(), 100);
}

} // namespace

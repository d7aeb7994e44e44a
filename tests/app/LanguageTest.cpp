// The language table loader and the choice of language; built from small tables of our own.
#include "app/LanguageTable.h"
#include "app/TextFile.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// Columns 1..9: mark, ja, en, (2), ko, zh, (5), it, de.
QString row(const QStringList& cells) {
    return cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
}

QString sampleTable(bool germanFont) {
    QString t = row({QStringLiteral("title row")});
    t += row({QStringLiteral("<<VX>>")});
    t += row({QStringLiteral("1"), QStringLiteral("ja1"), QStringLiteral("en1"), QString(),
              QStringLiteral("ko1"), QStringLiteral("zh1"), QString(), QStringLiteral("it1"),
              QStringLiteral("de1")});
    t +=
        row({QStringLiteral("2"), QStringLiteral("Noto Sans CJK JP"), QStringLiteral("Arial"),
             QString(), QStringLiteral("Noto Sans CJK KR"), QStringLiteral("Noto Sans CJK SC"),
             QString(), QStringLiteral("Arial"), germanFont ? QStringLiteral("Arial") : QString()});
    t += row({QStringLiteral("<<VX>>"), QStringLiteral("second marker"), QStringLiteral("en3")});
    return t;
}

class LanguageTest : public ::testing::Test {
protected:
    QString writeTable(const QString& text) {
        const QString path = dir.path() + QStringLiteral("/langVX.txt");
        EXPECT_TRUE(TextFile::writeAtomically(path, text.toUtf8()));
        return path;
    }
    QTemporaryDir dir;
};

TEST_F(LanguageTest, LanguageFollowsTheLocaleKeyWithEnglishFallback) {
    LanguageTable withGerman;
    withGerman.loadText(sampleTable(true));
    LanguageTable withoutGerman;
    withoutGerman.loadText(sampleTable(false));
    const struct {
        const char* key;
        int language;
        int withoutGermanFont;
    } cases[] = {
        {"11", kJapanese, kJapanese}, {"09", kEnglish, kEnglish}, {"12", kKorean, kKorean},
        {"04", kChinese, kChinese},   {"10", kItalian, kItalian}, {"07", kGerman, kEnglish},
        {"0c", kEnglish, kEnglish},   {"", kEnglish, kEnglish},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(chooseLanguage(withGerman, QLatin1String(c.key), false), c.language) << c.key;
        EXPECT_EQ(chooseLanguage(withoutGerman, QLatin1String(c.key), false), c.withoutGermanFont)
            << c.key;
    }
}

TEST_F(LanguageTest, ZhCnFileChoosesChineseEvenWithoutItsColumn) {
    LanguageTable empty;
    EXPECT_EQ(chooseLanguage(empty, QStringLiteral("11"), true), kChinese);
    loadLanguageTable(writeTable(row({QStringLiteral("<<VX>>")}) + row({QStringLiteral("1")})),
                      QStringLiteral("09"), true);
    EXPECT_EQ(ActiveLanguage(), kChinese);
    EXPECT_EQ(MsgText(1), QString());
    EXPECT_EQ(LanguageFont(), QLatin1String("Ms Sans Serif"));
}

TEST_F(LanguageTest, MessagesCountFromTheFirstMarkerRow) {
    loadLanguageTable(writeTable(sampleTable(true)), QStringLiteral("07"), false);
    EXPECT_EQ(activeLanguageTable().MarkerRow(), 2);
    EXPECT_EQ(ActiveLanguage(), kGerman);
    EXPECT_EQ(MsgText(1), QLatin1String("de1"));
    EXPECT_EQ(LanguageFont(), QLatin1String("Arial"));
    EXPECT_EQ(MsgText(MsgId(9999)), QString());
    EXPECT_EQ(MsgText(-1), QString());
    EXPECT_EQ(activeLanguageTable().message(3, kJapanese), QLatin1String("second marker"));
}

TEST_F(LanguageTest, MissingTableGivesEnglishAndEmptyTexts) {
    loadLanguageTable(dir.path() + QStringLiteral("/none.txt"), QStringLiteral("11"), false);
    EXPECT_EQ(ActiveLanguage(), kEnglish);
    EXPECT_EQ(MsgText(2), QString());
    EXPECT_EQ(LanguageFont(), QLatin1String("Ms Sans Serif"));
}

TEST_F(LanguageTest, WithoutMarkerMessageNIsRowN) {
    LanguageTable table;
    table.loadText(row({QStringLiteral("a"), QStringLiteral("ja1")}) +
                   row({QStringLiteral("b"), QStringLiteral("ja2")}));
    EXPECT_EQ(table.MarkerRow(), 0);
    EXPECT_EQ(table.message(2, kJapanese), QLatin1String("ja2"));
}

TEST_F(LanguageTest, CellsAreCutAndOldCodePageFilesAreRead) {
    LanguageTable table;
    table.loadText(row({QStringLiteral("<<VX>>")}) +
                   row({QStringLiteral("1"), QString(150, QLatin1Char('x'))}) +
                   QStringLiteral("2\t\xE6\x97\xA5\r\n"));
    EXPECT_EQ(table.message(1, kJapanese).size(), LanguageTable::kLongestCell);
    EXPECT_EQ(table.message(2, kJapanese), QStringLiteral("\xE6\x97\xA5")); // CR stripped

    const QString path = dir.path() + QStringLiteral("/cp932.txt");
    const QString japanese = QStringLiteral("<<VX>>\n1\t日本語\n");
    ASSERT_TRUE(TextFile::writeAtomically(path, TextFile::encodeCp932(japanese)));
    ASSERT_TRUE(table.loadFile(path));
    EXPECT_EQ(table.message(1, kJapanese), QStringLiteral("日本語"));
}

} // namespace

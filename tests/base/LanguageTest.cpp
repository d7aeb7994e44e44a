// The language table loader and the choice of language; built from small tables of our own.
#include "base/LanguageTable.h"
#include "base/TextFile.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Columns 1..9: mark, ja, en, (2), ko, zh, (5), it, de. A second marker row follows message 2.
QString sampleTable(bool germanFont) {
    return u"title row\n<<VX>>\n1\tja1\ten1\t\tko1\tzh1\t\tit1\tde1\n"
           u"2\tNoto Sans CJK JP\tArial\t\tNoto Sans CJK KR\tNoto Sans CJK SC\t\tArial\t"_s +
           (germanFont ? u"Arial"_s : QString()) + u"\n<<VX>>\tsecond marker\ten3\n"_s;
}

class LanguageTest : public ::testing::Test {
protected:
    QString writeTable(const QString& text) {
        const QString path = dir.path() + u"/langVX.txt"_s;
        EXPECT_TRUE(TextFile::writeAtomically(path, text.toUtf8()));
        return path;
    }
    QTemporaryDir dir;
};

TEST_F(LanguageTest, LanguageFollowsTheLocaleKeyWithEnglishFallback) {
    LanguageTable withGerman, withoutGerman;
    withGerman.loadText(sampleTable(true));
    withoutGerman.loadText(sampleTable(false));
    const struct {
        const char* key;
        int language, withoutGermanFont;
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
    EXPECT_EQ(chooseLanguage(LanguageTable(), u"11"_s, true), kChinese);
    loadLanguageTable(writeTable(u"<<VX>>\n1\n"_s), u"09"_s, true);
    EXPECT_EQ(ActiveLanguage(), kChinese);
    EXPECT_EQ(MsgText(1), QString());
    EXPECT_EQ(LanguageFont(), u"Ms Sans Serif"_s);
}

TEST_F(LanguageTest, MessagesCountFromTheFirstMarkerRow) {
    loadLanguageTable(writeTable(sampleTable(true)), u"07"_s, false);
    EXPECT_EQ(activeLanguageTable().MarkerRow(), 2);
    EXPECT_EQ(ActiveLanguage(), kGerman);
    EXPECT_EQ(MsgText(1), u"de1"_s);
    EXPECT_EQ(LanguageFont(), u"Arial"_s);
    EXPECT_EQ(MsgText(MsgId(9999)), QString());
    EXPECT_EQ(MsgText(-1), QString());
    EXPECT_EQ(activeLanguageTable().message(3, kJapanese), u"second marker"_s);
}

TEST_F(LanguageTest, MissingTableGivesEnglishAndEmptyTexts) {
    loadLanguageTable(dir.path() + u"/none.txt"_s, u"11"_s, false);
    EXPECT_EQ(ActiveLanguage(), kEnglish);
    EXPECT_EQ(MsgText(2), QString());
    EXPECT_EQ(LanguageFont(), u"Ms Sans Serif"_s);
}

TEST_F(LanguageTest, OldCodePageFilesAreRead) {
    LanguageTable table;
    const QString path = dir.path() + u"/cp932.txt"_s;
    ASSERT_TRUE(TextFile::writeAtomically(path, TextFile::encodeCp932(u"<<VX>>\n1\t日本語\r\n"_s)));
    ASSERT_TRUE(table.loadFile(path));
    EXPECT_EQ(table.message(1, kJapanese), u"日本語"_s); // CR stripped
}

} // namespace

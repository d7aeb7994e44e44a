// The shipped language table, data/langVX.txt, read as a plain file: its form, and a text in
// every language for each message number that the program asks for.
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QStringList>

#include <gtest/gtest.h>

#include <map>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int kColumnCount = 9;
constexpr int kMaxTextLength = 100;
const QString kMarker = u"<<VX>>"_s;

struct Language {
    int column; // 1-based column of the table
    const char* name;
};

// Language index L lives in column L + 2; indices 2 and 5 have no locale.
constexpr Language kLanguages[] = {{2, "Japanese"}, {3, "English"}, {5, "Korean"},
                                   {6, "Chinese"},  {8, "Italian"}, {9, "German"}};
constexpr int kUnusedColumns[] = {4, 7};

// Every message number that a window, box, list or file text of the program uses, as ranges
// from-to. The table must carry them before the code that shows them exists.
constexpr std::pair<int, int> kMessagesInUse[] = {
    {2, 2},     {4, 4},     {8, 9},     {13, 13},   {18, 20},   {22, 22},   {28, 28},   {39, 39},
    {41, 42},   {45, 47},   {51, 51},   {61, 62},   {65, 68},   {70, 94},   {96, 96},   {101, 102},
    {106, 107}, {127, 127}, {139, 140}, {161, 161}, {174, 174}, {179, 179}, {183, 183}, {195, 196},
    {200, 201}, {204, 205}, {207, 207}, {209, 209}, {213, 220}, {228, 231}, {234, 235}, {243, 259},
    {263, 269}, {273, 275}, {277, 280}, {284, 285}, {292, 293}, {360, 360}, {379, 390}, {450, 455},
    {465, 469}, {478, 484}, {486, 490}, {492, 492}, {495, 497}, {551, 554}, {556, 557}, {559, 565},
    {568, 572}, {574, 574}, {577, 578}, {582, 582}, {584, 587},
};

// The source tree: given at compile time, or found above the working directory (the build
// directory lies inside it).
QString sourceRoot() {
#ifdef RECVIEW_SOURCE_DIR
    return QStringLiteral(RECVIEW_SOURCE_DIR);
#else
    QDir dir(QDir::currentPath());
    do {
        if (dir.exists(u"data/langVX.txt"_s)) return dir.absolutePath();
    } while (dir.cdUp());
    return {};
#endif
}

struct LanguageTable {
    QByteArray bytes;
    std::vector<QStringList> rows; // rows[0] is row 1
    int markerRow = 0;             // 1-based; 0 when absent

    // Cell of message n in a 1-based column, empty when the table has no such cell.
    QString text(int message, int column) const {
        const std::size_t index = static_cast<std::size_t>(markerRow + message - 1);
        if (markerRow == 0 || index >= rows.size() || column > rows[index].size()) return {};
        return rows[index][column - 1];
    }
};

LanguageTable loadTable() {
    LanguageTable table;
    QFile file(sourceRoot() + u"/data/langVX.txt"_s);
    if (!file.open(QIODevice::ReadOnly)) return table;
    table.bytes = file.readAll();
    QString content = QString::fromUtf8(table.bytes);
    if (content.endsWith(u'\n')) content.chop(1);
    for (const QString& line : content.split(u'\n')) {
        table.rows.push_back(line.split(u'\t'));
        if (table.markerRow == 0 && table.rows.back().first() == kMarker)
            table.markerRow = static_cast<int>(table.rows.size());
    }
    return table;
}

const LanguageTable& table() {
    static const LanguageTable loaded = loadTable();
    return loaded;
}

// Message numbers the code asks for: by convention a number is only ever written as
// MsgText(<literal>) or MsgId(<literal>). Maps each number to one file that uses it.
std::map<int, QString> messagesOfTheCode() {
    static const QRegularExpression use(QStringLiteral(R"(\b(?:MsgText|MsgId)\(\s*(\d+)\s*\))"));
    std::map<int, QString> found;
    const QString src = sourceRoot() + u"/src"_s;
    QDirIterator it(src, {u"*.cpp"_s, u"*.h"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        QFile file(it.next());
        if (!file.open(QIODevice::ReadOnly)) continue;
        const QString code = QString::fromUtf8(file.readAll());
        for (const QRegularExpressionMatch& m : use.globalMatch(code))
            found.emplace(m.captured(1).toInt(), QDir(src).relativeFilePath(file.fileName()));
    }
    return found;
}

// The numbers among `messages` that lack a text in some language, with that language.
QStringList missingTexts(const std::map<int, QString>& messages) {
    QStringList missing;
    for (const auto& [message, where] : messages)
        for (const Language& language : kLanguages)
            if (table().text(message, language.column).isEmpty())
                missing << u"%1 (%2, used in %3)"_s.arg(message).arg(QLatin1String(language.name),
                                                                     where);
    return missing;
}

TEST(LanguageTableFile, IsUtf8WithoutBomAndWithLfLineEnds) {
    const QByteArray& bytes = table().bytes;
    ASSERT_FALSE(bytes.isEmpty()) << "data/langVX.txt not found above "
                                  << qPrintable(QDir::currentPath());
    EXPECT_FALSE(bytes.startsWith("\xEF\xBB\xBF"));
    EXPECT_FALSE(bytes.contains('\r'));
    EXPECT_TRUE(bytes.endsWith('\n'));
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString decoded = decoder(bytes);
    EXPECT_FALSE(decoder.hasError());
    EXPECT_FALSE(decoded.isEmpty());
}

TEST(LanguageTableFile, HasExactlyOneMarkerRow) {
    int markers = 0;
    for (const QStringList& row : table().rows) markers += row.first() == kMarker ? 1 : 0;
    EXPECT_EQ(markers, 1);
    EXPECT_GT(table().markerRow, 0);
}

TEST(LanguageTableFile, EveryRowHasNineCellsAndLeavesTheUnusedColumnsEmpty) {
    for (std::size_t r = 0; r < table().rows.size(); ++r) {
        const QStringList& row = table().rows[r];
        ASSERT_EQ(row.size(), kColumnCount) << "row " << r + 1;
        for (const int column : kUnusedColumns)
            EXPECT_TRUE(row[column - 1].isEmpty()) << "row " << r + 1 << " column " << column;
    }
}

TEST(LanguageTableFile, NoTextIsLongerThanTheGridTakes) {
    for (std::size_t r = 0; r < table().rows.size(); ++r)
        for (const QString& cell : table().rows[r])
            EXPECT_LE(cell.toUcs4().size(), kMaxTextLength) << "row " << r + 1;
}

// Column 1 names the message of its row, so that a missing or extra line, which would shift
// every later message, shows at once.
TEST(LanguageTableFile, EachRowBelowTheMarkerIsNamedByItsMessageNumber) {
    const int marker = table().markerRow;
    ASSERT_GT(marker, 0);
    for (std::size_t r = static_cast<std::size_t>(marker); r < table().rows.size(); ++r)
        EXPECT_EQ(table().rows[r].first(), QString::number(static_cast<int>(r) + 1 - marker))
            << "row " << r + 1;
}

TEST(LanguageTableFile, EveryLanguageNamesItsFont) {
    for (const Language& language : kLanguages)
        EXPECT_FALSE(table().text(2, language.column).isEmpty()) << language.name;
}

TEST(LanguageTableFile, JapaneseTextsAreTheWordsTheWindowsShow) {
    const std::pair<int, const char*> quoted[] = {
        {65, "全データ"},         {66, "マーカ"},           {91, "すべて"},
        {92, "完全一致するもの"}, {93, "文字列を含むもの"}, {94, "文字列を含まないもの"},
    };
    for (const auto& [message, words] : quoted)
        EXPECT_EQ(table().text(message, kLanguages[0].column), QString::fromUtf8(words))
            << "message " << message;
}

TEST(LanguageTableFile, EveryMessageOfTheWindowsHasATextInEachLanguage) {
    std::map<int, QString> messages;
    for (const auto& [from, to] : kMessagesInUse)
        for (int n = from; n <= to; ++n) messages.emplace(n, u"the windows"_s);
    const QStringList missing = missingTexts(messages);
    EXPECT_TRUE(missing.isEmpty()) << qPrintable(missing.join(u"\n"_s));
}

TEST(LanguageTableFile, EveryMessageOfTheCodeHasATextInEachLanguage) {
    ASSERT_TRUE(QDir(sourceRoot() + u"/src"_s).exists());
    const QStringList missing = missingTexts(messagesOfTheCode());
    EXPECT_TRUE(missing.isEmpty()) << qPrintable(missing.join(u"\n"_s));
}

} // namespace

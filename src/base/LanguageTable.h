#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// A message number. By convention a number appears in code only as MsgText(<literal>) or
// MsgId(<literal>), so that every number in use can be found.
constexpr int MsgId(int n) {
    return n;
}

// Language indices: the column of language L is L + 2.
enum LanguageIndex : int {
    kJapanese = 0,
    kEnglish = 1,
    kKorean = 3,
    kChinese = 4,
    kItalian = 6,
    kGerman = 7,
};

// The language table "langVX.txt": tab-separated rows, column 1 carries marks, and message n
// of language L stands at row (marker row + n), column (L + 2). Rows and columns count from 1.
class LanguageTable {
public:
    static constexpr int kLongestCell = 100;

    // Reads the file (UTF-8, or cp932); false when it cannot be read, leaving the table empty.
    bool loadFile(const QString& path);
    void loadText(const QString& text);

    int rowCount() const { return int(rows_.size()); }
    QString cell(int row, int column) const; // "" outside the table
    // The first row whose column 1 is exactly "<<VX>>"; 0 when there is none.
    int MarkerRow() const { return markerRow_; }
    QString message(int n, int language) const;
    // A language has a column when its message 2 (its font name) is there.
    bool hasLanguage(int language) const { return !message(2, language).isEmpty(); }

private:
    QList<QStringList> rows_;
    int markerRow_ = 0;
};

// The language index for a two-digit locale key ("11" ja, "12" ko, "04" zh, "10" it, "07" de);
// "zh-CN.ini" beside the program chooses Chinese at once. Everything else, and a language
// whose column has no font name, gives English.
int chooseLanguage(const LanguageTable& table, const QString& localeKey, bool zhCnFilePresent);

// The table of the process, loaded on first use from AppPaths(0) + "langVX.txt" with the
// language of the user's locale.
QString MsgText(int n);
int ActiveLanguage();
// Message 2 of the active language, or "Ms Sans Serif" when it is empty.
QString LanguageFont();
// The locale's decimal separator (at most 2 characters) and date separator.
QString SystemDecimalSep();
QString SystemDateSep();
const LanguageTable& activeLanguageTable();

// Loads the table of the process from a file as start-up does, with a given locale key and
// "zh-CN.ini" flag (tests and start-up). An unreadable file leaves an empty table.
void loadLanguageTable(const QString& path, const QString& localeKey, bool zhCnFilePresent);
// Start-up's load: AppPaths(0) + "langVX.txt", the user's locale, AppPaths(0) + "zh-CN.ini".
void loadLanguageTableFromProgramDirectory();

#include "base/LanguageTable.h"

#include "base/AppPaths.h"
#include "base/LocaleInfo.h"
#include "base/PathChecks.h"
#include "base/TextFile.h"

#include <QFile>

namespace {

struct ActiveState {
    bool loaded = false;
    LanguageTable table;
    int language = kEnglish;
    QString font = QStringLiteral("Ms Sans Serif");
    QString decimalSep = QStringLiteral(".");
    QString dateSep = QStringLiteral("/");
};

ActiveState& state() {
    static ActiveState s;
    return s;
}

ActiveState& loadedState() {
    if (!state().loaded) loadLanguageTableFromProgramDirectory();
    return state();
}

} // namespace

bool LanguageTable::loadFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        loadText(QString());
        return false;
    }
    loadText(TextFile::decodeLocalText(file.readAll()));
    return true;
}

void LanguageTable::loadText(const QString& text) {
    rows_.clear();
    markerRow_ = 0;
    for (const QString& line : TextFile::splitLines(text)) {
        QStringList cells = line.split(QLatin1Char('\t'));
        for (QString& c : cells) c.truncate(kLongestCell);
        rows_.append(cells);
    }
    for (int row = 1; row <= rowCount(); ++row) {
        if (cell(row, 1) == QLatin1String("<<VX>>")) {
            markerRow_ = row;
            break;
        }
    }
}

QString LanguageTable::cell(int row, int column) const {
    if (row < 1 || row > rows_.size()) return QString();
    const QStringList& cells = rows_[row - 1];
    if (column < 1 || column > cells.size()) return QString();
    return cells[column - 1];
}

QString LanguageTable::message(int n, int language) const {
    if (n < 0) return QString();
    return cell(markerRow_ + n, language + 2);
}

int chooseLanguage(const LanguageTable& table, const QString& localeKey, bool zhCnFilePresent) {
    if (zhCnFilePresent) return kChinese;
    struct Entry {
        const char* key;
        int language;
    };
    static constexpr Entry kKeys[] = {
        {"11", kJapanese}, {"12", kKorean}, {"04", kChinese}, {"10", kItalian}, {"07", kGerman},
    };
    for (const Entry& e : kKeys)
        if (localeKey == QLatin1String(e.key))
            return table.hasLanguage(e.language) ? e.language : kEnglish;
    return kEnglish;
}

void loadLanguageTable(const QString& path, const QString& localeKey, bool zhCnFilePresent) {
    ActiveState& s = state();
    s.loaded = true;
    s.table.loadFile(path);
    s.language = chooseLanguage(s.table, localeKey, zhCnFilePresent);
    const LocaleInfo locale = LocaleInfo::system();
    s.decimalSep = locale.decimalSep.left(2);
    s.dateSep = locale.dateSep;
    const QString font = s.table.message(2, s.language);
    s.font = font.isEmpty() ? QStringLiteral("Ms Sans Serif") : font;
}

void loadLanguageTableFromProgramDirectory() {
    const QString dir = AppPaths(0);
    // An installed program finds the table in share/recview/ when it is not beside it.
    QString path = shippedFile(QStringLiteral("langVX.txt"));
    if (path.isEmpty()) path = dir + QStringLiteral("langVX.txt");
    loadLanguageTable(path, LocaleInfo::system().languageKey,
                      FileExists(dir + QStringLiteral("zh-CN.ini")));
}

QString MsgText(int n) {
    ActiveState& s = loadedState();
    return s.table.message(n, s.language);
}

int ActiveLanguage() {
    return loadedState().language;
}

QString LanguageFont() {
    return loadedState().font;
}

QString SystemDecimalSep() {
    return loadedState().decimalSep;
}

QString SystemDateSep() {
    return loadedState().dateSep;
}

const LanguageTable& activeLanguageTable() {
    return loadedState().table;
}

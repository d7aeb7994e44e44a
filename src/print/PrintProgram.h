#pragma once

#include <QString>
#include <QVector>

class PrintOutput;
struct PrintFont;

// The header and footer language of sheet printing: plain text in which a slash starts a code
// (/n new line, /l /r /c alignment, /p page, /pa pages, /d /df"fmt" date, /t /tf"fmt" time, //
// a slash, /fn"name" /fz"size" /fb0 /fb1 /fi0 /fi1 /fu0 /fu1 /fk0 /fk1 font).
namespace PrintProgram {

inline constexpr int kLiteral = 99;
inline constexpr int kMaxEntries = 100;

struct Entry {
    int code; // 1..21, or kLiteral
    QString argument;
    bool operator==(const Entry&) const = default;
};

// Characters are taken one by one and after each the buffer is searched for the codes (without
// case); /p counts only when no "a" follows, /d and /t only when no "f" follows; /df, /tf, /fn
// and /fz need a double quote right after and take the text up to the next one. Text before a
// code becomes a literal ("//" in it one slash); what is left at the end a last literal. At most
// 100 entries: an overflow stops the parsing.
QVector<Entry> parse(const QString& program);

// What a drawn program needs to know of the job.
struct Context {
    int page = 1;
    int pages = 1;
    qint64 printSeconds = 0; // the print time, taken once a job (seconds since 2000-01-01)
    double leftMargin = 10, rightMargin = 20;
    double headerMargin = 10, footerMargin = 10;
};

// Draws a program as the header (lines down from the header margin) or the footer (lines up to
// the footer margin), with the default font given.
void draw(PrintOutput& out, const QVector<Entry>& program, const PrintFont& defaultFont,
          const Context& context, bool footer);

} // namespace PrintProgram

#include "print/PrintProgram.h"

#include "base/VbFormat.h"
#include "base/clsCommon.h"
#include "platform/PrintOutput.h"

#include <array>

namespace PrintProgram {

namespace {

// The codes by number (index + 1).
const std::array<const char*, 21> kCodes = {"/n",   "/l",   "/r",   "/c",   "/p",   "/pa",  "/d",
                                            "/df",  "/t",   "/tf",  "//",   "/fn",  "/fz",  "/fb0",
                                            "/fb1", "/fi0", "/fi1", "/fu0", "/fu1", "/fk0", "/fk1"};

bool takesQuotedArgument(int code) {
    return code == 8 || code == 10 || code == 12 || code == 13;
}

QChar charAt(const QString& s, qsizetype i) {
    return i >= 0 && i < s.size() ? s[i] : QChar();
}

} // namespace

QVector<Entry> parse(const QString& program) {
    QVector<Entry> entries;
    QString buffer;
    const auto add = [&entries](Entry e) {
        if (entries.size() >= kMaxEntries) return false;
        entries.append(std::move(e));
        return true;
    };
    for (qsizetype i = 0; i < program.size(); ++i) {
        buffer += program[i];
        for (int n = 1; n <= int(kCodes.size()); ++n) {
            const QString code = QLatin1String(kCodes[size_t(n - 1)]);
            const qsizetype at = buffer.indexOf(code, 0, Qt::CaseInsensitive);
            if (at < 0) continue;
            // The character after the code: in the buffer, or the next of the program.
            const qsizetype after = at + code.size();
            const QChar next = after < buffer.size()
                                   ? buffer[after]
                                   : charAt(program, i + 1 + (after - buffer.size()));
            if (n == 5 && next.toLower() == QLatin1Char('a')) continue;
            if ((n == 7 || n == 9) && next.toLower() == QLatin1Char('f')) continue;
            QString argument;
            qsizetype resume = i;
            if (takesQuotedArgument(n)) {
                if (after != buffer.size() || charAt(program, i + 1) != QLatin1Char('"')) continue;
                const qsizetype close = program.indexOf(QLatin1Char('"'), i + 2);
                if (close < 0) continue; // an unclosed quote: no code
                argument = program.mid(i + 2, close - i - 2);
                resume = close;
            }
            QString literal = buffer.left(at);
            if (!literal.isEmpty() &&
                !add({kLiteral, literal.replace(QStringLiteral("//"), QStringLiteral("/"))}))
                return entries;
            if (!add({n, argument})) return entries;
            buffer.clear();
            i = resume;
            break;
        }
    }
    if (!buffer.isEmpty())
        add({kLiteral, buffer.replace(QStringLiteral("//"), QStringLiteral("/"))});
    return entries;
}

namespace {

enum Align { Left, Centre, Right };

struct Run {
    Align align;
    PrintFont font;
    QString text;
};

using Line = QVector<Run>;

QVector<Line> layOut(const QVector<Entry>& program, const PrintFont& defaultFont,
                     const Context& c) {
    QVector<Line> lines(1);
    PrintFont font = defaultFont;
    Align align = Left;
    const VbFormat::Separators seps = VbFormat::Separators::system();
    const clsCommon& common = clsCommon::shared();
    const auto text = [&](const QString& t) { lines.last().append({align, font, t}); };
    for (const Entry& e : program) {
        switch (e.code) {
        case 1:
            lines.append(Line());
            break;
        case 2:
            align = Left;
            break;
        case 3:
            align = Right;
            break;
        case 4:
            align = Centre;
            break;
        case 5:
            text(QString::number(c.page));
            break;
        case 6:
            text(QString::number(c.pages));
            break;
        case 7:
            text(VbFormat::formatSeconds(c.printSeconds, common.GetShortDateFormat(-1), seps));
            break;
        case 8:
        case 10:
            text(VbFormat::formatSeconds(c.printSeconds, e.argument, seps));
            break;
        case 9:
            text(VbFormat::formatSeconds(c.printSeconds, common.GetTimeFormat(2), seps));
            break;
        case 11:
            text(QStringLiteral("/"));
            break;
        case 12:
            font.name = e.argument;
            break;
        case 13: {
            bool ok = false;
            const double size = e.argument.trimmed().toDouble(&ok);
            if (ok && size > 0) font.size = size;
            break;
        }
        case 14:
        case 15:
            font.bold = e.code == 15;
            break;
        case 16:
        case 17:
            font.italic = e.code == 17;
            break;
        case 18:
        case 19:
            font.underline = e.code == 19;
            break;
        case 20:
        case 21:
            font.strikeout = e.code == 21;
            break;
        default:
            text(e.argument);
            break;
        }
    }
    return lines;
}

double lineHeight(PrintOutput& out, const Line& line, const PrintFont& defaultFont) {
    double h = 0;
    for (const Run& r : line) {
        out.setFont(r.font);
        h = std::max(h, out.textHeight());
    }
    if (h == 0) {
        out.setFont(defaultFont);
        h = out.textHeight();
    }
    return h * 1.02;
}

void drawLine(PrintOutput& out, const Line& line, double y, const Context& c) {
    for (Align a : {Left, Centre, Right}) {
        double width = 0;
        for (const Run& r : line)
            if (r.align == a) {
                out.setFont(r.font);
                width += out.textWidth(r.text);
            }
        const double right = out.width() - c.rightMargin;
        double x = a == Left    ? c.leftMargin
                   : a == Right ? right - width
                                : (c.leftMargin + right - width) / 2;
        for (const Run& r : line) {
            if (r.align != a) continue;
            out.setFont(r.font);
            out.textOut(x, y, r.text);
            x += out.textWidth(r.text);
        }
    }
}

} // namespace

void draw(PrintOutput& out, const QVector<Entry>& program, const PrintFont& defaultFont,
          const Context& context, bool footer) {
    if (program.isEmpty()) return;
    const QVector<Line> lines = layOut(program, defaultFont, context);
    out.setTextColor(Qt::black);
    if (!footer) {
        double y = context.headerMargin;
        for (const Line& line : lines) {
            drawLine(out, line, y, context);
            y += lineHeight(out, line, defaultFont);
        }
        return;
    }
    double y = out.height() - context.footerMargin;
    for (auto it = lines.rbegin(); it != lines.rend(); ++it) {
        y -= lineHeight(out, *it, defaultFont);
        drawLine(out, *it, y, context);
    }
    out.setFont(defaultFont);
}

} // namespace PrintProgram

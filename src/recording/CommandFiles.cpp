#include "recording/CommandFiles.h"

#include "recording/FamilyCodes.h"
#include "recording/FileRecognition.h"

#include <algorithm>

namespace {

// Which earlier kinds refuse a token of this type, the family whose magic it must pass, and the
// kind it leaves behind.
struct TokenRule {
    const char* type; // nullptr: any other type
    int family;
    int newKind;
    int refusedBy[4];
};

const TokenRule kRules[] = {
    {"VXF", Family::VXF, 1, {0, 2, 3, 4}},
    {"QDF", Family::QDF, 3, {0, 1, 2, 4}},
    {"N5F", Family::N5F, 4, {0, 1, 2, 3}},
    {"JLM", Family::JLM, 6, {0, 2, 3, 4}},
    {nullptr, Family::TM, 2, {0, 1, 3, 4}},
};
const TokenRule kGsP4f{"P4F", Family::P4F, 4, {0, 1, 2, 3}};

const TokenRule* ruleFor(const QString& type, bool gsMode) {
    if (gsMode) return type == QLatin1String("P4F") ? &kGsP4f : nullptr;
    for (const TokenRule& r : kRules)
        if (!r.type || type == QLatin1String(r.type)) return &r;
    return nullptr;
}

int selFileTypeOfKind(int kind) {
    switch (kind) {
    case 2: return Family::TM;
    case 3: return Family::QDF;
    case 4: return Family::N5F;
    default: return Family::VXF; // VXF and JLM
    }
}

} // namespace

namespace CommandFiles {

QStringList tokens(const QString& line) {
    QStringList out;
    if (line.startsWith(QLatin1Char('"'))) {
        const int count = int(line.count(QLatin1Char('"')) / 2);
        qsizetype pos = 0;
        for (int i = 0; i < count; ++i) {
            const qsizetype open = line.indexOf(QLatin1Char('"'), pos);
            const qsizetype close = line.indexOf(QLatin1Char('"'), open + 1);
            if (open < 0 || close < 0) break;
            out << line.mid(open + 1, close - open - 1);
            pos = close + 1;
        }
        return out;
    }
    if (line.isEmpty()) return out;
    return line.split(QLatin1Char(' '));
}

QString quotedCommandLine(const QStringList& paths) {
    QStringList quoted;
    for (const QString& p : paths) quoted << QLatin1Char('"') + p + QLatin1Char('"');
    return quoted.join(QLatin1Char(' '));
}

void ParseCommandFiles(const QString& commandLine, bool gsMode, SelectionLists& sel) {
    const QStringList list = tokens(commandLine);
    if (list.isEmpty()) return;
    sel.clear();
    int kind = -1;
    QStringList taken;
    for (const QString& token : list) {
        const QString type = token.right(3).toUpper();
        if (type == QLatin1String("VXB")) {
            taken = {token};
            kind = 0;
            break;
        }
        const TokenRule* rule = ruleFor(type, gsMode);
        if (!rule || std::ranges::find(rule->refusedBy, kind) != std::end(rule->refusedBy)) continue;
        if (!FileRecognition::CheckMagic(token, rule->family)) continue;
        taken << token;
        kind = rule->newKind;
    }
    if (kind == -1) return;
    if (kind == 0) {
        sel.append(taken.first(), 0, 0);
        sel.SelFileType = Family::VXB;
        return;
    }
    for (const QString& path : taken) {
        HeadInfo info;
        const bool ok = kind == 6 ? FileRecognition::ScanJlmHeader(path, info)
                                  : FileRecognition::ScanFileHeader(path, info, gsMode);
        if (!ok) continue;
        if (sel.SelFileCount == 0) sel.SelInterval = info.interval;
        else if (info.interval != sel.SelInterval) continue;
        sel.append(path, info.start, info.startMsec);
    }
    sel.SelFileType = selFileTypeOfKind(kind);
}

} // namespace CommandFiles

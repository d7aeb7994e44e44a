#include "recording/CommandFiles.h"

#include "recording/Families.h"
#include "recording/FileRecognition.h"

#include <QFileInfo>

#include <algorithm>

namespace {

// The kind of list a token of a family leaves behind and the earlier kinds that refuse it. A
// token of any family without a rule of its own is tried as TM.
struct TokenRule {
    int family;
    int newKind;
    int refusedBy[4];
};

const TokenRule kRules[] = {
    {Family::VXF, 1, {0, 2, 3, 4}}, {Family::QDF, 3, {0, 1, 2, 4}}, {Family::N5F, 4, {0, 1, 2, 3}},
    {Family::JLM, 6, {0, 2, 3, 4}}, {Family::TM, 2, {0, 1, 3, 4}},
};
const TokenRule kGsP4f{Family::P4F, 4, {0, 1, 2, 3}};

// The family a token names by its last three characters; TM when none does.
int familyOfToken(const QString& token) {
    const FamilyInfo* family = Families::byExtension(QLatin1Char('.') + token.right(3));
    return family ? family->code : Family::TM;
}

const TokenRule* ruleFor(int code, bool gsMode) {
    if (gsMode) return code == Family::P4F ? &kGsP4f : nullptr;
    for (const TokenRule& r : kRules)
        if (r.family == code) return &r;
    return &kRules[std::size(kRules) - 1];
}

int selFileTypeOfKind(int kind) {
    switch (kind) {
    case 2:
        return Family::TM;
    case 3:
        return Family::QDF;
    case 4:
        return Family::N5F;
    default:
        return Family::VXF; // VXF and JLM
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
    for (const QString& typed : list) {
        // Paths are made absolute at once: a hand-off resolves them in another folder.
        const QString token = typed.isEmpty() ? typed : QFileInfo(typed).absoluteFilePath();
        const int family = familyOfToken(token);
        if (family == Family::VXB) {
            taken = {token};
            kind = 0;
            break;
        }
        const TokenRule* rule = ruleFor(family, gsMode);
        if (!rule || std::ranges::find(rule->refusedBy, kind) != std::end(rule->refusedBy))
            continue;
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
        if (sel.SelFileCount == 0)
            sel.SelInterval = info.interval;
        else if (info.interval != sel.SelInterval)
            continue;
        sel.append(path, info.start, info.startMsec);
    }
    sel.SelFileType = selFileTypeOfKind(kind);
}

} // namespace CommandFiles

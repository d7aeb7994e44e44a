#include "recording/DroppedFiles.h"

#include "base/LanguageTable.h"
#include "base/ShowMsg.h"
#include "recording/Families.h"
#include "recording/FileRecognition.h"

#include <QMap>

namespace {

using FileRecognition::CheckMagic;

// Family of a dropped file by its extension (a file of no known extension may be TM); -1 when
// it is left out. In GS mode only the families GS mode offers are taken.
int classify(const QString& path, bool gsMode) {
    const FamilyInfo* family = Families::byExtension(FileRecognition::extensionOf(path));
    if (!family) family = Families::byCode(Family::TM);
    if (gsMode && !family->offeredIn(true)) return -1;
    return CheckMagic(path, family->code) ? family->code : -1;
}

} // namespace

namespace DroppedFiles {

bool OpenDroppedFiles(const QStringList& files, ViewState& view, bool gsMode, SelectionLists& sel) {
    const SelectionLists saved = sel;
    QMap<int, QStringList> byFamily;
    bool messageFiles = false;
    for (const QString& path : files) {
        const int family = classify(path, gsMode);
        if (family == Family::MSG) {
            view.MessageFiles.append(path);
            messageFiles = true;
        } else if (family >= 0) {
            byFamily[family].append(path);
        }
    }
    int chosen = -1;
    int best = 0;
    for (const FamilyInfo& f : Families::all()) {
        if (f.dropPriority > 0 && byFamily.contains(f.code) &&
            (chosen < 0 || f.dropPriority < best)) {
            chosen = f.code;
            best = f.dropPriority;
        }
    }
    if (chosen < 0) {
        if (!messageFiles) ShowMsg(kMsgWarning, MsgText(553), MsgText(217));
        return false;
    }
    sel.clear();
    sel.SelFileType = chosen;
    if (chosen == Family::VXB || chosen == Family::CSV) {
        sel.append(byFamily[chosen].first(), 0, 0);
        return true;
    }
    for (const QString& path : byFamily[chosen]) {
        HeadInfo info;
        const bool ok = chosen == Family::JLM ? FileRecognition::ScanJlmHeader(path, info)
                                              : FileRecognition::ScanFileHeader(path, info, gsMode);
        if (!ok || (sel.SelFileCount > 0 && info.interval != sel.SelInterval)) continue;
        if (sel.SelFileCount == 0) sel.SelInterval = info.interval;
        sel.append(path, info.start, info.startMsec);
    }
    if (sel.SelFileCount == 0) {
        sel = saved;
        ShowMsg(kMsgWarning, MsgText(561));
        return false;
    }
    return true;
}

} // namespace DroppedFiles

#include "recording/DroppedFiles.h"

#include "base/LanguageTable.h"
#include "base/ShowMsg.h"
#include "recording/FamilyCodes.h"
#include "recording/FileRecognition.h"

#include <QMap>

namespace {

using FileRecognition::CheckMagic;

// Family of a dropped file by its extension; -1 when it is left out.
int classify(const QString& path, bool gsMode) {
    const QString ext = FileRecognition::extensionOf(path);
    if (ext == QLatin1String(".VXB")) return Family::VXB;
    if (gsMode)
        return ext == QLatin1String(".P4F") && CheckMagic(path, Family::P4F) ? Family::P4F : -1;
    if (ext == QLatin1String(".CSV")) return Family::CSV;
    if (ext == QLatin1String(".JLM")) return Family::JLM;
    struct ByExt {
        const char* ext;
        int family;
    };
    static const ByExt kTested[] = {{".VXF", Family::VXF},
                                    {".QDF", Family::QDF},
                                    {".N5F", Family::N5F},
                                    {".P4F", Family::P4F},
                                    {".MSG", Family::MSG}};
    for (const ByExt& e : kTested)
        if (ext == QLatin1String(e.ext)) return CheckMagic(path, e.family) ? e.family : -1;
    return CheckMagic(path, Family::TM) ? Family::TM : -1;
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
    static const int kPriority[] = {Family::VXB, Family::CSV, Family::VXF, Family::TM,
                                    Family::QDF, Family::N5F, Family::P4F, Family::JLM};
    int chosen = -1;
    for (int family : kPriority) {
        if (byFamily.contains(family)) {
            chosen = family;
            break;
        }
    }
    if (chosen < 0) {
        if (!messageFiles) ShowMsg(2, MsgText(553), MsgText(217));
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
        ShowMsg(2, MsgText(561));
        return false;
    }
    return true;
}

} // namespace DroppedFiles

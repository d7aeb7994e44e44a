#include "recording/SelectionChooser.h"

#include "base/LanguageTable.h"
#include "base/ShowMsg.h"
#include "base/clsCommon.h"
#include "base/clsConst.h"
#include "recording/FamilyCodes.h"
#include "recording/FileRecognition.h"

#include <QFileInfo>

#include <algorithm>

namespace {

bool needsMagic(int family) {
    return family == Family::VXF || family == Family::QDF || family == Family::N5F ||
           family == Family::P4F || family == Family::TM;
}

bool scan(const QString& path, int family, bool gsMode, HeadInfo& info) {
    return family == Family::JLM ? FileRecognition::ScanJlmHeader(path, info)
                                 : FileRecognition::ScanFileHeader(path, info, gsMode);
}

} // namespace

int SelectionChooser::refuse(int message) {
    ShowMsg(kMsgWarning, MsgText(message), MsgText(217));
    return message;
}

int SelectionChooser::take(const QString& path, int family) {
    if (!QFileInfo(path).isFile()) return 0;
    Entry entry{path, family, 0, 0, 0};
    const bool message =
        family == Family::TM && FileRecognition::extensionOf(path) == QLatin1String(".MSG");
    if (message) entry.family = Family::MSG;
    if (!chosen_.isEmpty()) {
        const int listFamily =
            chosen_.first().family == Family::MSG ? Family::TM : chosen_.first().family;
        if (family != listFamily) return refuse(MsgId(551));
        if (family == Family::VXB || family == Family::CSV) return refuse(MsgId(552));
    }
    if (message) {
        if (!FileRecognition::CheckMagic(path, Family::MSG)) return refuse(MsgId(553));
        chosen_.append(entry);
        return 0;
    }
    if (needsMagic(family) && !FileRecognition::CheckMagic(path, family)) return refuse(MsgId(553));
    if (family == Family::VXB || family == Family::CSV) {
        if (family == Family::CSV) selectEnabled_ = false;
        chosen_.append(entry);
        return 0;
    }
    HeadInfo info;
    scan(path, family, gsMode_, info); // an unreadable head counts as zeros, as the list shows it
    entry.start = info.start, entry.msec = info.startMsec, entry.interval = info.interval;
    for (const Entry& e : chosen_) {
        if (e.family == Family::MSG) continue;
        if (e.path == path) return refuse(MsgId(554));
        if (e.interval != info.interval) return refuse(MsgId(556));
        if (gsMode_ && family == Family::P4F &&
            !clsCommon::IsReadable(info.interval, e.start, info.start, e.msec, info.startMsec))
            return refuse(MsgId(586));
    }
    chosen_.append(entry);
    return 0;
}

void SelectionChooser::unselect(int index) {
    if (index < 0 || index >= chosen_.size()) return;
    if (chosen_[index].family == Family::CSV) selectEnabled_ = true;
    chosen_.removeAt(index);
}

QStringList SelectionChooser::messageFiles() const {
    QStringList out;
    for (const Entry& e : chosen_)
        if (e.family == Family::MSG) out << e.path;
    return out;
}

qint64 SelectionChooser::dataSize(const QString& path, int family, bool gsMode) {
    HeadInfo info;
    if (family == Family::VXB || family == Family::CSV || !scan(path, family, gsMode, info))
        return 0;
    return qint64(info.channels) * info.points;
}

bool SelectionChooser::registerSelection(const QString& directory, SelectionLists& sel) {
    QList<Entry> files;
    for (const Entry& e : chosen_)
        if (e.family != Family::MSG) files << e;
    if (files.isEmpty()) {
        ShowMsg(kMsgWarning);
        return false;
    }
    directory_ = directory.endsWith(QLatin1Char('/')) ? directory : directory + QLatin1Char('/');
    std::stable_sort(files.begin(), files.end(), [](const Entry& a, const Entry& b) {
        return a.start != b.start ? a.start < b.start : a.msec < b.msec;
    });
    sel.clear();
    qint64 size = 0;
    for (const Entry& e : files) {
        HeadInfo info;
        if (e.family != Family::VXB && e.family != Family::CSV &&
            scan(e.path, e.family, gsMode_, info))
            sel.SelInterval = info.interval;
        sel.append(e.path, info.start, info.startMsec);
        size += dataSize(e.path, e.family, gsMode_);
    }
    sel.SelFileType = files.first().family;
    viewTitle_ = QFileInfo(files.first().path).fileName();
    const qint64 limit = clsConst::shared().MaximumAlarmCount();
    if (size > limit) {
        const QString text =
            MsgText(230) + QString::number(size) + QStringLiteral(" : ") + QString::number(limit);
        if (ShowMsg(kMsgQuestionNote, text) == kNo) {
            sel.clear();
            return false;
        }
    }
    return true;
}

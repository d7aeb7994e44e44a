#include "ftp/FtpListModel.h"

#include "base/LanguageTable.h"
#include "base/clsCommon.h"

void FtpListModel::setListing(const QString& curDir, const QList<FtpEntry>& entries) {
    beginResetModel();
    curDir_ = curDir;
    entries_ = entries;
    endResetModel();
}

const FtpEntry* FtpListModel::entryAt(int row) const {
    return row >= 1 && row <= entries_.size() ? &entries_[row - 1] : nullptr;
}

int FtpListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(entries_.size()) + 1;
}

int FtpListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : 4;
}

QVariant FtpListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const FtpEntry* entry = entryAt(index.row());
    const int column = index.column();
    if (role == kImageRole && column == 0) {
        if (!entry) return curDir_ == QLatin1String("/") ? kNoImage : kWayUp;
        return ftpEntryImage(*entry);
    }
    if (role == Qt::TextAlignmentRole && column >= 2)
        return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole) return {};
    if (!entry)
        return column == 0 && curDir_ == QLatin1String("/") ? QStringLiteral(". ") : QString();
    switch (column) {
    case 1:
        return entry->isDirectory() ? QStringLiteral("  ") + entry->Name : entry->Name;
    case 2:
        return entry->isDirectory() ? QString() : ftpSizeText(entry->Size);
    case 3:
        return entry->isDirectory() ? QString() : ftpDateText(entry->Date);
    default:
        return QString();
    }
}

QVariant FtpListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    switch (section) {
    case 0:
        return QStringLiteral(" ");
    case 1:
        return MsgText(MsgId(218));
    case 2:
        return MsgText(MsgId(219));
    case 3:
        return MsgText(MsgId(220));
    default:
        return {};
    }
}

int ftpEntryImage(const FtpEntry& entry) {
    if (entry.isDirectory()) return FtpListModel::kFolder;
    const QString ext = entry.Name.right(4).toUpper();
    if (ext == QLatin1String(".QDF") || ext == QLatin1String(".PRM")) return FtpListModel::kQdfFile;
    if (ext == QLatin1String(".VXF") || ext == QLatin1String(".VXN")) return FtpListModel::kVxfFile;
    return FtpListModel::kFile;
}

QString ftpSizeText(double size, const VbFormat::Separators& seps) {
    const qint64 whole = VbFormat::roundHalfEven(size);
    const qint64 kilobytes = whole / 1024;
    if (kilobytes == 0) return VbFormat::formatNumber(size, QStringLiteral("#,##0"), seps) + u'B';
    return VbFormat::formatNumber(double(kilobytes), QStringLiteral("#,##0"), seps) +
           QStringLiteral("KB");
}

QString ftpDateText(const std::optional<qint64>& date) {
    if (!date) return QString();
    const clsCommon& common = clsCommon::shared();
    return VbFormat::formatSeconds(*date,
                                   common.GetLongDateFormat(-1) + u' ' + common.GetTimeFormat(2),
                                   VbFormat::Separators::system());
}

QString ftpChosenPath(const QString& curDir, const QString& name) {
    return (curDir + u'/' + name).mid(1);
}

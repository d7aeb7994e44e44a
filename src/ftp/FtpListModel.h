#pragma once

#include "ftp/FtpEntry.h"

#include "base/VbFormat.h"

#include <QAbstractTableModel>
#include <QList>

// The listing of one remote directory as the folder window shows it: 4 columns (picture, name,
// size, date), row 0 the way up (". " at the root). Shared by every window that browses.
class FtpListModel final : public QAbstractTableModel {
    Q_OBJECT
public:
    // The picture of a row, asked for with kImageRole.
    enum Image { kNoImage = 0, kFolder = 1, kFile = 2, kWayUp = 3, kQdfFile = 4, kVxfFile = 5 };
    static constexpr int kImageRole = Qt::UserRole + 1;

    using QAbstractTableModel::QAbstractTableModel;

    void setListing(const QString& curDir, const QList<FtpEntry>& entries);
    QString curDir() const { return curDir_; }
    // The entry of a row from 1 on; nullptr for row 0 and outside.
    const FtpEntry* entryAt(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString curDir_ = QStringLiteral("/");
    QList<FtpEntry> entries_;
};

// The picture of an entry: folder, or by the last four characters of the name.
int ftpEntryImage(const FtpEntry& entry);
// The size column: whole kilobytes with "KB", or the bytes with "B" below 1 KB ("1,023B").
QString ftpSizeText(double size, const VbFormat::Separators& seps = VbFormat::Separators::system());
// The date column: the long date of the locale's order, a blank and "hh:nn".
QString ftpDateText(const std::optional<qint64>& date);
// The path the folder window hands back: curDir & "/" & name without its first character.
QString ftpChosenPath(const QString& curDir, const QString& name);

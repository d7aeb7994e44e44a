#pragma once

#include "recording/FileBytes.h"

#include <QString>
#include <QVector>
#include <QtGlobal>

// The batch block of a recording: batch name, lot number and titled texts, read from the bytes
// of a VXF file (the head at the layout's batch base, the texts behind the body) and kept with
// the view, in a saved archive as "BatchInfo.sys".
class clsBatchInfo {
public:
    static constexpr int kHeadBytes = 28;
    static constexpr int kTextBytes = 16;

    // Reads the head, and the texts when there are any. Any read outside the bytes gives false
    // and leaves the object empty.
    bool ReadBatchInfo(qint64 headOffset, qint64 textOffset, const FileBytes& bytes);

    qint16 BatchTextCount() const { return qint16(titles_.size()); }
    QString BatchName() const { return name_; }
    QString LotNumber() const { return lot_; }
    // Index from 0; "" outside the texts.
    QString GetBatchTextTitle(int index) const { return titles_.value(index); }
    QString GetBatchTextContext(int index) const { return contexts_.value(index); }
    bool HasBatchInfo() const { return !titles_.isEmpty(); }
    quint8 flag(int which) const { return which == 0 ? flag0_ : flag1_; }

    // "BatchInfo.sys": the head fields, then a count and the (title, context) pairs, in our
    // little-endian frame. Save writes under a temporary name and renames; Load of a missing,
    // short or inconsistent file leaves the object empty and gives false.
    bool Save(const QString& path) const;
    bool Load(const QString& path);

    void clear() { *this = clsBatchInfo(); }
    bool operator==(const clsBatchInfo&) const = default;

private:
    QString name_;
    QString lot_;
    quint8 flag0_ = 0;
    quint8 flag1_ = 0;
    QVector<QString> titles_;
    QVector<QString> contexts_;
};

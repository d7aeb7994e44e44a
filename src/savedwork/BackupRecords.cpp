#include "savedwork/BackupRecords.h"

#include "savedwork/RecordBytes.h"
#include "savedwork/RecordNames.h"
#include "trend/TrendViewState.h"

#include <QString>

namespace {

const QString kWindBak = QStringLiteral("WindBak");
const QString kTrndBak = QStringLiteral("TrndBak");
const QString kMultiScaleBak = QStringLiteral("MultiScaleBak");

template <typename Rec> bool writeBackup(const QString& stem, int viewNumber, const Rec& record) {
    return RecordFile::write(RecordNames::backupPath(stem, viewNumber), record.toBytes());
}

template <typename Rec> bool readBackup(const QString& stem, int viewNumber, Rec& record) {
    QByteArray bytes;
    if (!RecordFile::read(RecordNames::backupPath(stem, viewNumber), bytes) || bytes.isEmpty())
        return false;
    record.fromBytes(bytes);
    return true;
}

} // namespace

QByteArray WindBakRecord::toBytes() const {
    RecordWriter w;
    w.i16(WindowState);
    w.i32s(Window);
    return w.bytes();
}

void WindBakRecord::fromBytes(const QByteArray& bytes) {
    RecordReader r(bytes);
    WindowState = r.i16();
    r.i32s(Window);
}

QByteArray TrndBakRecord::toBytes() const {
    return QByteArray(reinterpret_cast<const char*>(Bytes.data()), kLength);
}

void TrndBakRecord::fromBytes(const QByteArray& bytes) {
    Bytes.fill(0);
    for (qsizetype i = 0; i < qMin<qsizetype>(bytes.size(), kLength); ++i)
        Bytes[size_t(i)] = quint8(bytes[i]);
}

QByteArray MultiScaleBakRecord::toBytes() const {
    RecordWriter w;
    w.i32(Flag);
    for (const auto& row : Entries) w.f64s(row);
    return w.bytes();
}

void MultiScaleBakRecord::fromBytes(const QByteArray& bytes) {
    RecordReader r(bytes);
    Flag = r.i32();
    for (auto& row : Entries) r.f64s(row);
}

bool WriteWindBak(int viewNumber, const WindBakRecord& record) {
    return writeBackup(kWindBak, viewNumber, record);
}

bool ReadWindBak(int viewNumber, WindBakRecord& record) {
    return readBackup(kWindBak, viewNumber, record);
}

bool WriteTrndBak(int viewNumber, const TrndBakRecord& record) {
    return writeBackup(kTrndBak, viewNumber, record);
}

bool ReadTrndBak(int viewNumber, TrndBakRecord& record) {
    return readBackup(kTrndBak, viewNumber, record);
}

bool WriteMultiScaleBak(int viewNumber) {
    const TrendViewState& t = trendState(viewNumber);
    MultiScaleBakRecord record;
    record.Flag = t.MultiScaleFlag;
    record.Entries = t.MultiScale;
    return writeBackup(kMultiScaleBak, viewNumber, record);
}

bool ReadMultiScaleBak(int viewNumber) {
    MultiScaleBakRecord record;
    if (!readBackup(kMultiScaleBak, viewNumber, record)) return false;
    TrendViewState& t = trendState(viewNumber);
    t.MultiScaleFlag = record.Flag;
    t.MultiScale = record.Entries;
    return true;
}

void ResetMultiScaleBak(int viewNumber) {
    for (auto& row : trendState(viewNumber).MultiScale) row = {0.0, 0.0};
}

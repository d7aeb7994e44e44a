#include "recording/VxfFormat.h"

#include "base/TimeBase.h"
#include "recording/BatchInfoHook.h"
#include "recording/CellFormat.h"
#include "recording/ColorMaps.h"
#include "recording/RecordingLimits.h"
#include "recording/RowBlocks.h"

#include <QFileInfo>

#include <algorithm>

namespace {

constexpr int kAlarmRecordSize = 14;

qint64 saturatingMul(qint64 a, qint64 b) {
    qint64 r;
    return __builtin_mul_overflow(a, b, &r) ? INT64_MAX : r;
}
qint64 saturatingAdd(qint64 a, qint64 b) {
    qint64 r;
    return __builtin_add_overflow(a, b, &r) ? INT64_MAX : r;
}
const char* const kModeSuffix[] = {"", "-AVE", "-MAX", "-MIN"};

} // namespace

void VxfFormat::readHead(const FileLoad& load) {
    head_ = VxfHead::read(load.bytes);
    // The batch text belongs to the whole file; a file too short for it has none.
    const qint64 at = head_.layout->batchText;
    batchText_ = load.bytes.has(at, 16) ? load.bytes.ReadText(at, 16) : QString();
    if (load.fileIndex == 0) fillProperty(load);
}

void VxfFormat::fillProperty(const FileLoad& load) const {
    clsDataFileProperty& p = load.view.DataProperty;
    p.start = head_.StartTime;
    p.end = head_.StartTime + qint64(double(head_.Interval) / 10 * head_.RowCount);
    p.intervalTenths = int(head_.Interval);
    p.rowCount = head_.RowCount;
    p.typeText = QStringLiteral("TARNO Graphic recorder");
    p.modelText = load.bytes.has(2550, 17) ? load.bytes.ReadText(2550, 17) : QString();
    p.versionText = load.bytes.has(2567, 9) ? load.bytes.ReadText(2567, 9) : QString();
    p.fileName = load.view.FileName.value(0);
    p.filled = true;
}

// Offsets of the blocks behind the rows; corrupt counts saturate instead of overflowing.
qint64 VxfFormat::messageBase() const {
    return saturatingAdd(head_.DataOffset, saturatingMul(head_.RowSize, head_.RowCount));
}

void VxfFormat::readMessages(const FileLoad& load) {
    const FileBytes& b = load.bytes;
    const qint64 size = head_.MessageSize;
    for (quint32 i = 0; i < head_.MessageCount; ++i) {
        const qint64 at = saturatingAdd(messageBase(), saturatingMul(size, i));
        // Records that begin beyond the end of the file hold nothing; stop there.
        if (at >= b.size() || (size == 0 && i > 0)) break;
        ViewMessage m;
        if (b.has(at, 4)) m.time = b.ReadU32Le(at);
        if (b.has(at + 4, 4)) m.msec = int(b.ReadU32Le(at + 4) * 100);
        if (size > 12 && b.has(at + 8, size - 12)) m.text = b.ReadText(at + 8, size - 12);
        if (size >= 4 && b.has(at + size - 4, 4)) m.type = int(b.ReadU32Le(at + size - 4));
        load.view.ViewMessages.append(m);
    }
}

QString VxfFormat::channelTag(const FileBytes& b, int channel, const char* suffix) const {
    const QString tag = b.ReadText(head_.layout->tags + 16 * qint64(channel - 1), 16).trimmed();
    if (tag.isEmpty()) {
        const int number = b.ReadByte(44 + channel - 1) + 1;
        return QStringLiteral("No%1").arg(number) + QLatin1String(suffix);
    }
    return tag.size() >= 7 ? tag : tag + QLatin1String(suffix);
}

void VxfFormat::fillChannels(const FileLoad& load, int channelBase) {
    const FileBytes& b = load.bytes;
    ChannelTable& t = load.view.Channels;
    const VxfLayout& l = *head_.layout;
    const ColorMap& colors = ColorMapForVxMagic(load.view.ColorMapMagic);
    int ch = channelBase;
    for (quint32 i = 1; i <= head_.ChannelCount; ++i) {
        const qint64 block = l.channelBlock + 16 * qint64(i - 1);
        const int exp = b.ReadByte(block) == 0 ? 0 : b.ReadByte(l.decimals + 2 * qint64(i - 1)) + 1;
        const QString unit = b.ReadText(l.units + 9 * qint64(i - 1), 9).trimmed();
        const quint32 color = colors.GetColor(b.ReadByte(block + 13));
        const bool pair = head_.DataMode == 4;
        for (int half = 0; half < (pair ? 2 : 1); ++half) {
            if (++ch > MaxChannels) return;
            const char* suffix = pair                 ? (half == 0 ? "-MIN" : "-MAX")
                                 : head_.DataMode < 4 ? kModeSuffix[head_.DataMode]
                                                      : "";
            t.setTag(ch, channelTag(b, int(i), suffix));
            t.setUnit(ch, unit);
            t.ChColor[size_t(ch)] = color;
            t.ChExpDigits[size_t(ch)] = qint16(exp);
        }
    }
}

void VxfFormat::readAlarmHistory(const FileLoad& load) {
    const FileBytes& b = load.bytes;
    const qint64 counters = head_.alarmCounterOffset();
    const quint16 alarmSize = b.ReadU16Le(counters);
    ViewAlarmEvents& events = load.view.AlarmEvents;
    if (events.files.size() <= load.fileIndex) events.files.resize(load.fileIndex + 1);
    const qint64 base =
        saturatingAdd(messageBase(), saturatingMul(head_.MessageSize, head_.MessageCount));
    // The batch block lies behind the alarm records; with another record size it is looked for
    // at the wrong place, which finds nothing.
    const quint16 count = alarmSize == kAlarmRecordSize ? b.ReadU16Le(counters + 2) : 0;
    load.view.BatchInfoFound = ReadBatchInfo(
        load.view, b, saturatingAdd(base, qint64(alarmSize) * count), head_.layout->batchBase);
    if (alarmSize != kAlarmRecordSize) return;
    QVector<AlarmSequence>& sequences = events.files[load.fileIndex];
    bool closed = true;
    for (int i = 0; i < count; ++i) {
        const qint64 at = saturatingAdd(base, kAlarmRecordSize * qint64(i));
        const quint32 word0 = b.ReadU32Le(at), word1 = b.ReadU32Le(at + 4);
        const quint8 state = b.ReadByte(at + 10), mask = b.ReadByte(at + 11);
        // The value is read as 4 bytes; the last record's upper half may lie beyond the file.
        quint32 value =
            i + 1 == count && !b.has(at + 12, 4) ? b.ReadU16Le(at + 12) : b.ReadU32Le(at + 12);
        AlarmEvent e;
        e.EventTime = closed ? TimeBase::isoText(word0) : QString::number(word0);
        e.EventMsec = QString::number(closed ? qint64(word1) * 100 : qint64(word1));
        e.EventChannel = QString::number(b.ReadU16Le(at + 8));
        e.EventKind = (state >> 4) & 0x3;
        e.EventLevel = state & 0x0F;
        e.EventMaskHigh = mask >> 4;
        e.EventMaskLow = mask & 0x0F;
        e.EventValue = QString::number(value);
        if (closed) {
            sequences.append(AlarmSequence());
            ++events.sequenceCount;
        }
        sequences.last().append(e);
        closed = e.EventKind == 0;
    }
}

void VxfFormat::readSamples(const FileLoad& load, int channelBase, qint64 rowOffset) {
    const FileBytes& b = load.bytes;
    const qint64 columns = head_.columns();
    const bool pair = head_.DataMode == 4;
    const qint64 rowBytes = columns * (pair ? 3 : 4);
    const qint64 rows = head_.RowCount;
    // Checked by division: a corrupt count must not overflow or allocate beyond the file.
    b.require(head_.DataOffset, 0);
    if (rows > 0 && rowBytes > (b.size() - head_.DataOffset) / rows) throw ReadPastEnd();
    const qint64 firstFileRow = std::max<qint64>(1, 1 - rowOffset);
    if (firstFileRow > rows) return;
    const int first = int(rowOffset + firstFileRow), last = int(rowOffset + rows);
    const int stored = int(std::clamp<qint64>(MaxChannels - channelBase, 0, columns));

    clsStorage& store = load.view.Storage;
    std::vector<quint16*> values(static_cast<size_t>(stored)), alarms(static_cast<size_t>(stored));
    for (int p = 0; p < stored; ++p) {
        const int ch = channelBase + p + 1;
        const int exp = load.view.Channels.ChExpDigits[size_t(ch)];
        const CellFormat format =
            exp ? CellFormat::float2(exp - 1)
                : CellFormat::plain(b.ReadByte(head_.layout->decimals + 2 * (pair ? p / 2 : p)));
        values[size_t(p)] = store.beginSegment(2 * ch, first, last, format);
        alarms[size_t(p)] = store.beginSegment(2 * ch - 1, first, last, CellFormat::alarm());
    }
    // Rows are transposed into columns in blocks, so that each column is written sequentially
    // while the block of file rows stays in the cache.
    const uchar* data = b.data() + head_.DataOffset;
    const auto decodeBlock = [&](qint64 r0, qint64 r1) {
        for (int p = 0; p < stored; ++p) {
            quint16* const value = values[size_t(p)] + rowOffset;
            quint16* const alarm = alarms[size_t(p)] + rowOffset;
            const bool maximum = pair && p % 2 == 1;
            const uchar* s =
                data + (r0 - 1) * rowBytes + (pair ? 3 * p - (maximum ? 1 : 0) : 4 * p);
            for (qint64 r = r0; r <= r1; ++r, s += rowBytes) {
                value[r] = quint16(s[0] | s[1] << 8);
                // A pair's maximum column takes two characters from the pair's first alarm byte.
                alarm[r] = !pair     ? AlarmCell::fromBytes(s[2], s[3])
                           : maximum ? AlarmCell::fromByte(s[2])
                                     : AlarmCell::fromBytes(s[4], s[5]);
            }
        }
    };
    RowBlocks::decode(load, firstFileRow, rows, head_.DataOffset, rowBytes, decodeBlock);
}

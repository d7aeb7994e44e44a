#include "recording/NpFormat.h"

#include "base/TimeBase.h"
#include "recording/CellFormat.h"
#include "recording/ColorMaps.h"
#include "recording/RecordingLimits.h"
#include "recording/SampleRules.h"

#include <algorithm>

namespace {

constexpr qint64 kRowTime = 4;

} // namespace

void NpFormat::readHead(const FileLoad& load) {
    const FileBytes& b = load.bytes;
    head_ = NpHead::read(b);
    start_ = TimeBase::fromUnixSeconds(b.ReadU32Le(head_.dataStart));
    // A count that the file cannot hold is a read past its end, before anything is sized.
    const qint64 rowBytes = kRowTime + sampleBytes() * columns();
    const qint64 room = b.size() - head_.dataStart;
    if (head_.RowCount > 0 && rowBytes > room / qint64(head_.RowCount)) throw ReadPastEnd();
}

void NpFormat::fillChannels(const FileLoad& load, int channelBase) {
    const FileBytes& b = load.bytes;
    ChannelTable& t = load.view.Channels;
    const qint64 table = head_.TableOffset;
    const qint64 stride = load.gsMode ? 80 : head_.Version < 3 ? 52 : b.ReadU16Be(table + 14);
    const ColorMap& colors = load.gsMode ? ColorMapOfGSSeries() : ColorMapOfNPSeries();
    int ch = channelBase;
    for (quint32 i = 1; i <= head_.ChannelCount; ++i) {
        const qint64 entry = table + stride * (i - 1);
        QString tag = b.ReadText(entry + 20, 12).trimmed();
        if (tag.isEmpty()) tag = QStringLiteral("No%1").arg(b.ReadU16Be(entry + 18));
        const QString unit = b.ReadText(entry + 32, 12).trimmed();
        const quint32 color = colors.GetColor(b.ReadU16Be(entry + 66));
        for (int half = 0; half < (pairs() ? 2 : 1); ++half) {
            if (++ch > MaxChannels) return;
            t.setTag(ch, pairs() ? tag + QLatin1String(half == 0 ? " -min" : " -max") : tag);
            t.setUnit(ch, unit);
            t.ChColor[size_t(ch)] = color;
            t.ChExpDigits[size_t(ch)] = 0;
        }
    }
}

void NpFormat::readSamples(const FileLoad& load, int channelBase, qint64 rowOffset) {
    const FileBytes& b = load.bytes;
    const qint64 rows = head_.RowCount;
    const qint64 firstFileRow = std::max<qint64>(1, 1 - rowOffset);
    if (firstFileRow > rows) return;
    const int first = int(rowOffset + firstFileRow), last = int(rowOffset + rows);
    const int stored = int(std::clamp<qint64>(MaxChannels - channelBase, 0, columns()));
    const CellFormat format = floats() ? CellFormat::float32() : CellFormat::plain(0);

    clsStorage& store = load.view.Storage;
    QVector<quint16*> values(stored), high(stored), alarms(stored);
    for (int p = 0; p < stored; ++p) {
        const int ch = channelBase + p + 1;
        values[p] = store.beginSegment(2 * ch, first, last, format);
        if (floats()) high[p] = store.highCells(2 * ch);
        alarms[p] = store.beginSegment(2 * ch - 1, first, last, CellFormat::alarm());
    }
    const qint64 size = sampleBytes();
    const qint64 rowBytes = kRowTime + size * columns();
    const uchar* data = b.data() + head_.dataStart;
    for (qint64 r = firstFileRow; r <= rows; ++r) {
        if ((r & 1023) == 0) load.pollRows(r, rows);
        const uchar* row = data + (r - 1) * rowBytes + kRowTime;
        const qint64 storeRow = rowOffset + r;
        for (int p = 0; p < stored; ++p) {
            const uchar* s = row + size * p;
            values[p][storeRow] = quint16(s[0] | s[1] << 8);
            if (floats()) high[p][storeRow] = quint16(s[2] | s[3] << 8);
            alarms[p][storeRow] = SampleRules::alarmBitDigits(s[size - 1] & 0x0F);
        }
    }
}

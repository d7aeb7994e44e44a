#include "recording/TmFormat.h"

#include "recording/ColorMaps.h"
#include "recording/FamilyCodes.h"
#include "recording/RecordingLimits.h"
#include "recording/SampleRules.h"

#include <algorithm>

namespace {

constexpr qint64 kBlockSize = 84;
constexpr qint64 kEntrySize = 60;

// Scale ends are written with "." whatever the locale; a blank or unreadable end makes every
// cell of the channel "N.DATA".
CellFormat scaleFormat(const QString& low, const QString& high, bool log) {
    CellFormat f;
    f.kind = log ? CellFormat::Kind::TmLog : CellFormat::Kind::TmAnalog;
    bool okLow = false, okHigh = false;
    f.scaleLow = low.trimmed().toFloat(&okLow);
    f.scaleHigh = high.trimmed().toFloat(&okHigh);
    f.emptyScale = !okLow || !okHigh;
    f.decimals = qint8(std::min(SampleRules::decimalsOf(high), 127));
    return f;
}

} // namespace

void TmFormat::readHead(const FileLoad& load) {
    const FileBytes& b = load.bytes;
    head_ = TmHead::read(b, format_);
    // Any other pair flag leaves the row size undetermined: the file cannot be read.
    if (head_.PairFlag != '0' && head_.PairFlag != '1') throw ReadPastEnd();
    const qint64 columns = head_.columns();
    const qint64 data = std::max<qint64>(0, b.size() - head_.dataStart());
    rows_ = columns ? data / (2 * columns) : 0;
    channels_.clear();
    for (int p = 1; p <= head_.ChannelList.size(); ++p) channels_.append(readChannel(b, p));
}

TmFormat::Channel TmFormat::readChannel(const FileBytes& b, int position) const {
    Channel c;
    c.number = head_.ChannelList[position - 1];
    const qint64 z = (format_ == Format::TM12 ? 888 : 528) + kBlockSize * (c.number - 1);
    const quint8 type = b.ReadByte(z);
    c.log = type == '6';
    qint64 scaleAt = z + 2, unitAt = z + 30, tagAt = z + 36, colorAt = z + 48;
    if (type == '0') {
        // Analogue inputs keep their texts in the 60-byte table; the scale only for the first
        // channels of the list.
        const qint64 e = kEntrySize * (c.number - 1);
        if (position <= format_) scaleAt = 182 + e;
        unitAt = 206 + e, tagAt = 212 + e, colorAt = 224 + e;
    }
    c.scaleLow = b.ReadText(scaleAt, 6);
    c.scaleHigh = b.ReadText(scaleAt + 6, 6);
    c.unit = b.ReadText(unitAt, 6).trimmed();
    c.tag = b.ReadText(tagAt, 10).trimmed();
    const quint8 color = b.ReadByte(colorAt);
    c.colorCode = color >= '0' && color <= '9' ? color - '0' : 0;
    c.format = scaleFormat(c.scaleLow, c.scaleHigh, c.log);
    return c;
}

void TmFormat::fillChannels(const FileLoad& load, int channelBase) {
    ChannelTable& t = load.view.Channels;
    const bool pair = head_.PairFlag == '1';
    int ch = channelBase;
    for (const Channel& c : channels_) {
        const QString tag = c.tag.isEmpty() ? QStringLiteral("CH%1").arg(c.number) : c.tag;
        for (int half = 0; half < (pair ? 2 : 1); ++half) {
            if (++ch > MaxChannels) return;
            t.setTag(ch, pair ? tag + QLatin1String(half == 0 ? " -min" : " -max") : tag);
            t.setUnit(ch, c.unit);
            t.ChScaleLow[size_t(ch)] = c.scaleLow;
            t.ChScaleHigh[size_t(ch)] = c.scaleHigh;
            t.ChLogFlag[size_t(ch)] = c.log;
            t.ChColor[size_t(ch)] = ColorMapOfTMSeries().GetColor(c.colorCode);
            t.ChExpDigits[size_t(ch)] = 0;
        }
    }
}

void TmFormat::readSamples(const FileLoad& load, int channelBase, qint64 rowOffset) {
    const FileBytes& b = load.bytes;
    const int columns = head_.columns();
    const qint64 firstFileRow = std::max<qint64>(1, 1 - rowOffset);
    if (firstFileRow > rows_) return;
    const int first = int(rowOffset + firstFileRow), last = int(rowOffset + rows_);
    const int stored = int(std::clamp<qint64>(MaxChannels - channelBase, 0, columns));
    const int perChannel = head_.PairFlag == '1' ? 2 : 1;

    clsStorage& store = load.view.Storage;
    QVector<quint16*> values(stored);
    for (int p = 0; p < stored; ++p) {
        const int ch = channelBase + p + 1;
        values[p] = store.beginSegment(2 * ch, first, last, channels_[p / perChannel].format);
        // Every TM sample has the alarm text "0000".
        quint16* alarms = store.beginSegment(2 * ch - 1, first, last, CellFormat::alarm());
        std::fill(alarms + first, alarms + last + 1, AlarmCell::kNone);
    }
    const qint64 rowBytes = 2 * qint64(columns);
    const uchar* data = b.data() + head_.dataStart();
    for (qint64 r = firstFileRow; r <= rows_; ++r) {
        if ((r & 1023) == 0) load.pollRows(r, rows_);
        const uchar* row = data + (r - 1) * rowBytes;
        const qint64 storeRow = rowOffset + r;
        for (int p = 0; p < stored; ++p)
            values[p][storeRow] = quint16(row[2 * p] | row[2 * p + 1] << 8);
    }
}

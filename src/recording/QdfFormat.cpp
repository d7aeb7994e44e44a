#include "recording/QdfFormat.h"

#include "recording/CellFormat.h"
#include "recording/ColorMaps.h"
#include "recording/RecordingLimits.h"
#include "recording/SampleRules.h"

#include <algorithm>
#include <bit>

namespace {

constexpr qint64 kRowHead = 8;
constexpr int kGroupChannels = 12;

} // namespace

void QdfFormat::readHead(const FileLoad& load) {
    const FileBytes& b = load.bytes;
    head_ = QdfHead::read(b);
    start_ = b.ReadU32Be(QdfHead::kFirstRow + 4);
    rows_ = std::max<qint64>(0, head_.rowCount(b.size()));
    buildGroupTable();
    // Decimal words of the channels, read once for the whole file.
    for (Channel& c : channels_) c.decimals = b.ReadU16Be(48 + 2 * (c.number - 1) + 8 * c.group);
}

void QdfFormat::buildGroupTable() {
    channels_.clear();
    qint64 at = 0; // behind the row head
    for (int g = 0; g < 5; ++g) {
        const quint16 mask = head_.GroupMask[g];
        levelFlags_[g] = (mask >> 12) & 0xF;
        const int count = std::popcount(unsigned(mask & 0x0FFF));
        const qint64 levelsAt = at + 2 * count;
        for (int k = 0; k < kGroupChannels; ++k) {
            if (!(mask & (1 << k))) continue;
            Channel c;
            c.number = g * kGroupChannels + k + 1;
            c.group = g;
            c.valueAt = at;
            c.levelsAt = levelsAt;
            at += 2;
            channels_.append(c);
        }
        // Level words lie behind the group's values, even in a group without channels.
        at += 2 * std::popcount(unsigned(levelFlags_[g]));
    }
    rowBytesRead_ = at;
}

void QdfFormat::fillChannels(const FileLoad& load, int channelBase) {
    ChannelTable& t = load.view.Channels;
    for (int i = 0; i < channels_.size(); ++i) {
        const int ch = channelBase + i + 1;
        if (ch > MaxChannels) return;
        t.setTag(ch, QStringLiteral("CH%1").arg(channels_[i].number));
        t.setUnit(ch, QString());
        t.ChColor[size_t(ch)] = ColorMapOfVXSeries().GetColor((i + 1) % kGroupChannels);
        t.ChExpDigits[size_t(ch)] = 0;
    }
}

quint16 QdfFormat::alarmCell(const uchar* row, const Channel& c) const {
    const int levels = levelFlags_[c.group];
    if (levels == 0) return AlarmCell::kNone;
    const int bit = (c.number - 1) % kGroupChannels;
    quint8 active = 0;
    const uchar* word = row + c.levelsAt;
    for (int level = 0; level < 4; ++level) {
        if (!(levels & (1 << level))) continue;
        const quint16 w = quint16(word[0] << 8 | word[1]);
        if (w & (1 << bit)) active |= quint8(1 << level);
        word += 2;
    }
    return SampleRules::alarmBitDigits(active);
}

void QdfFormat::readSamples(const FileLoad& load, int channelBase, qint64 rowOffset) {
    const FileBytes& b = load.bytes;
    const qint64 rowSize = head_.RowSize();
    // Only the last row can fall short of the file; a shorter tail is no row at all.
    if (rows_ > 0) b.require(QdfHead::kFirstRow + rowSize * (rows_ - 1) + kRowHead, rowBytesRead_);
    const qint64 firstFileRow = std::max<qint64>(1, 1 - rowOffset);
    if (firstFileRow > rows_) return;
    const int first = int(rowOffset + firstFileRow), last = int(rowOffset + rows_);
    const int stored = int(std::clamp<qint64>(MaxChannels - channelBase, 0, channels_.size()));

    clsStorage& store = load.view.Storage;
    QVector<quint16*> values(stored), alarms(stored);
    for (int p = 0; p < stored; ++p) {
        const int ch = channelBase + p + 1;
        const int decimals = std::min(channels_[p].decimals, 127);
        values[p] = store.beginSegment(2 * ch, first, last, CellFormat::plain(decimals));
        alarms[p] = store.beginSegment(2 * ch - 1, first, last, CellFormat::alarm());
    }
    const uchar* data = b.data() + QdfHead::kFirstRow + kRowHead;
    for (qint64 r = firstFileRow; r <= rows_; ++r) {
        if ((r & 1023) == 0) load.pollRows(r, rows_);
        const uchar* row = data + (r - 1) * rowSize;
        const qint64 storeRow = rowOffset + r;
        for (int p = 0; p < stored; ++p) {
            const uchar* v = row + channels_[p].valueAt;
            values[p][storeRow] = quint16(v[0] << 8 | v[1]);
            alarms[p][storeRow] = alarmCell(row, channels_[p]);
        }
    }
}

#include "recording/FamilyHeads.h"

#include "base/TimeBase.h"
#include "recording/FamilyCodes.h"

#include <bit>
#include <cmath>

namespace {

const VxfLayout kNarrow{44, 88, 792, 1188, 1892, 1980, 2048};
const VxfLayout kWide{56, 100, 996, 1500, 2396, 2508, 2576};

int digitsValue(const QString& text, bool& ok) {
    ok = !text.isEmpty();
    int value = 0;
    for (QChar c : text) {
        if (!c.isDigit())
            ok = false;
        else
            value = value * 10 + c.digitValue();
    }
    return value;
}

} // namespace

bool magicStartsWith(const QByteArray& magic, std::initializer_list<const char*> heads) {
    for (const char* h : heads)
        if (magic.startsWith(h)) return true;
    return false;
}

int formatOfMagic(const QByteArray& magic, bool gsMode) {
    if (magic == "TM00" || magic == "TM01") return Format::TM6;
    if (magic == "TM10" || magic == "TM11") return Format::TM12;
    if (magic == "QD30" || magic == "QD31" || magic == "QD10") return Format::QDF;
    if (gsMode)
        return magicStartsWith(magic, {"PA4", "PB4", "PC4", "PD4"}) ? Format::NP : Format::VXF;
    return magic.startsWith("NP5") ? Format::NP : Format::VXF;
}

VxfHead VxfHead::read(const FileBytes& b) {
    VxfHead h;
    h.magic = b.magic();
    const bool wide = magicStartsWith(h.magic, {"VX3", "W3N"});
    h.knownMagic = wide || magicStartsWith(h.magic, {"VX1", "VX2", "W2N"});
    h.layout = wide ? &kWide : &kNarrow;
    h.DataOffset = b.ReadU32Le(4);
    h.ChannelCount = b.ReadU32Le(8);
    h.DataMode = b.ReadU32Le(12);
    h.RowSize = b.ReadU32Le(16);
    h.RowCount = b.ReadU32Le(20);
    h.MessageSize = h.knownMagic ? b.ReadU32Le(24) : 44;
    h.MessageCount = b.ReadU32Le(28);
    h.StartTime = b.ReadU32Le(32);
    h.StartTenths = b.ReadByte(36);
    h.Interval = b.ReadU32Le(40);
    return h;
}

qint64 VxfHead::alarmCounterOffset() const {
    return magic.startsWith("W2N") ? 2000 : 2528;
}

int QdfHead::channelCount() const {
    int n = 0;
    for (quint16 mask : GroupMask) n += std::popcount(unsigned(mask & 0x0FFF));
    return n;
}

QdfHead QdfHead::read(const FileBytes& b) {
    QdfHead h;
    h.RowPayload = b.ReadU16Be(30);
    h.Interval = b.ReadU32Be(32);
    for (int g = 0; g < 5; ++g) h.GroupMask[g] = b.ReadU16Be(36 + 2 * g);
    return h;
}

TmHead TmHead::read(const FileBytes& b, int format) {
    TmHead h;
    h.format = format;
    b.require(16, 14);
    b.require(42, 5);
    h.startText = QString::fromLatin1(reinterpret_cast<const char*>(b.data()) + 16, 14);
    h.intervalText = QString::fromLatin1(reinterpret_cast<const char*>(b.data()) + 42, 5);
    h.PairFlag = char(b.ReadByte(48));
    b.require(58, 60);
    for (int i = 0; i < 30; ++i) {
        bool ok = false;
        // A pair of digits, blanks around them allowed; "  " or any other text ends the list.
        const int n = digitsValue(
            QString::fromLatin1(reinterpret_cast<const char*>(b.data()) + 58 + 2 * i, 2).trimmed(),
            ok);
        if (!ok) break;
        h.ChannelList.append(n);
    }
    return h;
}

qint64 TmHead::start() const {
    bool ok = false;
    const auto field = [&](int pos, int len) { return digitsValue(startText.mid(pos, len), ok); };
    const int year = field(0, 4), month = field(4, 2), day = field(6, 2);
    const int hour = field(8, 2), minute = field(10, 2), second = field(12, 2);
    return TimeBase::serialSeconds(year, month, day, hour, minute, second);
}

qint32 TmHead::intervalMs() const {
    bool ok = false;
    return digitsValue(intervalText.trimmed(), ok) * 100;
}

NpHead NpHead::read(const FileBytes& b) {
    NpHead h;
    h.TableOffset = b.ReadU32Be(4);
    h.ChannelCount = b.ReadU32Be(8);
    h.DataKind = b.ReadU32Be(12);
    h.RowPayload = b.ReadU32Be(16);
    h.RowCount = b.ReadU32Be(20);
    h.StartMsec = b.ReadU32Be(37);
    h.Interval = b.ReadU32Be(40);
    h.DataOffsetAlt = b.ReadU32Be(2220);
    h.Version = b.ReadU16Be(2226);
    h.DataOffsetRel = b.ReadU16Be(2236);
    h.dataStart = h.Version == 1   ? 6000
                  : h.Version == 3 ? qint64(h.DataOffsetRel) + 2240
                                   : h.DataOffsetAlt;
    if (h.Version < 3) {
        h.ChannelCount = h.RowPayload / 4;
        const qint64 rows = (b.size() - h.dataStart) / (qint64(h.RowPayload) + 4);
        h.RowCount = quint32(qBound<qint64>(0, rows, 0xFFFFFFFF));
    }
    return h;
}

JlmHead JlmHead::read(const FileBytes& b) {
    JlmHead h;
    const float n = b.ReadF32Le(0);
    h.channels = std::isfinite(n) && n > 0 && n < 100000 ? int(n) : 0;
    return h;
}

qint64 JlmHead::keyTime(const FileBytes& b, qint64 row) const {
    const qint64 at = dataStart() + row * rowBytes();
    b.require(at, 6);
    const uchar* k = b.data() + at;
    return TimeBase::serialSeconds(2000 + k[0], k[2], k[1], k[3], k[4], k[5]);
}

HeadInfo scanJlmHead(const FileBytes& b) {
    const JlmHead h = JlmHead::read(b);
    HeadInfo info;
    info.channels = h.channels;
    info.start = h.keyTime(b, 0);
    if (b.has(h.dataStart() + h.rowBytes(), 6))
        info.interval = qint32((h.keyTime(b, 1) - info.start) * 1000);
    info.points = (b.size() - h.dataStart()) / h.rowBytes();
    return info;
}

HeadInfo scanHead(int format, const FileBytes& b) {
    HeadInfo info;
    switch (format) {
    case Format::QDF: {
        const QdfHead h = QdfHead::read(b);
        info.start = b.ReadU32Be(212);
        info.interval = qint32(h.Interval);
        info.channels = h.channelCount();
        info.points = h.rowCount(b.size());
        break;
    }
    case Format::TM6:
    case Format::TM12: {
        const TmHead h = TmHead::read(b, format);
        info.start = h.start();
        info.interval = h.intervalMs();
        info.channels = h.columns();
        info.points = h.columns() ? (b.size() - h.dataStart()) / (2 * qint64(h.columns())) : 0;
        break;
    }
    case Format::NP: {
        const NpHead h = NpHead::read(b);
        info.start = TimeBase::fromUnixSeconds(b.ReadU32Le(h.dataStart));
        info.startMsec = int(h.StartMsec);
        info.interval = qint32(h.Interval * 100);
        info.channels = int(h.ChannelCount);
        info.points = h.RowCount;
        break;
    }
    default: {
        const VxfHead h = VxfHead::read(b);
        info.start = h.StartTime;
        info.startMsec = h.StartTenths * 100;
        info.interval = qint32(h.Interval * 100);
        info.channels = int(h.columns());
        info.points = h.RowCount;
        break;
    }
    }
    info.points = std::max<qint64>(info.points, 0);
    return info;
}

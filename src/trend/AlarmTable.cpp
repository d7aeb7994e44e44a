#include "trend/AlarmTable.h"

#include "base/ShowMsg.h"
#include "recording/RecordingLimits.h"
#include "recording/ViewState.h"

#include <array>
#include <new>

namespace {

constexpr quint16 kNoCharacter = 0xF;

// The four levels of one alarm text, or false when a character fails on the load path.
bool textCell(const QString& text, AlarmTable::Path path, quint16& cell) {
    cell = 0;
    const qsizetype n = std::min<qsizetype>(text.size(), AlarmTable::kLevels);
    for (qsizetype k = 0; k < n; ++k) {
        const QChar ch = text[k];
        const bool digit = ch >= QLatin1Char('0') && ch <= QLatin1Char('9');
        if (!digit && path == AlarmTable::Path::AfterLoad) return false;
        if (digit) cell |= quint16((ch.unicode() - '0') << (4 * k));
    }
    return true;
}

// The same for a raw alarm cell of the store: four digit nibbles, 0xF where the text ends.
bool rawCell(quint16 raw, AlarmTable::Path path, quint16& cell) {
    cell = 0;
    for (int k = 0; k < AlarmTable::kLevels; ++k) {
        const quint16 digit = (raw >> (4 * k)) & 0xF;
        if (digit == kNoCharacter) break;
        if (digit > 9) {
            if (path == AlarmTable::Path::AfterLoad) return false;
            continue;
        }
        cell |= quint16(digit << (4 * k));
    }
    return true;
}

} // namespace

void AlarmTable::resize(qint32 points, int channels) {
    points_ = 0;
    cells_.clear();
    cells_.shrink_to_fit();
    cells_.resize(size_t(channels), std::vector<quint16>(size_t(points) + 1, 0));
    points_ = points;
}

quint16 AlarmTable::cell(qint32 row, int channel) const {
    if (channel < 1 || channel > channels() || row < 1 || row > points_) return 0;
    return cells_[size_t(channel - 1)][size_t(row)];
}

qint32 AlarmTable::operator()(int level, qint32 row, int channel) const {
    if (level < 1 || level > kLevels) return 0;
    return (cell(row, channel) >> (4 * (level - 1))) & 0xF;
}

void AlarmTable::set(int level, qint32 row, int channel, int kind) {
    if (level < 1 || level > kLevels || channel < 1 || channel > channels() || row < 1 ||
        row > points_)
        return;
    quint16& c = cells_[size_t(channel - 1)][size_t(row)];
    const int shift = 4 * (level - 1);
    c = quint16((c & ~(0xF << shift)) | ((kind & 0xF) << shift));
}

bool AlarmTable::fillColumn(int viewNumber, int channel, Path path) {
    const clsStorage& store = views(viewNumber).Storage;
    const int col = 2 * channel - 1;
    std::vector<quint16>& out = cells_[size_t(channel - 1)];
    if (col > store.MaxCols()) return true;
    if (!store.hasTextCells(col) && store.rawCells(col)) {
        const quint16* raw = store.rawCells(col);
        for (const clsStorage::Segment& seg : store.segments(col)) {
            const bool alarm = seg.format.kind == CellFormat::Kind::Alarm;
            for (qint32 r = std::max(seg.firstRow, 1); r <= std::min(seg.lastRow, points_); ++r) {
                bool ok;
                if (alarm) {
                    ok = rawCell(raw[r], path, out[size_t(r)]);
                } else {
                    ok = textCell(seg.format.text(raw[r]).trimmed(), path, out[size_t(r)]);
                }
                if (!ok) return false;
            }
        }
        return true;
    }
    QString text;
    for (qint32 r = 1; r <= points_; ++r) {
        store.GetText(col, r, text);
        if (!textCell(text, path, out[size_t(r)])) return false;
    }
    return true;
}

bool AlarmTable::fill(int viewNumber, Path path) {
    const ViewState& t = views(viewNumber);
    try {
        resize(t.PointCount, t.ChannelCount);
    } catch (const std::bad_alloc&) {
        clear();
        MsgBox(QStringLiteral("Out of memory."), kFlagOK, QString());
        return false;
    }
    for (int c = 1; c <= t.ChannelCount; ++c) {
        if (!fillColumn(viewNumber, c, path)) {
            resize(t.PointCount, t.ChannelCount); // the failed conversion leaves no alarm
            return false;
        }
    }
    return true;
}

AlarmTable& alarmTable(int viewNumber) {
    return views(viewNumber).part<AlarmTable>();
}

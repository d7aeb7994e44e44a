#include "recording/JlmLoader.h"

#include "base/LanguageTable.h"
#include "base/NumberText.h"
#include "base/VbFormat.h"
#include "recording/CellFormat.h"
#include "recording/ColorMaps.h"
#include "recording/Cp932.h"
#include "recording/FamilyHeads.h"
#include "recording/ReaderFrame.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <new>

namespace {

// Raw value of the plain rule that shows a blank cell.
constexpr quint16 kBlankRaw = 32761;

// Offset of cell i (1-based) of file row k (header rows 0..7, then the data rows).
qint64 cellAt(const JlmHead& h, qint64 k, int i) {
    return 6 + k * h.rowBytes() + 4 * qint64(i - 1);
}

QString cellsText(const FileBytes& b, qint64 first, qint64 firstLength, qint64 second,
                  qint64 secondLength) {
    b.require(first, firstLength);
    b.require(second, secondLength);
    QByteArray bytes(reinterpret_cast<const char*>(b.data() + first), firstLength);
    bytes.append(reinterpret_cast<const char*>(b.data() + second), secondLength);
    bytes.replace('\0', QByteArray());
    return Cp932::decode(bytes).trimmed();
}

class JlmReader {
public:
    JlmReader(ViewState& view, const ReaderFrame& frame) : view_(view), frame_(frame) {}
    void readFile(int index);

    int channels = 0; // store channels, from the first file
    bool channelsKnown = false;

private:
    void setUpView(const FileBytes& b, const JlmHead& h);
    void fillChannels(const FileBytes& b, const JlmHead& h);
    void readRows(int index, const FileBytes& b, const JlmHead& h);
    void putValue(int ch, int row, float v, quint16* cell);

    ViewState& view_;
    const ReaderFrame& frame_;
    QVector<int> decimals_;
    qint64 previousMs_ = 0; // time of the previous row, milliseconds since 2000
};

void JlmReader::setUpView(const FileBytes& b, const JlmHead& h) {
    view_.Storage.Initialize();
    view_.ViewStart = h.keyTime(b, 0);
    view_.ViewStartMsec = 0;
    // With a single data row there is no second key: the interval stays 0.
    const bool second = b.has(h.dataStart() + h.rowBytes(), 6);
    view_.SampleInterval = second ? qint32((h.keyTime(b, 1) - view_.ViewStart) * 1000) : 0;
    view_.FileInterval = 6;
    previousMs_ = view_.ViewStart * 1000 - view_.SampleInterval;
    fillChannels(b, h);
}

void JlmReader::fillChannels(const FileBytes& b, const JlmHead& h) {
    channels = std::min(h.channels, MaxChannels);
    ChannelTable& t = view_.Channels;
    decimals_.resize(channels + 1);
    for (int i = 1; i <= channels; ++i) {
        t.setTag(i, cellsText(b, cellAt(h, 0, i), 4, cellAt(h, 1, i), 4));
        t.setUnit(i, cellsText(b, cellAt(h, 2, i), 4, cellAt(h, 3, i), 2));
        t.ChColor[size_t(i)] = ColorMapOfVXSeries().GetColor(i % 12);
        t.ChExpDigits[size_t(i)] = 0;
        const float d = b.ReadF32Le(cellAt(h, 7, i));
        decimals_[i] =
            std::isfinite(d) ? int(std::clamp<qint64>(VbFormat::roundHalfEven(d), -99, 99)) : 0;
    }
    channelsKnown = true;
}

// v x 10^decimals, rounded, through the plain rule; a value beyond 16 bits keeps its number as
// the cell's text, and one that is no number at all leaves the cell blank.
void JlmReader::putValue(int ch, int row, float v, quint16* cell) {
    const int d = decimals_[ch];
    const double scaled = double(v) * std::pow(10.0, d);
    if (!std::isfinite(scaled) || std::abs(scaled) >= 1e15) {
        cell[row] = kBlankRaw;
        return;
    }
    const qint64 raw = VbFormat::roundHalfEven(scaled);
    if (raw >= -32768 && raw <= 32767) {
        cell[row] = quint16(qint16(raw));
        return;
    }
    cell[row] = kBlankRaw;
    const QString text = d >= 0 && d <= 4
                             ? NumberText::scaledIntegerText(raw, d)
                             : QString::number(std::llround(double(raw) / std::pow(10.0, d)));
    view_.Storage.SetText(2 * ch, row, text);
}

void JlmReader::readRows(int index, const FileBytes& b, const JlmHead& h) {
    const qint64 rows = std::max<qint64>(0, (b.size() - h.dataStart()) / h.rowBytes());
    clsStorage& store = view_.Storage;
    const qint64 offset = store.DataRowCnt();
    if (offset + rows > INT32_MAX - 1) throw ReadPastEnd();
    if (rows == 0) return;
    const int first = int(offset + 1), last = int(offset + rows);
    store.setMaxRows(std::max(store.MaxRows(), last));
    const int stored = std::min(h.channels, channels);
    QVector<quint16*> values(stored + 1);
    for (int c = 1; c <= stored; ++c) {
        values[c] = store.beginSegment(2 * c, first, last, CellFormat::plain(decimals_[c]));
        quint16* alarms = store.beginSegment(2 * c - 1, first, last, CellFormat::alarm());
        std::fill(alarms + first, alarms + last + 1, AlarmCell::kNone);
    }
    for (qint64 r = 0; r < rows; ++r) {
        if ((r & 1023) == 1023) frame_.poll(index, r, rows);
        // Rows keep the file's order; a step other than the interval marks irregular time.
        const qint64 ms = h.keyTime(b, r) * 1000;
        if (ms != previousMs_ + view_.SampleInterval) view_.IrregularTime = true;
        previousMs_ = ms;
        const int row = int(offset + 1 + r);
        for (int c = 1; c <= stored; ++c)
            putValue(c, row, b.ReadF32Le(cellAt(h, 8 + r, c)), values[c]);
    }
    store.setDataRowCnt(last);
}

void JlmReader::readFile(int index) {
    frame_.poll(index, 0, 1);
    FileBytes b;
    if (!b.load(view_.FileName[index])) throw ReadPastEnd();
    const JlmHead h = JlmHead::read(b);
    if (index == 0) {
        view_.ViewTitle = QFileInfo(view_.FileName[0]).fileName();
        setUpView(b, h);
        view_.Storage.setMaxCols(2 * channels);
    }
    view_.FileStart[index] = h.keyTime(b, 0);
    view_.FileStartMsec[index] = 0;
    readRows(index, b, h);
}

} // namespace

LoadOutcome LoadJlm(ViewState& view, const LoadOptions& options) {
    const ReaderFrame frame(view, options);
    frame.begin();
    view.FileStart.resize(view.FileCount);
    view.FileStartMsec.resize(view.FileCount);
    JlmReader reader(view, frame);
    try {
        for (int i = 0; i < view.FileCount; ++i) reader.readFile(i);
    } catch (const LoadCancelled&) {
        return frame.fail(LoadOutcome::Status::Cancelled, 0);
    } catch (const std::bad_alloc&) {
        return frame.fail(LoadOutcome::Status::Failed, MsgId(560));
    } catch (...) {
        if (!reader.channelsKnown) return frame.fail(LoadOutcome::Status::Failed, MsgId(560));
        return frame.fail(LoadOutcome::Status::Failed, MsgId(587),
                          QStringLiteral("CHCount = %1").arg(reader.channels));
    }
    return frame.finish();
}

#include "recording/CsvLoader.h"

#include "base/LanguageTable.h"
#include "recording/CellFormat.h"
#include "recording/ColorMaps.h"
#include "recording/FamilyCodes.h"
#include "recording/ReaderFrame.h"
#include "recording/SelectionLists.h"
#include "recording/clsCSV.h"

#include <QFileInfo>

#include <algorithm>
#include <new>

namespace {

// A CSV line that cannot be read ends the load with message 560.
struct BadLine {};

quint16 alarmCell(const QString& digits) {
    quint16 cell = 0;
    for (int i = 0; i < 4; ++i) cell |= quint16(digits[i].digitValue() & 0xF) << (4 * i);
    return cell;
}

void fillChannels(ViewState& view, const clsCSV& csv, int channels) {
    ChannelTable& t = view.Channels;
    for (int i = 1; i <= channels; ++i) {
        t.setTag(i, csv.GetTagName(i));
        t.setUnit(i, csv.GetUnitName(i));
        t.ChColor[size_t(i)] = ColorMapOfVXSeries().GetColor(i % 12);
        t.ChExpDigits[size_t(i)] = 0;
    }
}

// Counts the data lines by reading to the end, then goes back to the start for the rows.
int countRows(clsCSV& csv) {
    int rows = 0;
    if (!csv.FileOpenCSV()) throw BadLine();
    while (csv.GetDataCSV()) ++rows;
    csv.RewindCSV();
    return rows;
}

void readRows(ViewState& view, clsCSV& csv, int channels, const ReaderFrame& frame) {
    clsStorage& store = view.Storage;
    const int rows = csv.GetDataCount();
    QVector<quint16*> alarms(channels + 1);
    for (int c = 1; c <= channels; ++c)
        alarms[c] = store.beginSegment(2 * c - 1, 1, rows, CellFormat::alarm());
    int needed = csv.valueField(channels) + 1;
    for (int c = 1; c <= channels; ++c) needed = std::max(needed, csv.alarmField(c) + 1);
    for (int r = 1; r <= rows; ++r) {
        if ((r & 1023) == 0) frame.poll(0, r, rows);
        if (!csv.GetDataCSV() || csv.fields().size() < needed) throw BadLine();
        const QStringList& f = csv.fields();
        for (int c = 1; c <= channels; ++c) {
            store.SetText(2 * c, r, f[csv.valueField(c)]);
            const int a = csv.alarmField(c);
            alarms[c][r] = alarmCell(clsCSV::AlmDataCnv(a < 0 ? QString() : f[a]));
        }
    }
}

} // namespace

LoadOutcome LoadFileDataCsv(ViewState& view, const LoadOptions& options) {
    const ReaderFrame frame(view, options);
    frame.begin();
    view.FileCount = 1;
    view.FileName.resize(1);
    view.FileStart.resize(1);
    view.FileStartMsec.resize(1);
    view.ViewTitle = QFileInfo(view.FileName[0]).fileName();
    clsCSV csv;
    csv.SetFileName(view.FileName[0]);
    bool tooWide = false;
    try {
        frame.poll(0, 0, 1);
        csv.SetDataCount(countRows(csv));
        qint64 start = 0;
        int msec = 0;
        qint32 interval = 0;
        if (!csv.GetSTimeCSV(start, msec) || !csv.GetIntervalCSV(interval)) throw BadLine();
        csv.RewindCSV();
        view.ViewStart = view.FileStart[0] = start;
        view.ViewStartMsec = view.FileStartMsec[0] = msec;
        view.SampleInterval = interval;
        tooWide = csv.GetChCount() > MaxChannels;
        const int channels = std::min(csv.GetChCount(), MaxChannels);
        view.Storage.Initialize();
        view.Storage.setMaxRows(csv.GetDataCount());
        view.Storage.setMaxCols(2 * channels);
        fillChannels(view, csv, channels);
        readRows(view, csv, channels, frame);
        csv.FileCloseCSV();
    } catch (const LoadCancelled&) {
        return frame.fail(LoadOutcome::Status::Cancelled, 0);
    } catch (...) {
        return frame.fail(LoadOutcome::Status::Failed, MsgId(560));
    }
    LoadOutcome outcome = frame.finish();
    // The warning for a file with more channels than a view holds; the caller shows it with
    // the caption of message 268.
    if (outcome.ok() && tooWide) outcome = {LoadOutcome::Status::Loaded, MsgId(492), MsgText(490)};
    return outcome;
}

LoadOutcome openSingleCsv(const QString& path, ViewState& view, const LoadOptions& options) {
    SelectionLists& sel = selection();
    sel.clear();
    sel.append(path, 0, 0);
    sel.SelFileType = Family::CSV;
    copySelectionToView(view);
    return LoadRecording(view, options);
}

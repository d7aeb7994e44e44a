#include "recording/RecordingLoader.h"

#include "base/LanguageTable.h"
#include "recording/Families.h"
#include "recording/FamilyHeads.h"
#include "recording/FormatReader.h"
#include "recording/MsgFiles.h"
#include "recording/ReaderFrame.h"
#include "recording/RowPlacement.h"
#include "recording/SelectionLists.h"

#include <QFileInfo>

#include <algorithm>
#include <new>

namespace {

class CoreReader {
public:
    CoreReader(ViewState& view, const LoadOptions& options)
        : view_(view), options_(options), frame_(view, options) {}
    void run();

private:
    void readFile(int index);
    void setUpView(const FormatReader& reader, int format);

    ViewState& view_;
    const LoadOptions& options_;
    ReaderFrame frame_;
    QVector<int> fileChannels_;

public:
    int firstFormat = -1;
    int channelTotal = 0;
    bool channelsKnown = false; // a failure from here on reports the channel count
};

void CoreReader::setUpView(const FormatReader& reader, int format) {
    view_.Storage.Initialize();
    view_.ViewStart = reader.startTime();
    const bool noMsec = format == Format::QDF || format == Format::TM6 || format == Format::TM12;
    view_.ViewStartMsec = noMsec ? 0 : reader.startMsec();
    view_.SampleInterval = reader.intervalMs();
}

void CoreReader::readFile(int index) {
    frame_.poll(index, 0, 1);
    FileBytes bytes;
    if (!bytes.load(view_.FileName[index])) throw ReadPastEnd();
    if (index == 0) {
        view_.ViewTitle = QFileInfo(view_.FileName[0]).fileName();
        view_.ColorMapMagic = QString::fromLatin1(bytes.magic().left(3));
    }
    view_.FileMagic = QString::fromLatin1(bytes.magic());
    const int format = formatOfMagic(bytes.magic(), options_.gsMode);
    auto reader = makeFormatReader(format);
    FileLoad load{view_, bytes, index, options_.gsMode,
                  [this, index](qint64 row, qint64 rows) { frame_.poll(index, row, rows); }};
    reader->readHead(load);
    if (index == 0) {
        firstFormat = format;
        setUpView(*reader, format);
    }
    view_.FileStart[index] = reader->startTime();
    view_.FileStartMsec[index] = reader->startMsec();

    reader->readMessages(load);
    view_.BatchTexts.append(reader->batchText());
    fileChannels_.append(reader->channelCount());
    const int base = RowPlacement::channelBase(view_.BatchTexts, fileChannels_, index);
    reader->fillChannels(load, base);
    channelsKnown = true;
    reader->readAlarmHistory(load);

    qint64 offset = options_.FileJoinByOrder == 1
                        ? view_.Storage.DataRowCnt()
                        : RowPlacement::offsetByTime(view_.ViewStart, reader->startTime(),
                                                     view_.SampleInterval);
    if (options_.FileJoinByOrder != 1 && (format == Format::TM6 || format == Format::TM12))
        offset =
            RowPlacement::tmTolerance(offset, view_.Storage.DataRowCnt(), view_.SampleInterval);
    const qint64 lastRow = offset + reader->rowCount();
    if (lastRow > INT32_MAX - 1) throw ReadPastEnd();
    if (lastRow > view_.Storage.MaxRows()) view_.Storage.setMaxRows(int(lastRow));
    channelTotal = std::max(channelTotal, std::min(MaxChannels, base + reader->channelCount()));
    if (2 * channelTotal > view_.Storage.MaxCols()) view_.Storage.setMaxCols(2 * channelTotal);
    reader->readSamples(load, base, offset);
}

void CoreReader::run() {
    view_.FileStart.resize(view_.FileCount);
    view_.FileStartMsec.resize(view_.FileCount);
    for (int i = 0; i < view_.FileCount; ++i) readFile(i);
    ReadMsgFiles(view_);
}

} // namespace

QString LoadOutcome::text() const {
    if (message == 0) return QString();
    return detail.isEmpty() ? MsgText(message) : MsgText(message) + QLatin1Char('\n') + detail;
}

void copySelectionToView(ViewState& view) {
    const SelectionLists& sel = selection();
    view.FileCount = sel.SelFileCount;
    view.FileName = sel.SelFileName;
    view.FileStart = sel.SelStart;
    view.FileStartMsec = sel.SelStartMsec;
    view.FileInterval = sel.SelInterval;
    view.FileType = sel.SelFileType;
}

void finishLoad(ViewState& view, bool firstIsVxf) {
    clsStorage& s = view.Storage;
    const int total = s.MaxRows();
    view.PointCount = total;
    view.ViewShownPoints =
        firstIsVxf && view.AlarmEvents.any() && total < MinPointsVXF ? MinPointsVXF : total;
    view.ViewRowCount = qint16(std::min(total, MaxRowsShown));
    view.ChannelCount = qint16(s.MaxCols() / 2);
    view.ChannelCountOrig = view.ChannelCount;
    if (s.MaxCols() < MaxStoreCols) s.setMaxCols(MaxStoreCols);
    s.setDataColCnt(2 * view.ChannelCount);
    s.squeeze();
}

LoadOutcome LoadRecording(ViewState& view, const LoadOptions& options) {
    const LoadOutcome notHandled{LoadOutcome::Status::NotHandled, 0, {}};
    if (view.FileCount < 1 || view.FileName.isEmpty()) return notHandled;
    const FamilyInfo* family = Families::forLoad(view.FileType, view.FileName.first());
    if (!family || !family->load) return notHandled;
    return family->load(view, options);
}

LoadOutcome LoadCoreFiles(ViewState& view, const LoadOptions& options) {
    const ReaderFrame frame(view, options);
    frame.begin();
    CoreReader reader(view, options);
    try {
        reader.run();
    } catch (const LoadCancelled&) {
        return frame.fail(LoadOutcome::Status::Cancelled, 0);
    } catch (const std::bad_alloc&) {
        return frame.fail(LoadOutcome::Status::Failed, MsgId(560));
    } catch (...) {
        if (reader.channelsKnown)
            return frame.fail(LoadOutcome::Status::Failed, MsgId(587),
                              QStringLiteral("CHCount = %1").arg(reader.channelTotal));
        return frame.fail(LoadOutcome::Status::Failed, MsgId(560));
    }
    return frame.finish(reader.firstFormat == Format::VXF);
}

#include "savedwork/SavedWorkRecords.h"

#include "base/NumberText.h"
#include "recording/ViewSlots.h"
#include "recording/ViewState.h"
#include "savedwork/OleDate.h"
#include "savedwork/clsAlmStyle.h"
#include "savedwork/clsFileHeader.h"
#include "savedwork/clsSaveParaData.h"
#include "savedwork/clsTrndParaSet.h"
#include "trend/TrendViewState.h"

#include <memory>

namespace {

constexpr double kHole = 1E+308;

// A record file of the archive work directory into a fresh new-layout record.
template <typename Rec> bool readRecord(const QString& name, Rec& record) {
    QByteArray bytes;
    if (!RecordFile::read(RecordNames::readPath(name), bytes)) return false;
    record.fromBytes(bytes);
    return true;
}

template <typename Rec> bool writeRecord(const QString& name, const Rec& record) {
    return RecordFile::write(RecordNames::writePath(name), record.toBytes());
}

qint16 vbBoolean(bool value) {
    return value ? -1 : 0;
}

double numberOf(const QString& text) {
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    return ok ? value : 0.0;
}

// An empty scale text is kept as the hole value, in the record and in the view alike.
double scaleNumber(QString& text) {
    if (text.trimmed().isEmpty()) text = NumberText::doubleText(kHole);
    return numberOf(text);
}

QString withoutBlankFill(QString text) {
    qsizetype end = text.size();
    while (end > 0 && text.at(end - 1) == QLatin1Char(' ')) --end;
    text.truncate(end);
    return text;
}

TrndParaFixed fixedOfView(int viewNumber) {
    const ViewState& v = views(viewNumber);
    const TrendViewState& t = trendState(viewNumber);
    TrndParaFixed f;
    f.PointCount = v.PointCount;
    f.MarkerCalcValue = t.MarkerCalcValue;
    f.CursorPoint = t.CursorPoint;
    f.MarkerAutoCalc = t.MarkerAutoCalc;
    f.CalcLineChannel = t.CalcLineChannel;
    f.ChannelCount = v.ChannelCount;
    f.ChannelCountOrig = v.ChannelCountOrig;
    f.SampleInterval = v.SampleInterval;
    f.ViewStart = OleDate::fromSeconds2000(v.ViewStart);
    f.ViewStartMsec = qint16(v.ViewStartMsec);
    f.TimeLabelInterval = t.TimeLabelInterval;
    f.ViewInUse = vbBoolean(ViewInUse(viewNumber - 1));
    f.BarPlacement = t.BarPlacement;
    f.ChartMouseFlag = t.ChartMouseFlag;
    f.AxisLabelsOn = t.AxisLabelsOn;
    f.MarkerViewFlag = t.MarkerViewFlag;
    f.BarPosition = t.BarPosition;
    f.ViewShownPoints = v.ViewShownPoints;
    f.TimeAxisChoice = t.TimeAxisChoice;
    return f;
}

// The slot table belongs to the window that opens the view, so ViewInUse is not taken back.
void fixedToView(int viewNumber, const TrndParaFixed& f) {
    ViewState& v = views(viewNumber);
    TrendViewState& t = trendState(viewNumber);
    v.PointCount = f.PointCount;
    t.MarkerCalcValue = f.MarkerCalcValue;
    t.CursorPoint = f.CursorPoint;
    t.MarkerAutoCalc = f.MarkerAutoCalc;
    t.CalcLineChannel = f.CalcLineChannel;
    v.ChannelCount = f.ChannelCount;
    v.ChannelCountOrig = f.ChannelCountOrig;
    v.SampleInterval = f.SampleInterval;
    v.ViewStart = OleDate::toSeconds2000(f.ViewStart);
    v.ViewStartMsec = f.ViewStartMsec;
    t.TimeLabelInterval = f.TimeLabelInterval;
    t.BarPlacement = f.BarPlacement;
    t.ChartMouseFlag = f.ChartMouseFlag;
    t.AxisLabelsOn = f.AxisLabelsOn;
    t.MarkerViewFlag = f.MarkerViewFlag;
    t.BarPosition = f.BarPosition;
    v.ViewShownPoints = f.ViewShownPoints;
    t.TimeAxisChoice = f.TimeAxisChoice;
}

} // namespace

bool WriteTrndParaSet(int viewNumber) {
    auto record = std::make_unique<TrndParaSetNew>();
    record->Fixed = fixedOfView(viewNumber);
    TrendViewState& t = trendState(viewNumber);
    for (size_t i = 0; i < t.Lines.size(); ++i) {
        TrendLine& line = t.Lines[i];
        record->Enabled[i] = line.enabled;
        record->SourceColumn[i] = line.sourceColumn;
        record->AddFlag[i] = vbBoolean(line.addFlag);
        record->SecondColumn[i] = line.secondColumn;
        record->Constant[i] = numberOf(line.constant);
        record->ScaleLow[i] = scaleNumber(line.scaleLow);
        record->ScaleHigh[i] = scaleNumber(line.scaleHigh);
        record->Decimals[i] = line.decimals;
    }
    record->ViewTail = t.ViewTail;
    return writeRecord(RecordNames::TrndParaSet, *record);
}

bool ReadTrndParaSet(int viewNumber) {
    auto record = std::make_unique<TrndParaSetNew>();
    if (!readRecord(RecordNames::TrndParaSet, *record)) return false;
    fixedToView(viewNumber, record->Fixed);
    TrendViewState& t = trendState(viewNumber);
    for (size_t i = 0; i < t.Lines.size(); ++i) {
        TrendLine& line = t.Lines[i];
        line.enabled = record->Enabled[i];
        line.sourceColumn = record->SourceColumn[i];
        line.addFlag = record->AddFlag[i] != 0;
        line.secondColumn = record->SecondColumn[i];
        line.constant = NumberText::doubleText(record->Constant[i]);
        line.scaleLow = NumberText::doubleText(record->ScaleLow[i]);
        line.scaleHigh = NumberText::doubleText(record->ScaleHigh[i]);
        line.decimals = record->Decimals[i];
    }
    t.ViewTail = record->ViewTail;
    return true;
}

bool WriteFileHeader(int viewNumber) {
    const ChannelTable& ch = views(viewNumber).Channels;
    auto record = std::make_unique<FileHeaderNew>();
    for (size_t i = 0; i < record->ChTag.size(); ++i) {
        record->ChExpDigits[i] = ch.ChExpDigits[i + 1];
        record->ChTag[i] = ch.ChTag[i + 1];
        record->ChUnit[i] = ch.ChUnit[i + 1];
        record->ChColor[i] = ch.ChColor[i + 1];
    }
    return writeRecord(RecordNames::FileHeader, *record);
}

bool ReadFileHeader(int viewNumber) {
    auto record = std::make_unique<FileHeaderNew>();
    if (!readRecord(RecordNames::FileHeader, *record)) return false;
    ChannelTable& ch = views(viewNumber).Channels;
    for (size_t i = 0; i < record->ChTag.size(); ++i) {
        ch.ChExpDigits[i + 1] = record->ChExpDigits[i];
        ch.ChTag[i + 1] = withoutBlankFill(record->ChTag[i]);
        ch.ChUnit[i + 1] = withoutBlankFill(record->ChUnit[i]);
        ch.ChColor[i + 1] = record->ChColor[i];
    }
    return true;
}

bool WriteSaveParaData(int viewNumber) {
    const TrendViewState& t = trendState(viewNumber);
    auto record = std::make_unique<SaveParaDataNew>();
    record->ZoomLevel = t.ZoomLevel;
    record->ViewNumber = qint16(viewNumber);
    record->PointScale = t.PointScale;
    record->BarPosition = t.BarPosition;
    record->Flags = {vbBoolean(t.CursorAOn), vbBoolean(t.CursorBOn), vbBoolean(t.ScalePercentMode)};
    for (size_t level = 0; level < t.ZoomX.size(); ++level) {
        for (size_t slot = 0; slot < 3; ++slot) {
            record->ZoomX[slot][level] = t.ZoomX[level][slot];
            record->ZoomY[slot][level] = t.ZoomY[level][slot];
        }
    }
    record->ScrollBars = t.ScrollBars;
    record->AxisChannel = t.AxisChannel;
    record->ScaleType = qint16(t.ScaleType);
    record->ScrollScale = t.ScrollScale;
    return writeRecord(RecordNames::SaveParaData, *record);
}

// The view number of the record is its writer's; the reading view keeps its own.
bool ReadSaveParaData(int viewNumber) {
    auto record = std::make_unique<SaveParaDataNew>();
    if (!readRecord(RecordNames::SaveParaData, *record)) return false;
    TrendViewState& t = trendState(viewNumber);
    t.ZoomLevel = record->ZoomLevel;
    t.PointScale = record->PointScale;
    t.BarPosition = record->BarPosition;
    t.CursorAOn = record->Flags[0] != 0;
    t.CursorBOn = record->Flags[1] != 0;
    t.ScalePercentMode = record->Flags[2] != 0;
    for (size_t level = 0; level < t.ZoomX.size(); ++level) {
        for (size_t slot = 0; slot < 3; ++slot) {
            t.ZoomX[level][slot] = record->ZoomX[slot][level];
            t.ZoomY[level][slot] = record->ZoomY[slot][level];
        }
    }
    t.ScrollBars = record->ScrollBars;
    t.AxisChannel = record->AxisChannel;
    t.ScaleType = ScaleType(record->ScaleType);
    t.ScrollScale = record->ScrollScale;
    return true;
}

bool WriteAlmStyle(int viewNumber) {
    const TrendViewState& t = trendState(viewNumber);
    auto record = std::make_unique<AlmStyleNew>();
    record->Symbol = t.AlarmSymbol;
    record->Color = t.AlarmColor;
    record->Size = t.AlarmSize;
    return writeRecord(RecordNames::AlmStyle, *record);
}

bool ReadAlmStyle(int viewNumber) {
    auto record = std::make_unique<AlmStyleNew>();
    if (!readRecord(RecordNames::AlmStyle, *record)) return false;
    TrendViewState& t = trendState(viewNumber);
    t.AlarmSymbol = record->Symbol;
    t.AlarmColor = record->Color;
    t.AlarmSize = record->Size;
    return true;
}

bool CheckOldArchive(QString* firstFailing) {
    bool old = false;
    const auto fail = [&](const QString& name) {
        if (firstFailing) *firstFailing = name;
        return false;
    };
    if (!clsAlmStyle().CheckOldFileSize(old)) return fail(RecordNames::AlmStyle);
    if (!clsFileHeader().CheckOldFileSize(old)) return fail(RecordNames::FileHeader);
    if (!clsSaveParaData().CheckOldFileSize(old)) return fail(RecordNames::SaveParaData);
    if (!clsTrndParaSet().CheckOldFileSize(old)) return fail(RecordNames::TrndParaSet);
    return true;
}

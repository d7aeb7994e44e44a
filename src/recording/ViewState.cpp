#include "recording/ViewState.h"

#include "recording/clsBatchInfo.h"

#include "recording/SelectionLists.h"

#include <array>
#include <memory>

void ViewState::clearRecording() {
    Storage.Initialize();
    DataProperty = clsDataFileProperty();
    FileMagic.clear();
    ColorMapMagic.clear();
    BatchTexts.clear();
    Loaded = false;
    NoDataFlag = false;
    IrregularTime = false;
    BatchInfoFound = false;
    part<clsBatchInfo>().clear();
    PointCount = 0;
    ViewShownPoints = 0;
    ViewRowCount = 0;
    ChannelCount = 0;
    ChannelCountOrig = 0;
    SampleInterval = 0;
    ViewStart = 0;
    ViewStartMsec = 0;
    AlarmEvents.clear();
    ViewMessages.clear();
    Channels.clear();
}

void ViewState::reset() {
    clearRecording();
    Loading = false;
    ViewCancel = false;
    ViewTitle.clear();
    for (auto& [type, part] : parts_) part->reset();
}

void ViewState::clear() {
    reset();
    FileCount = 0;
    FileName.clear();
    FileStart.clear();
    FileStartMsec.clear();
    FileInterval = 0;
    FileType = 0;
    MessageFiles.clear();
}

ViewState& views(int viewNumber) {
    static std::array<std::unique_ptr<ViewState>, MaxViews> tables;
    const size_t i = size_t(qBound(1, viewNumber, MaxViews) - 1);
    if (!tables[i]) tables[i] = std::make_unique<ViewState>();
    return *tables[i];
}

SelectionLists& selection() {
    static SelectionLists lists;
    return lists;
}

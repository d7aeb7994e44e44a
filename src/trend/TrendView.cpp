#include "trend/TrendView.h"

#include "base/NumberText.h"
#include "trend/PlotValue.h"

TrendView::TrendView(int viewNumber)
    : view_(viewNumber), chart_(std::make_unique<ChartModel>()), plot_(*this), scales_(*this),
      time_(*this), zoom_(*this) {
    window_.Toolbar2Enabled.fill(true);
    window_.Toolbar2Enabled[1] = window_.Toolbar2Enabled[2] = false;
}

TrendView::~TrendView() = default;

namespace {

TrendView::SavedSettingsReader& savedSettingsReader() {
    static TrendView::SavedSettingsReader reader;
    return reader;
}

// Rows 1..128 of the multi-scale table from the line scales, all four strips flagged.
void copyScalesToMultiScale(TrendViewState& st) {
    for (size_t r = 0; r < st.MultiScale.size(); ++r) {
        const TrendLine& line = st.Lines[r + 1];
        st.MultiScale[r] = {TrendValues::scaleNumber(line.scaleLow),
                            TrendValues::scaleNumber(line.scaleHigh)};
    }
    for (size_t r = 0; r < 4; ++r) st.MultiScaleShown[r] = true;
}

// A saved table that replaces the channels' scales writes its 128 pairs into the channel table.
void multiScaleToChannels(TrendViewState& st, ChannelTable& ch) {
    for (size_t r = 0; r < st.MultiScale.size(); ++r) {
        const auto& row = st.MultiScale[r];
        if (row[0] == Chart::kHoleValue || row[1] == Chart::kHoleValue) continue;
        ch.ChScaleLow[r + 1] = NumberText::doubleText(row[0]);
        ch.ChScaleHigh[r + 1] = NumberText::doubleText(row[1]);
        st.Lines[r + 1].scaleLow = ch.ChScaleLow[r + 1];
        st.Lines[r + 1].scaleHigh = ch.ChScaleHigh[r + 1];
    }
}

} // namespace

void TrendView::showMultiScaleStrips() {
    TrendViewState& st = state();
    if (st.ScalePercentMode) return;
    st.ScalePercentMode = true;
    plot_.ScaleCalculateSet();
    st.ZoomY[0] = {0, 0, 100};
    st.ZoomLevel = 0;
    zoom_.SetZoom(0);
}

void TrendView::setSavedSettingsReader(SavedSettingsReader reader) {
    savedSettingsReader() = std::move(reader);
}

bool TrendView::afterLoad(Progress* progress) {
    ViewState& t = tables();
    TrendViewState& st = state();
    st.ZoomLevel = 0;
    st.ScrollScale = qint16(t.PointCount < 32768 ? t.PointCount : 32767);
    window_.TooLarge = false;
    plot_.initLines();
    st.SavedMultiScale = st.SavedScaleTable = false;
    if (savedSettingsReader()) savedSettingsReader()(view_);
    const bool savedTable = st.SavedScaleTable && st.MultiScaleFlag != 0;
    if (!st.SavedMultiScale && !savedTable) {
        st.ScalePercentMode = false;
    } else {
        st.ScaleType = savedTable ? ScaleType::MultiScale : ScaleType::Bound;
        if (savedTable) multiScaleToChannels(st, t.Channels);
        scales_.ScaleTypeInit();
        scales_.MultiScaleDisp(true);
        if (!savedTable) copyScalesToMultiScale(st);
        st.ScalePercentMode = true;
    }
    if (plot_.loadFill(progress) != TrendPlot::LoadFill::Filled) return false;
    plot_.ScaleCalculateSet();
    if (savedTable) scales_.ScaleTypeInit();
    st.MouseArmed = false;
    zoom_.SetZoom(0);
    st.MouseArmed = true;
    return true;
}

bool TrendView::command(int number) {
    switch (number) {
    case 1:
        zoom_.back();
        return true;
    case 2:
        zoom_.whole();
        return true;
    default:
        return false;
    }
}

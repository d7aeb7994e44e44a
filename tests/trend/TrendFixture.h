#pragma once

#include "platform/ChartTypes.h"
#include "recording/CellFormat.h"
#include "recording/ViewState.h"
#include "trend/TrendView.h"
#include "trend/TrendViewState.h"

#include <QString>

#include <gtest/gtest.h>

#include <vector>

namespace trendtest {

constexpr double H = Chart::kHoleValue;
using Columns = std::vector<std::vector<qint16>>;

// Raw 16-bit cells of plain channels with status words.
constexpr qint16 kBurn = 32766;
constexpr qint16 kOver = 32767;
constexpr qint16 kNoData = -32766;
constexpr qint16 kBlank = 32761;

// Writes raw cells of rows first..first + raw.size() - 1 of a channel in one format.
inline void writeRaw(clsStorage& storage, int channel, int firstRow, const std::vector<qint16>& raw,
                     const CellFormat& format) {
    quint16* cells =
        storage.beginSegment(2 * channel, firstRow, firstRow + int(raw.size()) - 1, format);
    for (size_t i = 0; i < raw.size(); ++i) cells[size_t(firstRow) + i] = quint16(raw[i]);
}

// A view of plain channels (all of `decimals`) with the given raw columns and scales, as a
// reader leaves it: store, counts, channel table. The trend state of the view is reset.
inline ViewState& makeView(int viewNumber, const Columns& channels, int decimals,
                           const QString& low = QStringLiteral("0"),
                           const QString& high = QStringLiteral("100")) {
    ViewState& v = views(viewNumber);
    v.clearRecording();
    trendState(viewNumber).reset();
    const int rows = channels.empty() ? 0 : int(channels[0].size());
    v.Storage.setMaxCols(2 * int(channels.size()));
    v.Storage.setMaxRows(rows);
    for (size_t c = 0; c < channels.size(); ++c) {
        writeRaw(v.Storage, int(c) + 1, 1, channels[c], CellFormat::plain(decimals));
        v.Channels.ChScaleLow[c + 1] = low;
        v.Channels.ChScaleHigh[c + 1] = high;
        v.Channels.setTag(int(c) + 1, QStringLiteral("CH%1").arg(c + 1));
        v.Channels.setUnit(int(c) + 1, QStringLiteral("degC"));
        v.Channels.ChColor[c + 1] = 0x0000FF;
    }
    v.PointCount = rows;
    v.ViewShownPoints = rows;
    v.ChannelCount = qint16(channels.size());
    v.ChannelCountOrig = v.ChannelCount;
    v.SampleInterval = 1000;
    v.ViewStart = 86400 * 100; // 2000-04-10
    return v;
}

// A ramp of n raw values starting at `first`.
inline std::vector<qint16> ramp(int n, int first = 0) {
    std::vector<qint16> v(static_cast<size_t>(n));
    for (int i = 0; i < n; ++i) v[size_t(i)] = qint16(first + i);
    return v;
}

// A view of plain channels, loaded as the window holds it after a load.
struct LoadedView {
    LoadedView(int number, const Columns& channels, int decimals = 0,
               const QString& low = QStringLiteral("0"),
               const QString& high = QStringLiteral("100"))
        : view((makeView(number, channels, decimals, low, high), number)) {
        EXPECT_TRUE(view.afterLoad());
    }
    TrendView view;
};

// A line fed by one channel with a scale.
inline TrendLine line(int source, const QString& low = QStringLiteral("0"),
                      const QString& high = QStringLiteral("100"), int decimals = 0) {
    TrendLine l;
    l.sourceColumn = qint16(source);
    l.enabled = 1;
    l.scaleLow = low;
    l.scaleHigh = high;
    l.decimals = qint16(decimals);
    return l;
}

} // namespace trendtest

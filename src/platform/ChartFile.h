#pragma once

class ChartModel;
class QIODevice;

// The whole state of a chart in a file of its own: axes, styles, labels, legend, titles,
// colours and the points of stored series. A series read from a SeriesSource keeps its style
// and display state but comes back empty: its owner attaches the source again after loading,
// since the points belong to the recording store.
namespace ChartFile {

bool save(const ChartModel& model, QIODevice& device);
// False, leaving the model as it was, when the device holds no chart of this format.
bool load(ChartModel& model, QIODevice& device);

} // namespace ChartFile

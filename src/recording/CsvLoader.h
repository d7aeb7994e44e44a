#pragma once

#include "recording/RecordingLoader.h"

// A CSV file of samples, one file a view.
LoadOutcome LoadFileDataCsv(ViewState& view, const LoadOptions& options);

// Makes one CSV file the whole selection, as a drop of it does, and loads it into the view.
LoadOutcome openSingleCsv(const QString& path, ViewState& view, const LoadOptions& options);

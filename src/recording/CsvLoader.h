#pragma once

#include "recording/RecordingLoader.h"

// A CSV file of samples, one file a view.
LoadOutcome LoadFileDataCsv(ViewTables& view, const LoadOptions& options);

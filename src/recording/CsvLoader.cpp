#include "recording/CsvLoader.h"

LoadOutcome LoadFileDataCsv(ViewTables&, const LoadOptions&) { return {LoadOutcome::Status::NotHandled, 0, {}}; }

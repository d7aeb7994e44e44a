#pragma once

#include "recording/FileBytes.h"
#include "recording/ViewState.h"

// Hands a VXF file's batch block (its offset behind the alarm records, and the table's batch
// base) to the batch information reader; true when the file has batch information, which
// enables the view's batch button. Until that reader exists no file has any.
bool ReadBatchInfo(ViewState& view, const FileBytes& bytes, qint64 blockOffset, qint64 batchBase);

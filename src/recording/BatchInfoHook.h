#pragma once

#include "recording/FileBytes.h"
#include "recording/ViewState.h"

// Reads a VXF file's batch block into the view's clsBatchInfo (each file's read replaces the
// last). The one place that decides where the block lies: its head at the layout's batch base
// in the file header, its texts from the end of the body (behind the alarm records). True when
// the file has batch information, which enables the view's batch button; a block that does not
// fit the file leaves the view without batch information.
bool ReadBatchInfo(ViewState& view, const FileBytes& bytes, qint64 bodyEnd, qint64 batchBase);

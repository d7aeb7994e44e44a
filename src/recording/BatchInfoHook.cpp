#include "recording/BatchInfoHook.h"

bool ReadBatchInfo(ViewTables&, const FileBytes&, qint64, qint64) {
    return false;
}

#include "recording/BatchInfoHook.h"

bool ReadBatchInfo(ViewState&, const FileBytes&, qint64, qint64) {
    return false;
}

#include "recording/BatchInfoHook.h"

#include "recording/clsBatchInfo.h"

bool ReadBatchInfo(ViewState& view, const FileBytes& bytes, qint64 bodyEnd, qint64 batchBase) {
    clsBatchInfo& batch = view.part<clsBatchInfo>();
    return batch.ReadBatchInfo(batchBase, bodyEnd, bytes) && batch.HasBatchInfo();
}

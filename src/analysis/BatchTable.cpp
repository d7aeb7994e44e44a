#include "analysis/BatchTable.h"

#include "recording/clsBatchInfo.h"

QVector<QPair<QString, QString>> batchTableRows(const clsBatchInfo& batch) {
    QVector<QPair<QString, QString>> rows{{QStringLiteral("Batch name"), batch.BatchName()},
                                          {QStringLiteral("LOT No"), batch.LotNumber()}};
    for (int i = 0; i < batch.BatchTextCount(); ++i)
        rows.append({batch.GetBatchTextTitle(i), batch.GetBatchTextContext(i)});
    return rows;
}

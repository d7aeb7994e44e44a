#pragma once

#include <QPair>
#include <QString>
#include <QVector>

class clsBatchInfo;

// The rows of the batch information table: the batch name and the lot number, then the
// (title, context) pairs of the recording.
QVector<QPair<QString, QString>> batchTableRows(const clsBatchInfo& batch);

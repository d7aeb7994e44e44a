#pragma once

#include "ftp/FTPFile.h"

#include <QList>
#include <QString>

// One row of a collection pass.
struct CollectOutcome {
    int row = 0;
    bool collected = false; // at least one file came and none failed
    FtpRowDetail detail;
};

// The rows of the table that take part in a pass: those with a local directory.
QList<int> configuredRows(const FtpTable& table);

// One pass over the given rows on the collection engine, each row in a session of its own
// (binary, active mode): the daily pass's rules (one attempt a row), or with `manual` those of
// "collect all" (the table's retries and waits). A row that collected gets status "done" and
// `timeText` as its Time; the others get "not collected".
QList<CollectOutcome> collectRows(FTPFile& ftpFile, const QList<int>& rows, const QString& timeText,
                                  bool manual = false);

// The error column of a row: the failure's text and the names that were skipped.
QString outcomeErrorText(const CollectOutcome& outcome);

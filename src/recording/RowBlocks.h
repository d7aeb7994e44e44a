#pragma once

#include "recording/FormatReader.h"

#include <functional>

// The row loop of a reader whose rows lie back to back from a data offset. Rows are decoded in
// blocks; a large file is split into two halves decoded at once on two threads (each half writes
// its own rows of every column). Only the calling thread polls for a cancel, and it stops the other
// before the cancel goes on. File pages a half has passed are given back as it goes.
namespace RowBlocks {
// Files with fewer data bytes stay on one thread (tests set 0 to force the split).
inline qint64 parallelBytes = qint64(8) << 20;

// Calls decode(r0, r1) for consecutive blocks r0..r1 covering firstRow..lastRow (file rows from
// 1), with row r at dataOffset + (r - 1) * rowBytes.
void decode(const FileLoad& load, qint64 firstRow, qint64 lastRow, qint64 dataOffset,
            qint64 rowBytes, const std::function<void(qint64 r0, qint64 r1)>& decodeBlock);
} // namespace RowBlocks

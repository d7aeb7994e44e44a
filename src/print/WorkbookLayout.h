#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

// How the rows of a data list are spread over the sheets of a workbook: at most 256,000
// channel cells a sheet, at most 254 grid columns, sheet names that a workbook accepts.
namespace WorkbookLayout {
inline constexpr int kMaxColumns = 254;
inline constexpr qint64 kMaxCells = 256000;

// Rows written: 1, 1 + step, ... up to total.
qint64 rowCount(qint64 total, qint64 step);
// Rows a sheet: 32,000, or where rows x channels pass the cell limit 20,000 halved (rounded)
// until they fit. At least 1.
qint64 rowsPerSheet(qint64 rows, int channels);
qint64 sheetCount(qint64 rows, qint64 perSheet);
// Sheet names from the chart header (or the document title when it is empty): "k-" in front
// when there are several sheets, characters that names forbid replaced, cut to 31 characters
// and made unique, so that no name can stop the export.
QStringList sheetNames(const QString& header, const QString& title, qint64 sheets);
} // namespace WorkbookLayout

#pragma once

#include <QString>

class DataList;
class Progress;

// Writes what a data list shows to a workbook (.xlsx): the rows of the row step spread over
// sheets of at most 256,000 channel cells, date and time as date and time cells, numbers as
// numbers and status words as text, the comment block below the last sheet's rows, and a line
// chart on every sheet unless the value axis is logarithmic (whose values at or below 0 stay
// empty). Rows stream to the file as they are made, so memory does not grow with the rows. The
// workbook goes to a temporary name beside path and replaces it when complete. False, with the
// reason in error, when it could not be written or the write was cancelled.
bool WriteListExcel(DataList& list, const QString& path, Progress* progress, QString& error);

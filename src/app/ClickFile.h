#pragma once

#include "recording/SelectionLists.h"

#include <QString>
#include <QStringList>

// The hand-off file "D_Click.ini" in AppPaths(4): a second instance writes the files of its
// command line there and ends; the first instance polls for it and opens them.
//
//   FILECOUNT=n, FILETYPE=t, INTVAL=ms, then per file NAME=path, followed (unless t is 1, a saved
//   trend) by START=seconds and STARTMSEC=n.

QString clickFilePath();

// The lines of the file for a selection.
QStringList clickFileLines(const SelectionLists& sel);
bool WriteClickFile(const SelectionLists& sel, const QString& path = clickFilePath());

// Fills `sel` from the file. Each trimmed line is split at its first "="; other keys are
// ignored. False (and `sel` untouched) when the file cannot be read, FILECOUNT is below 1, or
// it names no file.
bool ReadClickFile(SelectionLists& sel, const QString& path = clickFilePath());
bool parseClickFile(const QStringList& lines, SelectionLists& sel);

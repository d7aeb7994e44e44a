#pragma once

#include "recording/SelectionLists.h"

#include <QString>
#include <QStringList>

// Turning the program's command line into a checked selection of one family.
namespace CommandFiles {

// The tokens of a command line: quoted form when it starts with a double quote, otherwise
// separated by blanks.
QStringList tokens(const QString& commandLine);

// Fills the selection from a command line; SelFileCount 0 when nothing is taken.
void ParseCommandFiles(const QString& commandLine, bool gsMode, SelectionLists& sel = selection());

// A command line in quoted form for a list of paths.
QString quotedCommandLine(const QStringList& paths);

} // namespace CommandFiles

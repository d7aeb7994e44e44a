#pragma once

#include <QStringList>

namespace Cli {

// True when the arguments ask for a headless verb (or --help / --version) rather than the desktop.
bool isHeadless(const QStringList& args);

// Runs a headless verb; args are the program's arguments without the program name.
int run(const QStringList& args);

} // namespace Cli

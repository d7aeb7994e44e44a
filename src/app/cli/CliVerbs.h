#pragma once

#include <QString>
#include <QStringList>

namespace Cli {

struct Verb {
    const char* name;
    int (*run)(const QStringList& args);
};

// The table of headless verbs; nullptr for an unknown name.
const Verb* findVerb(const QString& name);

} // namespace Cli

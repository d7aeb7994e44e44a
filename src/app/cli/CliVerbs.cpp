#include "app/cli/CliVerbs.h"

namespace Cli {

extern const Verb kDumpVerb;
extern const Verb kInfoVerb;

const Verb* findVerb(const QString& name) {
    static const Verb* const kVerbs[] = {&kDumpVerb, &kInfoVerb};
    for (const Verb* verb : kVerbs)
        if (name == QLatin1String(verb->name)) return verb;
    return nullptr;
}

} // namespace Cli

#include "app/cli/CliVerbs.h"

#include <iterator>

namespace Cli {

namespace {
const Verb kVerbs[] = {
    {"", nullptr}, // placeholder until the first verb lands
};
} // namespace

const Verb* findVerb(const QString& name) {
    for (const Verb& verb : kVerbs)
        if (verb.run && name == QLatin1String(verb.name)) return &verb;
    return nullptr;
}

} // namespace Cli

#include "app/cli/CliVerbs.h"

namespace Cli {

extern const Verb kBatchVerb;
extern const Verb kCollectVerb;
extern const Verb kDumpVerb;
extern const Verb kExportVerb;
extern const Verb kInfoVerb;
extern const Verb kPrintVerb;
extern const Verb kRenderVerb;
extern const Verb kSearchVerb;
extern const Verb kStatsVerb;

const Verb* findVerb(const QString& name) {
    static const Verb* const kVerbs[] = {&kBatchVerb,  &kCollectVerb, &kDumpVerb,
                                         &kExportVerb, &kInfoVerb,    &kPrintVerb,
                                         &kRenderVerb, &kSearchVerb,  &kStatsVerb};
    for (const Verb* verb : kVerbs)
        if (name == QLatin1String(verb->name)) return verb;
    return nullptr;
}

} // namespace Cli

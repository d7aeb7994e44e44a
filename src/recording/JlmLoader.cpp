#include "recording/JlmLoader.h"

LoadOutcome LoadJlm(ViewTables&, const LoadOptions&) { return {LoadOutcome::Status::NotHandled, 0, {}}; }

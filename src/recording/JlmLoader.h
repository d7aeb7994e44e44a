#pragma once

#include "recording/RecordingLoader.h"

// JLM files have a reader of their own beside the core reader.
LoadOutcome LoadJlm(ViewState& view, const LoadOptions& options);

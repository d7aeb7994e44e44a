#pragma once

#include "recording/ViewState.h"

// Reads the MSG files of the view's message list into its messages, after the data files.
void ReadMsgFiles(ViewState& view);

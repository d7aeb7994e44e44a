#pragma once

#include "recording/SelectionLists.h"
#include "recording/ViewState.h"

#include <QStringList>

// Files dropped on a view (or on the main window for a new view).
namespace DroppedFiles {

// Classifies the files by extension (with the magic test where the family has one), sends MSG
// files to the view's message list, and fills the selection with the family of the highest
// priority (VXB, CSV, VXF, TM, QDF, N5F/P4F, JLM). Shows message 553 when nothing can be opened
// and 561 when no file of the chosen family has a readable header of the common interval, in
// which case the selection is restored. True when the selection is to be opened.
bool OpenDroppedFiles(const QStringList& files, ViewState& view, bool gsMode,
                      SelectionLists& sel = selection());

} // namespace DroppedFiles

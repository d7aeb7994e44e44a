#pragma once

// The saved trend settings that a view reads after its files are read: the multi-scale table
// of the view, in force when its flag ("use these scales when the files are read") is set.
void installSavedTrendSettings();

#pragma once

// Connects the data list's file command (tool bar button 8) to the save dialog and the writer.
void installListExport();

#pragma once

// Connects the export commands of the list windows to the writers: the data list's file
// command (tool bar button 8: save dialog, CSV or text) and workbook command (button 9), and
// the marker view's file command (button 13).
void installExportCommands();

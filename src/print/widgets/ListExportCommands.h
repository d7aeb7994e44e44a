#pragma once

// Connects the data list's file command (tool bar button 8: save dialog, CSV or text) and its
// workbook command (button 9) to the writers.
void installListExport();

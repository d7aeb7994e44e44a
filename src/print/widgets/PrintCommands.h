#pragma once

// Connects the print commands of the list windows to the print settings and the sheet
// printing engine: the data list's buttons 5 (settings) and 7 (print), the marker view's 10
// (settings), 11 (preview) and 12 (print). Printing goes to the chosen printer, or to a PDF file
// when no printer is chosen (there always is that output).
void installPrintCommands();

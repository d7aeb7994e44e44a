#pragma once

#include <QString>

class DataList;
class GridModel;
class MarkerView;
class PrintOutput;
class Progress;

// What the print settings give a sheet print: paper, orientation, the header and footer
// programs and the pages.
struct ListPrintSettings {
    int paper = 0; // index of the paper table
    bool landscape = false;
    QString header;
    QString footer = QStringLiteral("/fz\"12\"/c/p///pa"); // page / pages, centred
    int fromPage = 0, toPage = 0;                          // 0: every page
    bool selection = false;                                // only the grid's selection block
};

// The pages a print of the list would take, for the page range of the print settings.
int ListPageCount(DataList& list, const ListPrintSettings& settings);

// The data list on paper: the list's rows and skip, right margin 0 and top margin 30, the date
// and time column frozen. False when the output failed.
bool PrintList(DataList& list, const ListPrintSettings& settings, PrintOutput& out,
               Progress* progress = nullptr);
// Any grid of texts the same way (the batch table), no column frozen.
bool PrintGrid(GridModel& grid, const ListPrintSettings& settings, PrintOutput& out,
               Progress* progress = nullptr);
// The batch table of a view (batch name, lot number, then the pairs) the same way.
bool PrintBatchTable(int viewNumber, const ListPrintSettings& settings, PrintOutput& out,
                     Progress* progress = nullptr);
// The marker view's grid the same way (its shown column groups).
bool PrintMarkerView(MarkerView& marker, const ListPrintSettings& settings, PrintOutput& out,
                     Progress* progress = nullptr);

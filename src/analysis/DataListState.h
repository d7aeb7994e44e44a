#pragma once

#include <QtGlobal>

// What a view keeps about its data list: views(n).part<DataListState>().
struct DataListState {
    qint16 ListOpen = 0;      // -1 while the view's list is open
    qint32 ListRowOffset = 0; // grid row r shows plot point r + ListRowOffset; never negative
    qint16 ListRowSet = 1;    // 1 all rows, 2 rows between the cursors, 3 the visible span
};

#pragma once

#include "ListFixture.h"
#include "analysis/MarkerView.h"
#include "trend/TrendCursors.h"

namespace listtest {

// A recording opened into view 1 with its cursors and its marker view, as the window holds
// them.
struct MarkerFixture {
    explicit MarkerFixture(const fixtures::VxfDescription& d)
        : list(d), cursors(*list.view), marker(*list.view, cursors, grid) {
        cursors.afterLoad();
        marker.load();
    }
    QString cell(int col, int row) { return grid.text(col, row); }
    TrendViewState& state() { return list.view->state(); }

    ListView list;
    TrendCursors cursors;
    GridModel grid;
    MarkerView marker;
};

} // namespace listtest

#include "recording/ViewSlots.h"

#include "recording/RecordingLimits.h"
#include "recording/ViewState.h"

#include <array>

namespace {

std::array<bool, MaxViews>& slots() {
    static std::array<bool, MaxViews> s{};
    return s;
}

bool inRange(int slot) {
    return slot >= 0 && slot < MaxViews;
}

} // namespace

bool ViewInUse(int slot) {
    return inRange(slot) && slots()[size_t(slot)];
}

void setViewInUse(int slot, bool inUse) {
    if (!inRange(slot) || slots()[size_t(slot)] == inUse) return;
    slots()[size_t(slot)] = inUse;
    // A slot taken or given back starts fresh: nothing of an earlier view carries over.
    views(slot + 1).clear();
}

int FirstFreeView() {
    for (int slot = 0; slot < MaxViews; ++slot)
        if (!slots()[size_t(slot)]) return slot + 1;
    return 0;
}

void clearViewSlots() {
    slots().fill(false);
}

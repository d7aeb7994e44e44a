#include "app/ViewSlots.h"

#include <array>

namespace {

std::array<bool, 10>& slots() {
    static std::array<bool, 10> s{};
    return s;
}

} // namespace

bool ViewInUse(int slot) {
    return slot >= 0 && slot < 10 && slots()[slot];
}

void setViewInUse(int slot, bool inUse) {
    if (slot >= 0 && slot < 10) slots()[slot] = inUse;
}

int FirstFreeView() {
    for (int slot = 0; slot < 10; ++slot)
        if (!slots()[slot]) return slot + 1;
    return 0;
}

void clearViewSlots() {
    slots().fill(false);
}

#include "trend/TrendViewState.h"

#include <memory>

TrendViewState& trendState(int viewNumber) {
    static std::array<std::unique_ptr<TrendViewState>, MaxViews> states;
    const size_t i = size_t(qBound(1, viewNumber, MaxViews) - 1);
    if (!states[i]) states[i] = std::make_unique<TrendViewState>();
    return *states[i];
}

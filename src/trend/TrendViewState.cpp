#include "trend/TrendViewState.h"

#include "recording/ViewState.h"

TrendViewState& trendState(int viewNumber) {
    return views(viewNumber).part<TrendViewState>();
}

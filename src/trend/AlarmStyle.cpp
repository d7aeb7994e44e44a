#include "trend/AlarmStyle.h"

#include "base/WinColor.h"
#include "trend/TrendViewState.h"

AlarmStyle::AlarmStyle() {
    const TrendViewState fresh;
    symbol = fresh.AlarmSymbol;
    color = fresh.AlarmColor;
    size = fresh.AlarmSize;
}

AlarmStyle AlarmStyle::of(const TrendViewState& state) {
    AlarmStyle s;
    s.symbol = state.AlarmSymbol;
    s.color = state.AlarmColor;
    s.size = state.AlarmSize;
    return s;
}

void AlarmStyle::applyTo(TrendViewState& state) const {
    state.AlarmSymbol = symbol;
    state.AlarmColor = color;
    state.AlarmSize = size;
}

PointStyle AlarmStyle::pointStyle(int slot, int channel) const {
    PointStyle p;
    p.symbol = Chart::SymbolShape(Symbol(slot, channel));
    p.symbolSize = Size(slot, channel);
    p.color = WinColor::toQColor(Color(slot, channel));
    return p;
}

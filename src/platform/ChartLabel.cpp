#include "platform/ChartLabel.h"

ChartLabel& ChartLabels::add(const QString& name) {
    items_.push_back(std::make_unique<ChartLabel>());
    items_.back()->Name = name;
    return *items_.back();
}

ChartLabel* ChartLabels::item(const QString& name) {
    for (auto& label : items_) {
        if (label->Name == name) return label.get();
    }
    return nullptr;
}

const ChartLabel* ChartLabels::item(const QString& name) const {
    return const_cast<ChartLabels*>(this)->item(name);
}

bool ChartLabels::remove(const QString& name) {
    for (auto it = items_.begin(); it != items_.end(); ++it) {
        if ((*it)->Name == name) {
            items_.erase(it);
            return true;
        }
    }
    return false;
}

void ChartLabels::removeAt(int index) {
    if (index >= 0 && index < count()) items_.erase(items_.begin() + index);
}

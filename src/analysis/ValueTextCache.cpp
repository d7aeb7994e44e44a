#include "analysis/ValueTextCache.h"

#include "trend/ChannelTexts.h"

QString ValueTextCache::text(double value, int formatCode) {
    const Key key{value, formatCode};
    if (const auto it = texts_.find(key); it != texts_.end()) return it->second;
    if (texts_.size() >= kCapacity) texts_.clear();
    if (texts_.bucket_count() < kCapacity) texts_.reserve(kCapacity);
    return texts_.emplace(key, ChannelValueText(value, formatCode)).first->second;
}

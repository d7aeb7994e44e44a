#pragma once

#include <QString>

#include <cstddef>
#include <functional>
#include <unordered_map>

// Remembers the texts of recent channel values (value and format code), so that a list
// formats each distinct number once: recorder values repeat, their texts cost more than a
// look-up. Holds at most kCapacity texts; past that it starts afresh.
class ValueTextCache {
public:
    static constexpr std::size_t kCapacity = 65536;

    // ChannelValueText(value, formatCode), from the cache when it holds it.
    QString text(double value, int formatCode);
    void clear() { texts_.clear(); }
    std::size_t size() const { return texts_.size(); }

private:
    struct Key {
        double value;
        int code;
        bool operator==(const Key&) const = default;
    };
    struct KeyHash {
        std::size_t operator()(const Key& k) const {
            return std::hash<double>()(k.value) ^ (std::size_t(k.code) * 0x9E3779B97F4A7C15ull);
        }
    };
    std::unordered_map<Key, QString, KeyHash> texts_;
};

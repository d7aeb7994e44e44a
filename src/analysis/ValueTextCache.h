#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstring>
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
            // Values equal as numbers (0 and -0) hash alike.
            const double v = k.value == 0 ? 0.0 : k.value;
            std::uint64_t bits = 0;
            std::memcpy(&bits, &v, sizeof bits);
            return std::size_t(
                (bits ^ std::uint64_t(std::uint32_t(k.code)) << 32) * 0x9E3779B97F4A7C15ull >> 16);
        }
    };
    std::unordered_map<Key, QString, KeyHash> texts_;
};

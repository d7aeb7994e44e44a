#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <vector>

// The texts of numbers already formatted, found by the bits of the number: an open-addressing
// table with the (short) texts inline, so that a look-up costs one cache line. It grows to
// kMaxSlots and then keeps what it holds; texts longer than an entry holds are not kept.
class NumberTextTable {
public:
    static constexpr size_t kMaxSlots = size_t(1) << 15;
    static constexpr int kMaxText = 22;

    // The text kept for key, or nullptr.
    const char* find(quint64 key, int& length) const;
    void insert(quint64 key, const QByteArray& text);
    size_t size() const { return used_; }

private:
    struct Entry {
        quint64 key = 0;
        qint8 length = -1; // -1: free
        char text[kMaxText + 1];
    };
    // Numbers often differ only in their high bits (whole and half values): every bit is mixed.
    static size_t slotOf(quint64 key, size_t slots) {
        key ^= key >> 33;
        key *= 0xFF51AFD7ED558CCDull;
        key ^= key >> 33;
        key *= 0xC4CEB9FE1A85EC53ull;
        key ^= key >> 33;
        return size_t(key) & (slots - 1);
    }
    void grow();

    std::vector<Entry> entries_;
    size_t used_ = 0;
};

#include "print/NumberTextTable.h"

#include <cstring>

const char* NumberTextTable::find(quint64 key, int& length) const {
    if (entries_.empty()) return nullptr;
    const size_t mask = entries_.size() - 1;
    for (size_t i = slotOf(key, entries_.size());; i = (i + 1) & mask) {
        const Entry& e = entries_[i];
        if (e.length < 0) return nullptr;
        if (e.key == key) {
            length = e.length;
            return e.text;
        }
    }
}

void NumberTextTable::insert(quint64 key, const QByteArray& text) {
    if (text.size() > kMaxText) return;
    int length;
    const bool kept = find(key, length) != nullptr;
    if (!kept && 2 * (used_ + 1) > entries_.size()) {
        if (entries_.size() >= kMaxSlots) return; // full: keeps what it holds
        grow();
    }
    const size_t mask = entries_.size() - 1;
    size_t i = slotOf(key, entries_.size());
    while (entries_[i].length >= 0 && entries_[i].key != key) i = (i + 1) & mask;
    Entry& e = entries_[i];
    if (e.length < 0) ++used_;
    e.key = key;
    e.length = qint8(text.size());
    std::memcpy(e.text, text.constData(), size_t(text.size()));
}

void NumberTextTable::grow() {
    std::vector<Entry> old = std::move(entries_);
    entries_.assign(old.empty() ? 1024 : 2 * old.size(), Entry());
    used_ = 0;
    for (const Entry& e : old)
        if (e.length >= 0) insert(e.key, QByteArray::fromRawData(e.text, e.length));
}

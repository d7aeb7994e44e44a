#include "print/NumberTextTable.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

quint64 bitsOf(double v) {
    quint64 bits;
    std::memcpy(&bits, &v, sizeof bits);
    return bits;
}

std::string found(const NumberTextTable& table, quint64 key) {
    int length = -1;
    const char* text = table.find(key, length);
    return text ? std::string(text, size_t(length)) : std::string("<none>");
}

TEST(NumberTextTable, KeepsTextsThroughGrowthUntilFull) {
    NumberTextTable table;
    EXPECT_EQ(found(table, 0), "<none>");
    table.insert(0, "0");
    table.insert(bitsOf(-0.0), "-0");
    // Whole and half values differ only in their high bits; they must not pile up in one slot.
    const int n = int(NumberTextTable::kMaxSlots / 2) - 2;
    for (int i = 1; i <= n; ++i) table.insert(bitsOf(i * 0.5), QByteArray::number(i * 0.5));
    EXPECT_EQ(table.size(), size_t(n) + 2);
    EXPECT_EQ(found(table, 0), "0");
    EXPECT_EQ(found(table, bitsOf(-0.0)), "-0");
    for (int i : {1, 2, 777, n})
        EXPECT_EQ(found(table, bitsOf(i * 0.5)), QByteArray::number(i * 0.5).toStdString());
    // Full: what it holds stays, new numbers are not kept.
    table.insert(bitsOf(1e9), "1000000000");
    EXPECT_EQ(found(table, bitsOf(1e9)), "<none>");
    EXPECT_EQ(found(table, bitsOf(1.5)), "1.5");
    table.insert(bitsOf(1.5), "again"); // an update of a kept key still works
    EXPECT_EQ(found(table, bitsOf(1.5)), "again");
}

TEST(NumberTextTable, TextsLongerThanAnEntryAreNotKept) {
    NumberTextTable table;
    const QByteArray longest(NumberTextTable::kMaxText, 'x');
    table.insert(1, longest);
    table.insert(2, longest + "y");
    EXPECT_EQ(found(table, 1), longest.toStdString());
    EXPECT_EQ(found(table, 2), "<none>");
}

} // namespace

#include "memories/memory_order.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "wire/decimal_number.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

constexpr int behindEveryFrequency = 99'999'999;

int ascendingFrequency(const MemoryChannel& row) { return decimal(row.frequency).value_or(behindEveryFrequency); }
double descendingFrequency(const MemoryChannel& row) { return numberOrZero(row.frequency); }

// An empty tag compares as last, which gives the strict weak order that the sort needs.
std::pair<bool, std::string_view> ascendingTag(const MemoryChannel& row) { return {row.tag.empty(), row.tag}; }

}  // namespace

void moveChannel(MemoryTable& table, int from, int to) {
    const auto first = table.begin() + std::min(from, to);
    const auto last = table.begin() + std::max(from, to) + 1;
    std::rotate(first, from < to ? first + 1 : last - 1, last);
}

void sortByFrequency(MemoryTable& table, SortDirection before) {
    if (before == SortDirection::ascending)
        std::ranges::stable_sort(table, std::greater{}, descendingFrequency);
    else
        std::ranges::stable_sort(table, std::less{}, ascendingFrequency);
}

void sortByTag(MemoryTable& table, SortDirection before) {
    if (before == SortDirection::ascending)
        std::ranges::stable_sort(table, std::greater{}, &MemoryChannel::tag);
    else
        std::ranges::stable_sort(table, std::less{}, ascendingTag);
}

}  // namespace corvane

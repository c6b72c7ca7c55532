#include "activity/row_order.h"

#include <algorithm>
#include <charconv>
#include <compare>
#include <optional>
#include <tuple>

#include "wire/letter_case.h"

namespace corvane {

namespace {

// A key made ready to be compared.
struct SortKey {
    bool empty;
    double number;     // at its start; without one beyond all numbers
    std::string text;  // without case

    explicit SortKey(const std::string& key) : empty(key.empty()), number(beyondNumbers), text(upperCase(key)) {
        std::from_chars(key.data(), key.data() + key.size(), number, std::chars_format::fixed);
    }

    static constexpr double beyondNumbers = 1e18;
};

}  // namespace

std::vector<int> inOrder(const std::vector<ShownRow>& rows, SortDirection direction) {
    struct Sorted {
        int row;
        bool closed;
        SortKey key;
    };
    std::vector<Sorted> sorted;
    sorted.reserve(rows.size());
    for (const ShownRow& each : rows) sorted.push_back({each.row, each.closed, SortKey(each.key)});
    std::ranges::stable_sort(sorted, [direction](const Sorted& a, const Sorted& b) {
        if (a.closed != b.closed) return b.closed;
        if (direction == SortDirection::unknown) return false;
        if (a.key.empty != b.key.empty) return b.key.empty;
        const bool up = direction == SortDirection::ascending;
        const SortKey& first = up ? a.key : b.key;
        const SortKey& second = up ? b.key : a.key;
        return std::tie(first.number, first.text) < std::tie(second.number, second.text);
    });
    std::vector<int> order;
    order.reserve(sorted.size());
    for (const Sorted& each : sorted) order.push_back(each.row);
    return order;
}

}  // namespace corvane

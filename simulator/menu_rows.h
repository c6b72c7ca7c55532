#pragma once

#include <span>
#include <string_view>

namespace simulator {

enum class MenuForm { number, signedNumber, text };

// One item of the setup menu. `width` is the exact number of characters of its value on the line: item 010104 with
// width 4 is answered "EX0101040300;", item 010101 with width 3 and a sign "EX010101+00;", the text item 040101 with
// width 12 "EX040101N0CALL      ;". A text has no lowest, highest and step.
struct MenuRow {
    std::string_view number;
    MenuForm form;
    int width;
    int lowest;
    int highest;
    int step;
    int initial;
};

// All items, ordered by number.
std::span<const MenuRow> menuRows();

// The item of a six-digit number, or null when there is none.
const MenuRow* menuRow(std::string_view number);

}  // namespace simulator

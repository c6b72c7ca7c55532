// What stands in a cell of a table, as plain values.
#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "display/entry_titles.h"

namespace corvane {

struct TextCell {
    std::string text;
    bool quiet = false;  // names something that holds nothing

    bool operator==(const TextCell&) const = default;
};

// What the row is taken by to be dragged elsewhere.
struct HandleCell {
    bool operator==(const HandleCell&) const = default;
};

struct LinkCell {
    std::string text;
    std::string address;  // of a web page, e.g. "https://pota.app/#/park/US-0001"

    bool operator==(const LinkCell&) const = default;
};

struct ButtonCell {
    std::string title;  // "Tune"
    std::string label;  // "Tune to this spot"
    int tag = 0;        // the row's index

    bool operator==(const ButtonCell&) const = default;
};

struct PopUpCell {
    const EntryTitles* entries = nullptr;  // of the pop-up that stands for the column's; they live as long
    int selection = 0;                     // the entry that is shown; there must be one

    bool operator==(const PopUpCell& other) const { return selection == other.selection && *entries == *other.entries; }
};

// Text that the operator may replace.
struct EditableCell {
    std::string text;

    bool operator==(const EditableCell&) const = default;
};

using TableCell = std::variant<TextCell, HandleCell, LinkCell, ButtonCell, PopUpCell, EditableCell>;

// What is read in the cell: its text, a button's title, a pop-up's chosen entry; nothing for a handle.
std::string textOf(const TableCell& cell);
std::string textOf(TableCell&& cell);

// The same in words, with what kind of cell it is: "Tune to this spot, button", "US-0001, link", "USB, pop-up menu",
// "empty".
std::string spokenTextOf(const TableCell& cell);

}  // namespace corvane

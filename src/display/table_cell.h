// What stands in a cell of a table, as plain values.
#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "display/entry_titles.h"

namespace corvane {

struct TextCell {
    std::string text;
    bool quiet = false;  // painted less bright, e.g. the number of an empty channel

    bool operator==(const TextCell&) const = default;
};

// The place where the mouse takes hold of the row to drag it.
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
    const EntryTitles* entries = nullptr;  // of the pop-up that serves the column; they outlive the cell
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

// The same for a screen reader, followed by the kind of the cell: "Tune to this spot, button", "US-0001, link", "USB,
// pop-up menu", "empty".
std::string spokenTextOf(const TableCell& cell);

}  // namespace corvane

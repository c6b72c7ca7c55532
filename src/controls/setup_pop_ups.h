// The pop-ups that share one action and are told apart by their tags: those of the scope, of the power and the
// power-off, and those that write keyer memories.
#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace corvane {

// What a choice does: it sends the entry's index, its title or its watts, starts the power-off timer, or stores an
// editor's text in a memory.
enum class SetupChoice { index, title, watts, powerOff, memoryText };

struct SetupPopUp {
    int tag;
    SetupChoice choice;
    std::string_view before = {};   // the text before the value, e.g. "SS00"
    std::string_view after = {};    // the text after it, e.g. "0000;"
    std::string_view noEntry = {};  // the value when no entry is selected; empty: nothing is sent
};

inline constexpr std::array setupPopUps{
    SetupPopUp{2000, SetupChoice::index, "SS00", "0000;"},       // scope speed
    SetupPopUp{2001, SetupChoice::index, "SS01", "0000;"},       // scope peak
    SetupPopUp{2004, SetupChoice::title, "SS04", ";", "+00.0"},  // scope level
    SetupPopUp{2005, SetupChoice::index, "SS05", "0000;"},       // scope span
    SetupPopUp{2006, SetupChoice::powerOff},
    SetupPopUp{2007, SetupChoice::watts, "PC", ";"},
    SetupPopUp{3001, SetupChoice::memoryText},  // CW
    SetupPopUp{3002, SetupChoice::memoryText},  // RTTY
    SetupPopUp{3003, SetupChoice::memoryText},  // PSK
};
static_assert(std::ranges::is_sorted(setupPopUps, std::ranges::less_equal{}, &SetupPopUp::tag));

// The row of a tag, or nullptr: 2000 gives the scope speed.
constexpr const SetupPopUp* setupPopUp(int tag) {
    const auto row = std::ranges::find(setupPopUps, tag, &SetupPopUp::tag);
    return row == setupPopUps.end() ? nullptr : &*row;
}

// The command for a choice: entry 2 of tag 2000 gives "SS0020000;", the title "-30.0" of tag 2004 "SS04-30.0;", entry
// 45 of tag 2007 "PC050;". Empty for a choice that sends no command. Without a selected entry (index below 0) the value
// is `noEntry`; if that is empty, so is the command.
std::string setupCommand(const SetupPopUp& popUp, int index, std::string_view title);

}  // namespace corvane

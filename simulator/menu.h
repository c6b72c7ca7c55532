#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "simulator/menu_rows.h"

namespace simulator {

// The values of the setup menu, as the characters sent on the line.
class Menu {
public:
    Menu();

    // The value of a six-digit item ("010104" gives "0300"), or nothing for an item that does not exist.
    std::optional<std::string> value(std::string_view number) const;

    // Stores a value. Refused, keeping the old one, unless the item exists and the value has the item's width, lies
    // within its range and fits its step. A call sign may be shorter than its width and is padded with blanks.
    bool store(std::string_view number, std::string_view value);

private:
    std::map<std::string, std::string, std::less<>> values_;
};

}  // namespace simulator

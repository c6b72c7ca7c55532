#include "interpret/menu_writes.h"

#include "display/entry_titles.h"
#include "wire/cat_command.h"

namespace corvane {

std::string menuFallback(const MenuItemRow& row) {
    const EntryTitles titles = entryTitles(row.entries);
    for (const std::string_view zero : {"+00", "000", "00", "0000"})
        if (titles.indexOf(zero)) return std::string(zero);
    return titles.size() > 0 ? titles.at(0) : std::string{};
}

std::string menuSetCommand(const MenuItemRow& row, int index, std::string_view title) {
    if (row.write == MenuWrite::none || (index < 0 && row.write != MenuWrite::title)) return {};
    std::string value;
    switch (row.write) {
        case MenuWrite::title:
            value = index < 0 ? menuFallback(row) : std::string(title);
            break;
        case MenuWrite::index:
            value = std::to_string(index);
            break;
        case MenuWrite::twoDigits:
            value = zeroPadded(index, 2);
            break;
        case MenuWrite::threeDigits:
            value = zeroPadded(index, 3);
            break;
        case MenuWrite::none:
            break;
    }
    return "EX" + zeroPadded(row.number, 6) + value + ';';
}

}  // namespace corvane

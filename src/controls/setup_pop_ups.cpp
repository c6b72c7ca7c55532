#include "controls/setup_pop_ups.h"

#include "wire/cat_command.h"
#include "wire/setting_codes.h"

namespace corvane {

namespace {

std::string valueOf(SetupChoice choice, int index, std::string_view title) {
    switch (choice) {
        case SetupChoice::index:
            return std::to_string(index);
        case SetupChoice::title:
            return std::string(title);
        case SetupChoice::watts:
            return zeroPadded(index + lowestPower, 3);
        case SetupChoice::powerOff:
        case SetupChoice::memoryText:
            break;
    }
    return {};
}

}  // namespace

std::string setupCommand(const SetupPopUp& popUp, int index, std::string_view title) {
    if (index < 0 && popUp.noEntry.empty()) return {};
    const std::string value = index < 0 ? std::string(popUp.noEntry) : valueOf(popUp.choice, index, title);
    return std::string(popUp.before).append(value).append(popUp.after);
}

}  // namespace corvane

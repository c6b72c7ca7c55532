#include "app/preferences.h"

namespace corvane {

void Preferences::restore() {
    for (const PreferenceSwitch& row : preferenceSwitches) {
        switches_.*row.value = settings_.text(row.key).value_or(std::string(row.defaultValue));
        show(row);
    }
}

void Preferences::goMainMenu(MenuItem& sender) {
    for (const PreferenceSwitch& row : preferenceSwitches) {
        const bool wasOn = sender.tag() == row.onTag;
        if (!wasOn && sender.tag() != row.onTag + offTagOffset) continue;
        switches_.*row.value = wasOn ? "0" : "1";
        settings_.setText(row.key, switches_.*row.value);
        return show(row);
    }
}

void Preferences::show(const PreferenceSwitch& row) {
    const bool on = switches_.*row.value == "1";
    MenuItem& item = display_.*row.item;
    item.setChecked(on);
    item.setTag(on ? row.onTag : row.onTag + offTagOffset);
}

}  // namespace corvane

// What is kept between runs: read back when the window is there, and again when ports appear.
#include "controller/serial_port_demo_controller.h"
#include "display/pop_up_entries.h"

namespace corvane {

void SerialPortDemoController::restoreSettings() {
    const std::string port = userDefaults.text("defaultPort").value_or("");
    const std::string baudRate = userDefaults.text("defaultBaud").value_or("");
    if (!baudRate.empty()) display.BaudPopUpButton.selectItemWithTitle(baudRate);
    if (!port.empty() && !(link.serialPort && link.serialPort->isOpen())) {
        display.PortPopUpButton.selectItemWithTitle(port);
        choosePort(display.PortPopUpButton);
    }

    for (const PreferenceSwitch& row : preferenceSwitches)
        preferences.*row.value = userDefaults.text(row.key).value_or(std::string(row.defaultValue));
    applyAutoMemSquelch(userDefaults.integer("autosquelch"));
    for (const PreferenceSwitch& row : preferenceSwitches) {
        const bool on = preferences.*row.value == "1";
        MenuItem& item = display.*row.item;
        item.setChecked(on);
        item.setTag(on ? row.onTag : row.onTag + offTagOffset);
    }
    preferences.vqPortChecked = 1;
    display.vqMemAButton.setTitle("  M-01");
    const int power = display.powerPopUpButton.indexOfSelectedItem();
    display.powerPopUpButton.setEntries(powerEntries());
    for (int entry = 0; entry < display.powerPopUpButton.titles().size(); ++entry)
        display.powerPopUpButton.setItemImage(entry, Image::NSImageNameStatusAvailable);
    display.powerPopUpButton.selectItem(power);
    fillMenuPopUps();
    fetchLists();
}

void SerialPortDemoController::goMainMenu(MenuItem& sender) {
    for (const PreferenceSwitch& row : preferenceSwitches) {
        const bool wasOn = sender.tag() == row.onTag;
        if (!wasOn && sender.tag() != row.onTag + offTagOffset) continue;
        const std::string_view value = wasOn ? "0" : "1";
        preferences.*row.value = value;
        userDefaults.setText(row.key, value);
        sender.setTag(wasOn ? row.onTag + offTagOffset : row.onTag);
        (display.*row.item).setChecked(!wasOn);
        return;
    }
}

}  // namespace corvane

// The preset pop-up, by its titles.
#include "controller/serial_port_demo_controller.h"
#include "controls/presets.h"

namespace corvane {

void SerialPortDemoController::fillPresetPopUp() {
    std::vector<std::string> titles;
    std::vector<PopUpButton::Group> groups;
    for (const Preset& preset : presets) {
        if (groups.empty() || groups.back().title != preset.group)
            groups.push_back({std::string(preset.group), static_cast<int>(titles.size())});
        titles.emplace_back(preset.title);
    }
    display.presetPopUpButton.setEntries(std::move(titles), std::move(groups));
}

// A title without a row is announced and sends nothing: the command before it must not go out a second time.
void SerialPortDemoController::goMacro(PopUpButton& sender) {
    const std::string title = sender.titleOfSelectedItem();
    if (const Preset* preset = presetWithTitle(title))
        sendBuilt(std::string(preset->prefix).append(radio.vqAorB).append(preset->suffix));
    speak(title);
}

}  // namespace corvane

#include "controls/preset_pop_up.h"

#include <string>
#include <utility>
#include <vector>

#include "controls/presets.h"

namespace corvane {

PresetPopUp::PresetPopUp(Display& display, Link& link, const Mirror& mirror, Voice& voice)
    : link_(link), mirror_(mirror), voice_(voice) {
    std::vector<std::string> titles;
    std::vector<PopUpButton::Group> groups;
    for (const Preset& preset : presets) {
        if (groups.empty() || groups.back().title != preset.group)
            groups.push_back({std::string(preset.group), static_cast<int>(titles.size())});
        titles.emplace_back(preset.title);
    }
    display.presetPopUpButton.setEntries(std::move(titles), std::move(groups));
}

// A title without a preset is announced, but must not send the previous command again.
void PresetPopUp::goMacro(PopUpButton& sender) {
    const std::string title = sender.titleOfSelectedItem();
    if (const Preset* preset = presetWithTitle(title))
        link_.send(std::string(preset->prefix).append(mirror_.state().vqAorB).append(preset->suffix));
    voice_.speak(title);
}

}  // namespace corvane

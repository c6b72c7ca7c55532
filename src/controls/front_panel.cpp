// The keys of the main window. A key is known by its tag; its kind builds a command, and the common tail sends it.
#include <algorithm>

#include "controller/serial_port_demo_controller.h"
#include "controls/front_panel_actions.h"
#include "interpret/menu_groups.h"
#include "wire/cat_command.h"
#include "wire/operating_modes.h"
#include "wire/wire_text.h"

namespace corvane {

using namespace std::chrono_literals;

void SerialPortDemoController::go(Button& sender) {
    using Controller = SerialPortDemoController;
    struct Kind {
        int firstTag;
        int lastTag;
        bool (Controller::*press)(Button& sender);
    };
    static constexpr std::array kinds{
        Kind{firstBandTag, lastBandTag, &Controller::pressBandKey},
        Kind{firstModeTag, firstModeTag + static_cast<int>(modeKeyCodes.size()) - 1, &Controller::pressModeKey},
        Kind{225, 234, &Controller::pressToggleKey},
        Kind{275, 276, &Controller::pressSwapKey},
        Kind{277, 277, &Controller::pressCommandKey},
        Kind{300, 300, &Controller::pressPowerOnKey},
        Kind{301, 301, &Controller::pressPowerOffKey},
        Kind{351, 351, &Controller::pressScopeColorKey},
        Kind{352, 382, &Controller::pressCommandKey},
        Kind{383, 384, &Controller::pressToggleKey},
        Kind{450, 453, &Controller::pressStepKey},
        Kind{460, 461, &Controller::pressCommandKey},
        Kind{500, 501, &Controller::pressVfoKey},
        Kind{502, 502, &Controller::pressMemoryKey},
        Kind{503, 503, &Controller::pressMemoryBKey},
        Kind{601, 605, &Controller::pressTextMemoryKey},
        Kind{606, 606, &Controller::pressClearLogKey},
        Kind{muteTag, muteTag, &Controller::pressMuteKey},
        Kind{805, 805, &Controller::pressProductPageKey},
        Kind{810, 814, &Controller::pressRefreshKey},
        Kind{815, 815, &Controller::pressClearAutoMemoriesKey},
        Kind{1225, 1234, &Controller::pressToggleKey},
        Kind{1351, 1351, &Controller::pressScopeColorKey},
        Kind{1383, 1384, &Controller::pressToggleKey},
        Kind{muteTag + onTagOffset, muteTag + onTagOffset, &Controller::pressMuteKey},
        Kind{2010100, 2040100, &Controller::pressReadMenuKey},
        Kind{2050000, 2050000, &Controller::pressCommandKey},
    };
    static_assert(std::ranges::adjacent_find(kinds, [](const Kind& kind, const Kind& next) {
                      return kind.lastTag >= next.firstTag;
                  }) == kinds.end());

    const auto kind = std::ranges::find_if(
        kinds, [tag = sender.tag()](const Kind& row) { return row.firstTag <= tag && tag <= row.lastTag; });
    // What builds no command sends none: the one before it must not go out a second time.
    if (kind != kinds.end() && (this->*kind->press)(sender)) finishGo();
}

void SerialPortDemoController::finishGo() {
    // Break-in off must stay off: it alone goes out without the command that switches break-in on.
    if (link.cmd != "BI0;") link.cmd += "BI1;";
    sendCommand(link.cmd);
}

bool SerialPortDemoController::pressBandKey(Button& sender) {
    clearBandButtons();
    sender.setBezelColor(Color::blue);
    const BandKey* key = rowWithTag(bandKeys, sender.tag());
    if (!key) return false;
    link.cmd = key->tag == mediumWaveTag ? "MD05;F" + radio.vqAorB + "001100000;" : std::string(key->command);
    speak(key->announcement);
    return true;
}

bool SerialPortDemoController::pressModeKey(Button& sender) {
    sender.setBezelColor(Color::blue);
    link.cmd = std::string("MD0") + modeKeyCodes[static_cast<std::size_t>(sender.tag() - firstModeTag)] + ';';
    return true;
}

bool SerialPortDemoController::pressToggleKey(Button& sender) {
    const ToggleKey* key = toggleKey(sender.tag());
    if (!key) return false;
    const bool switchOn = sender.tag() == key->offTag;
    link.cmd = switchOn ? key->onCommand : key->offCommand;
    sender.setTag(switchOn ? key->offTag + onTagOffset : key->offTag);
    sender.setBezelColor(switchOn ? key->onColor : Color::none);
    if (!key->onTitle.empty()) sender.setTitle(switchOn ? key->onTitle : key->offTitle);
    return true;
}

bool SerialPortDemoController::pressMuteKey(Button& sender) {
    const bool mute = sender.tag() == muteTag;
    link.cmd = mute ? "AG0000;" : "AG0" + radio.vqAFLevel + ';';
    radio.vqMuted = mute ? 1 : 0;
    sender.setTag(mute ? muteTag + onTagOffset : muteTag);
    sender.setImage(mute ? Image::NSImageNameTouchBarAudioOutputMuteTemplate
                         : Image::NSImageNameTouchBarAudioOutputVolumeHighTemplate);
    sender.setBezelColor(mute ? Color::red : Color::none);
    return true;
}

bool SerialPortDemoController::pressCommandKey(Button& sender) {
    const CommandKey* key = rowWithTag(commandKeys, sender.tag());
    if (!key) return false;
    link.cmd = key->command;
    if (!key->announcement.empty()) speak(key->announcement);
    return true;
}

// The first color key takes another tag with its first press, and means the same in both.
bool SerialPortDemoController::pressScopeColorKey(Button& sender) {
    sender.setBezelColor(Color::blue);
    sender.setTag(351);
    const bool known = pressCommandKey(sender);
    sender.setTag(351 + onTagOffset);
    return known;
}

bool SerialPortDemoController::pressStepKey(Button& sender) {
    const StepKey* key = rowWithTag(stepKeys, sender.tag());
    if (!key) return false;
    stepFrequency(key->direction, key->step);
    return true;
}

void SerialPortDemoController::stepFrequency(std::string_view direction, int step) {
    const long long frequency = decimalOrZero(radio.vqAorB == "A" ? radio.vqFreqA : radio.vqFreqB);
    const long long stepped = direction == "up" ? frequency + step : frequency - step;
    // Below nothing there is no frequency that nine digits could say.
    link.cmd = 'F' + radio.vqAorB + zeroPadded(std::max(stepped, 0LL), 9) + ';';
    sendCommand(link.cmd);
}

bool SerialPortDemoController::pressSwapKey(Button& sender) {
    clearBandButtons();
    link.cmd = sender.tag() == 275 ? "SV;VS;FA;IF;" : "SV;VS;FB;OI;";
    return true;
}

// The first "PS1;" only wakes the transceiver; it needs a while before it takes the next. The window stays alive
// meanwhile.
bool SerialPortDemoController::pressPowerOnKey(Button& sender) {
    link.cmd = "PS1;";
    sendCommand(link.cmd);
    sender.setBusy(true);
    later(1250ms, [this, &sender, session = link.session] {
        sender.setBusy(false);
        if (session != link.session) return;  // another link by now
        link.cmd = "PS1;";
        sendCommand(link.cmd);
        finishGo();
    });
    return false;
}

bool SerialPortDemoController::pressPowerOffKey(Button&) {
    link.cmd = "PS0;";
    display.sMeter.setIntegerValue(0);
    return true;
}

bool SerialPortDemoController::pressVfoKey(Button& sender) {
    const bool toA = sender.tag() == 500;
    if (toA)
        sendCommand(radio.vqAorB == "B" ? "VS0;VS0;" : "VS1;");
    else
        sendCommand(radio.vqAorB == "A" ? "VS1;VS1;" : "VS0;");
    setActiveVfo(toA ? "A" : "B");
    showActiveFrequency();
    const std::string& title = (toA ? display.vqFreqAButton : display.vqFreqBButton).title();
    highlightBand(decimalOrZero(without(title, ".")));
    link.cmd = toA ? "VS1;ST0;MD0;VS0;IF;" : "VS0;ST0;MD0;VS1;OI;";
    (toA ? radio.vqModeA : radio.vqModeB) = "vfo";
    speak(toA ? "VFO eh..." + radio.vqVFOA : "VFO bee..." + radio.vqVFOB);
    return true;
}

bool SerialPortDemoController::pressMemoryKey(Button&) {
    link.cmd = "VM;";
    if (radio.vqModeA == "vfo" || radio.vqModeB == "vfo") speak("Memory");
    radio.vqModeA = "memory";
    radio.vqModeB = "memory";
    return true;
}

bool SerialPortDemoController::pressMemoryBKey(Button&) {
    link.cmd = "VS1;MC" + radio.vqMemChB + ";NR0;MD0;";
    radio.vqModeB = "memory";
    display.memPopUpButton.selectItem(decimal(radio.vqMemChB).value_or(1) - 1);
    return true;
}

bool SerialPortDemoController::pressTextMemoryKey(Button& sender) {
    const ModeGroup* group = modeGroup(modeCode(radio.vqMode));
    if (!group) return false;
    link.cmd = group->playCommands[static_cast<std::size_t>(sender.tag() - 601)];
    display.sentTextMemoryField.setStringValue(sender.title() + '\n' + display.sentTextMemoryField.stringValue());
    return true;
}

bool SerialPortDemoController::pressClearLogKey(Button&) {
    display.sentTextMemoryField.setStringValue({});
    link.cmd.clear();
    return true;
}

bool SerialPortDemoController::pressProductPageKey(Button&) {
    platform_.browser.open(hosts_.productPage());
    return false;
}

bool SerialPortDemoController::pressClearAutoMemoriesKey(Button&) {
    clearAutoMemories();
    return false;
}

bool SerialPortDemoController::pressReadMenuKey(Button& sender) {
    const auto group = std::ranges::find(menuGroups, sender.tag(), &MenuGroup::keyTag);
    if (group == menuGroups.end()) return false;
    startMenuRead(*group);
    sendCommand(group->before);
    for (int subMenu = group->firstSubMenu; subMenu < group->lastSubMenu; ++subMenu)
        sendCommand(subMenuRequest(subMenu));
    link.cmd = subMenuRequest(group->lastSubMenu);
    if (!group->after.empty()) {
        sendCommand(link.cmd);
        link.cmd = group->after;
    }
    if (group->lastTwice) sendCommand(link.cmd);
    return true;
}

}  // namespace corvane

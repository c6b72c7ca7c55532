#include "controls/front_panel.h"

#include <algorithm>
#include <utility>

#include "wire/cat_command.h"
#include "wire/wire_text.h"

namespace corvane {

using namespace std::chrono_literals;

namespace {

constexpr int powerOnTag = 300;

}  // namespace

FrontPanel::FrontPanel(Display& display, Link& link, Mirror& mirror, Voice& voice, Scheduler& scheduler)
    : display_(display), link_(link), mirror_(mirror), voice_(voice), tasks_(scheduler) {}

void FrontPanel::finish(std::string command) {
    // The command for break-in off goes out alone: break-in on after it would undo it.
    if (command != "BI0;") command += "BI1;";
    link_.send(std::move(command));
}

void FrontPanel::lightBandKey(Button& sender) {
    mirror_.clearBandButtons();
    sender.setBezelColor(Color::blue);
}

void FrontPanel::press(Button& sender, const BandKey& key) {
    lightBandKey(sender);
    voice_.speak(key.announcement);
    finish(std::string(key.command));
}

void FrontPanel::press(Button& sender, const MediumWaveKey& key) {
    lightBandKey(sender);
    voice_.speak(key.announcement);
    finish("MD05;F" + mirror_.state().vqAorB + "001100000;");
}

void FrontPanel::pressWithoutAction(Button& sender) {
    if (sender.tag() >= firstBandTag && sender.tag() <= lastBandTag) lightBandKey(sender);
}

void FrontPanel::press(Button& sender, const ModeKey& key) {
    sender.setBezelColor(Color::blue);
    finish(std::string("MD0") + key.code + ';');
}

void FrontPanel::press(Button& sender, const ToggleKey& key, int firstTag) {
    const bool switchOn = sender.tag() == firstTag;
    sender.setTag(switchOn ? firstTag + onTagOffset : firstTag);
    sender.setBezelColor(switchOn ? key.onColor : Color::none);
    if (!key.onTitle.empty()) sender.setTitle(switchOn ? key.onTitle : key.offTitle);
    finish(std::string(switchOn ? key.onCommand : key.offCommand));
}

void FrontPanel::press(Button& sender, const MuteKey&, int firstTag) {
    const bool mute = sender.tag() == firstTag;
    mirror_.setMuted(mute);
    sender.setTag(mute ? firstTag + onTagOffset : firstTag);
    sender.setImage(mute ? Image::NSImageNameTouchBarAudioOutputMuteTemplate
                         : Image::NSImageNameTouchBarAudioOutputVolumeHighTemplate);
    sender.setBezelColor(mute ? Color::red : Color::none);
    finish(mute ? "AG0000;" : "AG0" + mirror_.state().vqAFLevel + ';');
}

void FrontPanel::press(Button&, const CommandKey& key) {
    if (!key.announcement.empty()) voice_.speak(key.announcement);
    finish(std::string(key.command));
}

void FrontPanel::press(Button& sender, const FirstScopeColorKey& key, int firstTag) {
    sender.setBezelColor(Color::blue);
    sender.setTag(firstTag + onTagOffset);
    finish(std::string(key.command));
}

void FrontPanel::press(Button&, const StepKey& key) {
    stepFrequency(key.direction, key.step);
    finish(link_.cmd());
}

void FrontPanel::stepFrequency(std::string_view direction, int step) {
    const long long frequency = decimalOrZero(mirror_.activeFrequency());
    const long long stepped = direction == "up" ? frequency + step : frequency - step;
    // Clamped at 0: the field has no sign.
    link_.send('F' + mirror_.state().vqAorB + zeroPadded(std::max(stepped, 0LL), 9) + ';');
}

void FrontPanel::press(Button&, const SwapKey& key) {
    mirror_.clearBandButtons();
    finish(std::string(key.command));
}

// The first "PS1;" only wakes the transceiver, which then needs a while before it takes the next. The wait does not
// block the window.
void FrontPanel::press(Button&, const PowerOnKey&) {
    link_.send("PS1;");
    display_.key(powerOnTag).setBusy(true);
    tasks_.after(1250ms, [this, session = link_.session()] {
        display_.key(powerOnTag).setBusy(false);
        if (session != link_.session()) return;  // the link has been closed or opened since
        link_.send("PS1;");
        finish("PS1;");
    });
}

void FrontPanel::press(Button&, const PowerOffKey&) {
    display_.sMeter.setIntegerValue(0);
    finish("PS0;");
}

void FrontPanel::press(Button&, const VfoKey& key) {
    const bool toA = key.vfo == 'A';
    const std::string& active = mirror_.state().vqAorB;
    if (toA)
        link_.sendCommand(active == "B" ? "VS0;VS0;" : "VS1;");
    else
        link_.sendCommand(active == "A" ? "VS1;VS1;" : "VS0;");
    mirror_.setActiveVfo(toA ? "A" : "B");
    mirror_.showActiveFrequency();
    const std::string& title = (toA ? display_.vqFreqAButton : display_.vqFreqBButton).title();
    mirror_.highlightBand(decimalOrZero(without(title, ".")));
    mirror_.setTunedBy(key.vfo, "vfo");
    voice_.speak(toA ? "VFO eh..." + mirror_.state().vqVFOA : "VFO bee..." + mirror_.state().vqVFOB,
                 toA ? "VFO A" : "VFO B");
    finish(toA ? "VS1;ST0;MD0;VS0;IF;" : "VS0;ST0;MD0;VS1;OI;");
}

void FrontPanel::press(Button&, const MemoryKey&) {
    if (mirror_.state().vqModeA == "vfo" || mirror_.state().vqModeB == "vfo") voice_.speak("Memory");
    mirror_.setTunedBy('A', "memory");
    mirror_.setTunedBy('B', "memory");
    finish("VM;");
}

void FrontPanel::press(Button&, const MemoryBKey&) {
    mirror_.setTunedBy('B', "memory");
    const std::string& channel = mirror_.state().vqMemChB;
    display_.memPopUpButton.selectItem(decimal(channel).value_or(1) - 1);
    finish("VS1;MC" + channel + ";NR0;MD0;");
}

}  // namespace corvane

#include "controls/function_pop_ups.h"

#include <string>
#include <utility>

#include "controls/function_commands.h"
#include "controls/setup_pop_ups.h"
#include "wire/memory_fields.h"
#include "wire/setting_codes.h"

namespace corvane {

namespace {

constexpr std::size_t shortestGain = std::string_view("AG0000;").size();

CommandPacer pacer(Slider& slider, Link& link, const Tasks& tasks) {
    return {[&link](std::string command) { link.send(std::move(command)); }, tasks, [&slider] { slider.endMove(); }};
}

}  // namespace

FunctionPopUps::FunctionPopUps(Display& display, Link& link, const Mirror& mirror, const Preferences& preferences,
                               Voice& voice, Scheduler& scheduler)
    : link_(link),
      mirror_(mirror),
      preferences_(preferences),
      voice_(voice),
      tasks_(scheduler),
      afGainPacer_(pacer(display.afGainSlider, link, tasks_)),
      rfGainPacer_(pacer(display.rfGainSlider, link, tasks_)) {}

void FunctionPopUps::goMode(PopUpButton& sender) {
    const std::string command = modeCommand(sender.indexOfSelectedItem());
    if (command.empty()) return;
    link_.send(command);
    voice_.speak(sender.titleOfSelectedItem(), {});  // a screen reader reads the pop-up itself
}

void FunctionPopUps::goMemory(PopUpButton& sender) {
    const int index = sender.indexOfSelectedItem();
    std::string command = memoryCommand(index);
    if (command.empty()) return;
    if (preferences_.memoryIpo()) command += "PA00;";
    link_.send(std::move(command));
    if (index < memoryChannels) voice_.speak(mirror_.tagOfChannel(index), {});
}

// These two are sent without becoming `cmd`.
void FunctionPopUps::goColor(PopUpButton& sender) {
    const std::string command = scopeColorCommand(sender.indexOfSelectedItem());
    if (command.empty()) return sender.takeBack();
    link_.sendCommand(command);
}

void FunctionPopUps::goSpectrumMode(PopUpButton& sender) {
    link_.sendCommand(spectrumModeCommand(sender.indexOfSelectedItem()));
}

void FunctionPopUps::goSmeter(PopUpButton& sender) {
    link_.send(indexCommand("MS", sender.indexOfSelectedItem(), "0;"));
}

void FunctionPopUps::goAmp(PopUpButton& sender) { link_.send(indexCommand("PA0", sender.indexOfSelectedItem(), ";")); }

void FunctionPopUps::goAGC(PopUpButton& sender) { link_.send(indexCommand("GT0", sender.indexOfSelectedItem(), ";")); }

void FunctionPopUps::goATT(PopUpButton& sender) { link_.send(indexCommand("RA0", sender.indexOfSelectedItem(), ";")); }

void FunctionPopUps::goRFIL(PopUpButton& sender) { link_.send(roofingFilterCommand(sender.indexOfSelectedItem())); }

void FunctionPopUps::goDNR(PopUpButton& sender) { link_.send(noiseReductionCommand(sender.indexOfSelectedItem())); }

void FunctionPopUps::goNB(PopUpButton& sender) { link_.send(noiseBlankerCommand(sender.indexOfSelectedItem())); }

void FunctionPopUps::goFunctionKnob(PopUpButton& sender) {
    link_.send(functionKnobCommand(sender.indexOfSelectedItem()));
}

void FunctionPopUps::goMPVD(PopUpButton& sender) { link_.send(multiKnobCommand(sender.indexOfSelectedItem())); }

void FunctionPopUps::goAF(Slider& sender) {
    sender.beginMove();
    afGainPacer_.submit(gainCommand("AG0", sender.integerValue()));
}

void FunctionPopUps::goRF(Slider& sender) {
    sender.beginMove();
    rfGainPacer_.submit(gainCommand("RG0", sender.integerValue()));
}

void FunctionPopUps::noteSent(std::string_view command) {
    if (command.size() < shortestGain) return;  // "AG0;" only asks
    if (command.starts_with("AG")) afGainPacer_.drop();
    if (command.starts_with("RG")) rfGainPacer_.drop();
}

void FunctionPopUps::send(PopUpButton& sender, const SetupPopUp& row) {
    const int index = sender.indexOfSelectedItem();
    link_.send(setupCommand(row, index, sender.titleOfSelectedItem()));
    if (row.choice == SetupChoice::watts && index >= 0)
        voice_.speak(std::to_string(index + lowestPower) + " watts", {});
}

}  // namespace corvane

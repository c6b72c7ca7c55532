// The function pop-ups and sliders: each sends what its position stands for. The display follows when the transceiver
// reports.
#include "controller/serial_port_demo_controller.h"
#include "controls/function_commands.h"
#include "controls/setup_pop_ups.h"
#include "wire/setting_codes.h"

namespace corvane {

// A position that stands for nothing sends nothing; above all not the command before it.
void SerialPortDemoController::sendBuilt(std::string command) {
    if (command.empty()) return;
    link.cmd = std::move(command);
    sendCommand(link.cmd);
}

void SerialPortDemoController::goMode(PopUpButton& sender) {
    const std::string command = modeCommand(sender.indexOfSelectedItem());
    if (command.empty()) return;
    sendBuilt(command);
    speak(sender.titleOfSelectedItem());
}

void SerialPortDemoController::goMemory(PopUpButton& sender) {
    const int index = sender.indexOfSelectedItem();
    std::string command = memoryCommand(index);
    if (command.empty()) return;
    if (preferences.vqMemoryIPO == "1") command += "PA00;";
    sendBuilt(std::move(command));
    if (index < memoryChannels) speak(memories.vqMemArray[static_cast<std::size_t>(index)].tag);
}

void SerialPortDemoController::goColor(PopUpButton& sender) {
    const std::string command = scopeColorCommand(sender.indexOfSelectedItem());
    if (command.empty()) return sender.takeBack();
    sendCommand(command);
}

void SerialPortDemoController::goSpectrumMode(PopUpButton& sender) {
    sendCommand(spectrumModeCommand(sender.indexOfSelectedItem()));
}

void SerialPortDemoController::goSmeter(PopUpButton& sender) {
    sendBuilt(indexCommand("MS", sender.indexOfSelectedItem(), "0;"));
}

void SerialPortDemoController::goAmp(PopUpButton& sender) {
    sendBuilt(indexCommand("PA0", sender.indexOfSelectedItem(), ";"));
}

void SerialPortDemoController::goAGC(PopUpButton& sender) {
    sendBuilt(indexCommand("GT0", sender.indexOfSelectedItem(), ";"));
}

void SerialPortDemoController::goATT(PopUpButton& sender) {
    sendBuilt(indexCommand("RA0", sender.indexOfSelectedItem(), ";"));
}

void SerialPortDemoController::goRFIL(PopUpButton& sender) {
    sendBuilt(roofingFilterCommand(sender.indexOfSelectedItem()));
}

void SerialPortDemoController::goDNR(PopUpButton& sender) {
    sendBuilt(noiseReductionCommand(sender.indexOfSelectedItem()));
}

void SerialPortDemoController::goNB(PopUpButton& sender) {
    sendBuilt(noiseBlankerCommand(sender.indexOfSelectedItem()));
}

void SerialPortDemoController::goFunctionKnob(PopUpButton& sender) {
    sendBuilt(functionKnobCommand(sender.indexOfSelectedItem()));
}

void SerialPortDemoController::goMPVD(PopUpButton& sender) {
    sendBuilt(multiKnobCommand(sender.indexOfSelectedItem()));
}

void SerialPortDemoController::goAF(Slider& sender) {
    sender.beginMove();
    afGainPacer_.submit(gainCommand("AG0", sender.integerValue()));
}

void SerialPortDemoController::goRF(Slider& sender) {
    sender.beginMove();
    rfGainPacer_.submit(gainCommand("RG0", sender.integerValue()));
}

void SerialPortDemoController::goSuperPopUp(PopUpButton& sender) {
    const SetupPopUp* popUp = setupPopUp(sender.tag());
    if (!popUp) return writeMenuItem(sender);
    const int index = sender.indexOfSelectedItem();
    if (popUp->choice == SetupChoice::powerOff) return planPowerOff(index);
    if (popUp->choice == SetupChoice::memoryText) return writeMemoryText(sender);
    sendBuilt(setupCommand(*popUp, index, sender.titleOfSelectedItem()));
    if (popUp->choice == SetupChoice::watts && index >= 0) speak(std::to_string(index + lowestPower) + " watts");
}

}  // namespace corvane

// The two VFOs as the transceiver reports them: frequencies, memory channels, mode, and which side is active.
#include "controller/serial_port_demo_controller.h"
#include "interpret/band_table.h"
#include "interpret/spoken_frequency.h"
#include "wire/operating_modes.h"
#include "wire/wire_text.h"

namespace corvane {

struct SerialPortDemoController::Side {
    std::string_view commandName;  // of its frequency report
    std::string& frequency;        // vqFreqA or vqFreqB
    std::string& tunedBy;          // vqModeA or vqModeB
    std::string& spoken;           // vqVFOA or vqVFOB
    Button& frequencyButton;
    Button& otherFrequencyButton;
    Color highlight;
    std::string_view vfo;
};

SerialPortDemoController::Side SerialPortDemoController::side(char vfo) {
    if (vfo == 'A')
        return {
            "FA", radio.vqFreqA, radio.vqModeA, radio.vqVFOA, display.vqFreqAButton, display.vqFreqBButton, Color::red,
            "A"};
    return {
        "FB", radio.vqFreqB, radio.vqModeB, radio.vqVFOB, display.vqFreqBButton, display.vqFreqAButton, Color::green,
        "B"};
}

void SerialPortDemoController::readFrequencyA(std::string_view response) { readFrequency(response, 'A'); }
void SerialPortDemoController::readFrequencyB(std::string_view response) { readFrequency(response, 'B'); }

void SerialPortDemoController::readFrequency(std::string_view response, char vfo) {
    const Side reported = side(vfo);
    reported.frequency = without(response, reported.commandName);
    const std::string_view digits = reported.frequency;
    if (digits.size() != 9 || !isAscii(digits)) return;
    highlightBand(decimalOrZero(digits));

    const std::string_view kilohertz = digits.substr(3, 3);
    const std::string_view hertz = digits.substr(6, 3);
    std::string shown = std::to_string(decimalOrZero(digits.substr(0, 3)));
    std::string exact = shown + '.';
    exact.append(kilohertz).append(hertz);
    shown.append(".").append(kilohertz);
    display.freqTextField.setStringValue(shown);
    setActiveVfo(reported.vfo);
    if (reported.tunedBy == "vfo") {
        reported.spoken = spokenFrequency(digits);
        shown.append(".").append(hertz);
        reported.frequencyButton.setTitle(shown);
    }
    sendCommand("GT0;RA0;RF0;");
    showOperatorClass(exact);
}

void SerialPortDemoController::readMemoryChannel(std::string_view response) {
    if (response.size() < 5 || !isAscii(lastOf(response, 3))) return;
    radio.vqMemCh = radio.vqMemChA = radio.vqMemChB = lastOf(response, 3);
    if (radio.vqAorB != "A") return;
    display.vqMemAButton.setTitle("  M-" + radio.vqMemCh.substr(1) + ' ' + radio.vqMemATag);
}

void SerialPortDemoController::readInformation(std::string_view response) { readSideInformation(response, 'A'); }
void SerialPortDemoController::readOppositeInformation(std::string_view response) {
    readSideInformation(response, 'B');
}

void SerialPortDemoController::readSideInformation(std::string_view response, char vfo) {
    const std::string_view channel = positions(response, 3, 3);
    if (channel.size() != 3 || !isAscii(channel)) return;
    const Side reported = side(vfo);
    Button& memory = display.vqMemAButton;
    if (channel == "000") {
        memory.setBezelColor(Color::none);
        reported.frequencyButton.setBezelColor(reported.highlight);
        reported.otherFrequencyButton.setBezelColor(Color::none);
        reported.tunedBy = "vfo";
        return;
    }
    reported.tunedBy = "memory";
    const std::string number(channel.substr(1));
    if (channel.starts_with('5')) {
        memory.setTitle("  5-" + number);
        memory.setBezelColor(Color::brown);
    } else {
        const int index = decimal(number).value_or(1) - 1;
        if (index < 0 || index >= memoryChannels) return;
        memory.setTitle("  M-" + number + ' ' + memories.vqMemArray[static_cast<std::size_t>(index)].tag);
        memory.setBezelColor(Color::purple);
        display.memPopUpButton.selectItem(index);
    }
    display.vqFreqAButton.setBezelColor(Color::none);
    display.vqFreqBButton.setBezelColor(Color::none);
}

void SerialPortDemoController::readMode(std::string_view response) {
    const char code = response.back();
    if (const auto name = modeName(code)) radio.vqMode = *name;
    display.modeField.setStringValue(radio.vqMode);
    display.modesPopUpButton.selectItem(modePopUpIndex(code));
    const ModeGroup* group = modeGroup(code);
    display.sendBox.setTitle(group ? group->boxTitle : noModeGroupBoxTitle);
    if (group) {
        sendCommand(group->memoryRequests);
        enableTextMemoryControls();
    } else {
        disableTextMemoryControls();
    }
}

void SerialPortDemoController::readVfoASelected(std::string_view) { setActiveVfo("A"); }
void SerialPortDemoController::readVfoBSelected(std::string_view) { setActiveVfo("B"); }

void SerialPortDemoController::setActiveVfo(std::string_view vfo) {
    radio.vqAorB = vfo;
    display.activeVfoField.setStringValue(vfo);
}

void SerialPortDemoController::clearBandButtons() {
    for (Button* button : display.bandButtons) button->setBezelColor(Color::none);
}

void SerialPortDemoController::highlightBand(int frequency) {
    const Button& marked = display.key(bandKeyTag(frequency));
    for (Button* button : display.bandButtons) button->setBezelColor(button == &marked ? Color::blue : Color::none);
}

void SerialPortDemoController::enableTextMemoryControls() {
    for (Button* button : display.textMemoryButtons) button->setEnabled(true);
    display.textMemoryField.setEnabled(true);
    display.sendTextMemoryButton.setEnabled(true);
    display.sendTextMemoryButton.setBezelColor(Color::blue);
    display.clearTextMemoryButton.setEnabled(true);
    display.sendBox.setTitleColor(Color::none);
}

void SerialPortDemoController::disableTextMemoryControls() {
    for (Button* button : display.textMemoryButtons) button->setEnabled(false);
    display.textMemoryField.setEnabled(false);
    display.sendTextMemoryButton.setEnabled(false);
    display.sendTextMemoryButton.setBezelColor(Color::darkGray);
    display.clearTextMemoryButton.setEnabled(false);
    display.sendBox.setTitleColor(Color::gray);
}

}  // namespace corvane

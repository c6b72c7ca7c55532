// The transceiver's receive and transmit settings as it reports them. None of these sends a setting back; two ask for a
// level.
#include <algorithm>
#include <array>

#include "controller/serial_port_demo_controller.h"
#include "wire/setting_codes.h"
#include "wire/utf8.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

constexpr int lowestAudibleLevel = 5;
constexpr std::size_t textMemoryLength = 50;

// The number of a scope value: '0' to '9', then 'A' for 10 and 'B' for 11 as far as the pop-up has them. Anything else
// is 0.
int scopeValue(std::string_view response, std::string_view codes) {
    const std::size_t index = codes.find(response[4]);
    return index == std::string_view::npos ? 0 : static_cast<int>(index);
}

void selectScopeItem(PopUpButton& popUp, std::string_view response, std::string_view codes = "0123456789") {
    if (response.size() >= 5) popUp.selectItem(scopeValue(response, codes));
}

void selectKnobItem(PopUpButton& popUp, std::string_view response, std::string_view codes) {
    if (response.size() < 4) return;
    const std::size_t index = codes.find(response[3]);
    if (index != std::string_view::npos) popUp.selectItem(static_cast<int>(index));
}

}  // namespace

void SerialPortDemoController::readPreAmplifier(std::string_view response) {
    if (response.size() == 4) display.ampPopUpButton.selectItem(decimalOrZero(lastOf(response, 1)));
}

void SerialPortDemoController::readNoiseBlankerLevel(std::string_view response) {
    display.NBPopupButton.selectItem(decimalOrZero(lastOf(response, 2)));
}

void SerialPortDemoController::readNoiseReductionLevel(std::string_view response) {
    display.DNRPopupButton.selectItem(decimalOrZero(lastOf(response, 2)));
}

// 4 is automatic; 5 and 6 say which speed it chose.
void SerialPortDemoController::readAgc(std::string_view response) {
    display.AGCPopUpButton.selectItem(std::min(decimalOrZero(lastOf(response, 1)), 4));
}

void SerialPortDemoController::readAttenuator(std::string_view response) {
    display.ATTPopUpButton.selectItem(decimalOrZero(lastOf(response, 1)));
}

void SerialPortDemoController::readMeter(std::string_view response) {
    display.sMeter.setIntegerValue(std::min(decimalOrZero(lastOf(response, 6).substr(0, 3)) / 10, 10));
}

void SerialPortDemoController::readAFGain(std::string_view response) {
    const std::string_view digits = lastOf(response, 3);
    const int level = decimalOrZero(digits);
    if (level < lowestAudibleLevel) {
        radio.vqMuted = 1;
        display.muteButton.setImage(Image::NSImageNameTouchBarAudioOutputMuteTemplate);
        display.muteButton.setBezelColor(Color::red);
    } else {
        radio.vqAFLevel = digits;
        if (radio.vqMuted == 1) {
            display.muteButton.setImage(Image::NSImageNameTouchBarAudioOutputVolumeHighTemplate);
            display.muteButton.setBezelColor(Color::none);
            radio.vqMuted = 0;
        }
    }
    display.afGainSlider.setIntegerValue(level);
}

void SerialPortDemoController::readRFGain(std::string_view response) {
    radio.vqRFLevel = lastOf(response, 3);
    display.rfGainSlider.setIntegerValue(decimalOrZero(radio.vqRFLevel));
}

void SerialPortDemoController::readMeterSelection(std::string_view response) {
    display.smeterPopUpButton.selectItem(decimalOrZero(positions(response, 3, 1)));
}

void SerialPortDemoController::readPower(std::string_view response) {
    display.powerPopUpButton.selectItem(decimalOrZero(positions(response, 3, 3)) - lowestPower);
}

void SerialPortDemoController::readMultiKnob(std::string_view response) {
    selectKnobItem(display.MPVDButton, response, multiKnobCodes);
}

void SerialPortDemoController::readFunctionKnob(std::string_view response) {
    selectKnobItem(display.FuncKnobButton, response, functionKnobCodes);
}

void SerialPortDemoController::readScopeSpeed(std::string_view response) {
    selectScopeItem(display.scopeSpeedPopUpButton, response);
}

void SerialPortDemoController::readScopePeak(std::string_view response) {
    selectScopeItem(display.scopePeakPopUpButton, response);
}

void SerialPortDemoController::readScopeColor(std::string_view response) {
    selectScopeItem(display.colorPopUpButton, response, "0123456789A");
}

void SerialPortDemoController::readScopeLevel(std::string_view response) {
    if (response.size() >= 5) display.scopeLevelPopUpButton.selectItemWithTitle(positions(response, 5, 5));
}

void SerialPortDemoController::readScopeSpan(std::string_view response) {
    selectScopeItem(display.scopeSpanPopUpButton, response);
}

void SerialPortDemoController::readSpectrumMode(std::string_view response) {
    selectScopeItem(display.spectrumModePopUpButton, response, "0123456789AB");
}

void SerialPortDemoController::readKeyerMemory(std::string_view response) {
    showMemoryText(decimalOrZero(positions(response, 3, 1)), trimmed(positions(response, 4, response.size())),
                   display.cwMemoryButtons);
}

void SerialPortDemoController::readTextMemory(std::string_view response) {
    const int bank = decimalOrZero(positions(response, 3, 1));
    const std::string_view text = utf8Prefix(positions(response, 5, response.size()), textMemoryLength);
    showMemoryText(decimalOrZero(positions(response, 4, 1)), trimmed(text),
                   bank == 1 ? display.pskMemoryButtons : display.rttyMemoryButtons);
}

void SerialPortDemoController::showMemoryText(int slot, std::string_view text, std::deque<Button>& familyButtons) {
    if (slot < 1 || slot > Display::memories) return;
    const auto index = static_cast<std::size_t>(slot);
    radio.vqTextMemoryArray[index] = text;
    display.textMemoryButtons[index - 1]->setTitle(text);
    familyButtons[index - 1].setTitle(text);
    if (slot == Display::memories) radio.vqTextMemoryRevert = text;
}

void SerialPortDemoController::readSwitchedOff(std::string_view) {
    display.sMeter.setIntegerValue(0);
    playSystemSound("Basso");
}

void SerialPortDemoController::readNoiseReductionSwitch(std::string_view response) {
    if (response.ends_with('1'))
        writeString("RL0;");
    else
        display.DNRPopupButton.selectItem(0);
}

void SerialPortDemoController::readNoiseBlankerSwitch(std::string_view response) {
    if (response.ends_with('1'))
        writeString("NL0;");
    else
        display.NBPopupButton.selectItem(0);
}

void SerialPortDemoController::readSwitch(std::string_view response) {
    struct Switch {
        std::string_view name;
        Button& button;
    };
    const std::array switches{
        Switch{"BC", display.dnfButton},
        Switch{"CO", display.contButton},
        Switch{"BP", display.notchButton},
        Switch{"BI", display.bkinButton},
    };
    const bool on = response.ends_with('1');
    for (const Switch& row : switches) {
        if (!response.starts_with(row.name)) continue;
        row.button.setTag(row.button.outlet().tag + (on ? onTagOffset : 0));
        row.button.setBezelColor(on ? Color::blue : Color::none);
    }
}

}  // namespace corvane

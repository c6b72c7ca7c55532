// Takes the transceiver's reports of its receive and transmit settings. No operation here changes a setting; two ask
// for a level.
#include <algorithm>
#include <array>

#include "interpret/mirror.h"
#include "wire/cat_command.h"
#include "wire/operating_modes.h"
#include "wire/setting_codes.h"
#include "wire/utf8.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

constexpr int lowestAudibleLevel = 5;
constexpr std::size_t textMemoryLength = 50;

// The number that a scope code stands for: '0' to '9', then 'A' for 10 and 'B' for 11 if the pop-up has them. Any other
// code gives 0.
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

void Mirror::takePreAmplifier(std::string_view response) {
    if (response.size() == 4) display_.ampPopUpButton.selectItem(decimalOrZero(lastOf(response, 1)));
}

void Mirror::takeNoiseBlankerLevel(std::string_view response) {
    display_.NBPopupButton.selectItem(decimalOrZero(lastOf(response, 2)));
}

void Mirror::takeNoiseReductionLevel(std::string_view response) {
    display_.DNRPopupButton.selectItem(decimalOrZero(lastOf(response, 2)));
}

// 4 is automatic; 5 and 6 are automatic, too, and say which speed was chosen.
void Mirror::takeAgc(std::string_view response) {
    display_.AGCPopUpButton.selectItem(std::min(decimalOrZero(lastOf(response, 1)), 4));
}

void Mirror::takeAttenuator(std::string_view response) {
    display_.ATTPopUpButton.selectItem(decimalOrZero(lastOf(response, 1)));
}

// Line feeds within a piece are ignored.
void Mirror::takeSignal(std::string_view chunk) {
    forEachPiece(chunk, [this](std::string_view piece) {
        if (piece.find('\n') == std::string_view::npos) {
            if (piece.starts_with("RM")) state_.vqSignal = decimalOrZero(lastOf(piece, 6));
        } else if (const std::string joined = without(piece, "\n"); joined.starts_with("RM")) {
            state_.vqSignal = decimalOrZero(lastOf(joined, 6));
        }
    });
}

void Mirror::takeMeter(std::string_view response) {
    display_.sMeter.setIntegerValue(std::min(decimalOrZero(lastOf(response, 6).substr(0, 3)) / 10, 10));
}

void Mirror::takeAFGain(std::string_view response) {
    const std::string_view digits = lastOf(response, 3);
    const int level = decimalOrZero(digits);
    if (level < lowestAudibleLevel) {
        state_.vqMuted = 1;
        display_.muteButton.setImage(Image::NSImageNameTouchBarAudioOutputMuteTemplate);
        display_.muteButton.setBezelColor(Color::red);
    } else {
        state_.vqAFLevel = digits;
        if (state_.vqMuted == 1) {
            display_.muteButton.setImage(Image::NSImageNameTouchBarAudioOutputVolumeHighTemplate);
            display_.muteButton.setBezelColor(Color::none);
            state_.vqMuted = 0;
        }
    }
    display_.afGainSlider.setIntegerValue(level);
}

void Mirror::takeRFGain(std::string_view response) {
    state_.vqRFLevel = lastOf(response, 3);
    display_.rfGainSlider.setIntegerValue(decimalOrZero(state_.vqRFLevel));
}

void Mirror::takeMeterSelection(std::string_view response) {
    display_.smeterPopUpButton.selectItem(decimalOrZero(positions(response, 3, 1)));
}

void Mirror::takePower(std::string_view response) {
    display_.powerPopUpButton.selectItem(decimalOrZero(positions(response, 3, 3)) - lowestPower);
}

void Mirror::takeMultiKnob(std::string_view response) { selectKnobItem(display_.MPVDButton, response, multiKnobCodes); }

void Mirror::takeFunctionKnob(std::string_view response) {
    selectKnobItem(display_.FuncKnobButton, response, functionKnobCodes);
}

void Mirror::takeScopeSpeed(std::string_view response) { selectScopeItem(display_.scopeSpeedPopUpButton, response); }

void Mirror::takeScopePeak(std::string_view response) { selectScopeItem(display_.scopePeakPopUpButton, response); }

void Mirror::takeScopeColor(std::string_view response) {
    selectScopeItem(display_.colorPopUpButton, response, "0123456789A");
}

void Mirror::takeScopeLevel(std::string_view response) {
    if (response.size() >= 5) display_.scopeLevelPopUpButton.selectItemWithTitle(positions(response, 5, 5));
}

void Mirror::takeScopeSpan(std::string_view response) { selectScopeItem(display_.scopeSpanPopUpButton, response); }

void Mirror::takeSpectrumMode(std::string_view response) {
    selectScopeItem(display_.spectrumModePopUpButton, response, "0123456789AB");
}

void Mirror::takeKeyerMemory(std::string_view response) {
    takeMemoryText(*cwGroup, decimalOrZero(positions(response, 3, 1)),
                   trimmed(positions(response, 4, response.size())));
}

void Mirror::takeTextMemory(std::string_view response) {
    const int bank = decimalOrZero(positions(response, 3, 1));
    const std::string_view text = utf8Prefix(positions(response, 5, response.size()), textMemoryLength);
    takeMemoryText(bank == 1 ? *pskGroup : *rttyGroup, decimalOrZero(positions(response, 4, 1)), trimmed(text));
}

void Mirror::takeMemoryText(const ModeGroup& group, int memory, std::string_view text) {
    if (memory < 1 || memory > Display::memories) return;
    const std::array buttons{&display_.cwMemoryButtons, &display_.rttyMemoryButtons, &display_.pskMemoryButtons};
    const auto index = static_cast<std::size_t>(memory);
    state_.vqTextMemoryArray[index] = text;
    state_.groupMemories[groupIndex(group)][index - 1] = text;
    display_.textMemoryButtons[index - 1]->setTitle(text);
    (*buttons[groupIndex(group)])[index - 1].setTitle(text);
    if (memory == Display::memories) state_.vqTextMemoryRevert = text;
}

void Mirror::rememberScratchMemory(const ModeGroup& group) {
    if (const auto& reported = state_.groupMemories[groupIndex(group)].back()) state_.vqTextMemoryRevert = *reported;
}

void Mirror::takeSwitchedOff(std::string_view) {
    display_.sMeter.setIntegerValue(0);
    voice_.playSystemSound("Basso");
}

void Mirror::takeNoiseReductionSwitch(std::string_view response) {
    if (response.ends_with('1'))
        link_.writeString("RL0;");
    else
        display_.DNRPopupButton.selectItem(0);
}

void Mirror::takeNoiseBlankerSwitch(std::string_view response) {
    if (response.ends_with('1'))
        link_.writeString("NL0;");
    else
        display_.NBPopupButton.selectItem(0);
}

void Mirror::takeSwitch(std::string_view response) {
    struct Switch {
        std::string_view name;
        Button& button;
    };
    const std::array switches{
        Switch{"BC", display_.dnfButton},
        Switch{"CO", display_.contButton},
        Switch{"BP", display_.notchButton},
        Switch{"BI", display_.bkinButton},
    };
    const bool on = response.ends_with('1');
    for (const Switch& row : switches) {
        if (!response.starts_with(row.name)) continue;
        row.button.setTag(row.button.outlet().tag + (on ? onTagOffset : 0));
        row.button.setBezelColor(on ? Color::blue : Color::none);
    }
}

}  // namespace corvane

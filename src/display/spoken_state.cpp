#include "display/spoken_state.h"

#include <fmt/core.h>

#include "wire/wire_text.h"

namespace corvane {

namespace {

void append(std::string& list, std::string_view text) {
    if (text.empty()) return;
    if (!list.empty()) list += ", ";
    list += text;
}

}  // namespace

std::string spokenMeter(int level) { return level > 9 ? "above S9" : fmt::format("S{}", level); }

std::string spokenTuning(const Display& display) {
    const bool sideB = display.activeVfoField.stringValue() == "B";
    const std::string& vfo = (sideB ? display.vqFreqBButton : display.vqFreqAButton).title();
    const TextField& channel = sideB ? display.channelFrequencyBField : display.channelFrequencyAField;
    const std::string& shown = channel.stringValue().empty() ? vfo : channel.stringValue();
    std::string text = shown.empty() ? std::string() : shown + " MHz";
    append(text, display.modeField.stringValue());
    if (display.vqMemAButton.bezelColor() != Color::none)
        append(text, std::string("memory ").append(trimmed(display.vqMemAButton.title())));
    return text;
}

std::string spokenState(const Display& display) {
    const std::string tuning = spokenTuning(display);
    if (tuning.empty()) return display.linkStatusField.stringValue();
    std::string text;
    const std::string& vfo = display.activeVfoField.stringValue();
    if (!vfo.empty()) append(text, "VFO " + vfo);
    append(text, tuning);
    const bool onAir = display.onAirField.stringValue() == onAirText;  // then the meter stands still
    append(text, onAir ? "on air" : spokenMeter(display.sMeter.integerValue()));
    append(text, display.licenseClassButton.title());
    append(text, display.segmentField.stringValue());
    if (display.linkStatusField.textColor() == Color::none) append(text, display.linkStatusField.stringValue());
    return text;
}

}  // namespace corvane

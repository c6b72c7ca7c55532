#include "display/spoken_state.h"

#include <fmt/core.h>

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
    const std::string& frequency = (sideB ? display.vqFreqBButton : display.vqFreqAButton).title();
    std::string text = frequency.empty() ? std::string() : frequency + " MHz";
    append(text, display.modeField.stringValue());
    return text;
}

std::string spokenState(const Display& display) {
    const std::string tuning = spokenTuning(display);
    if (tuning.empty()) return display.linkStatusField.stringValue();
    std::string text;
    const std::string& vfo = display.activeVfoField.stringValue();
    if (!vfo.empty()) append(text, "VFO " + vfo);
    append(text, tuning);
    append(text, spokenMeter(display.sMeter.integerValue()));
    append(text, display.licenseClassButton.title());
    if (display.linkStatusField.textColor() == Color::none) append(text, display.linkStatusField.stringValue());
    return text;
}

}  // namespace corvane

#include "interpret/shown_frequency.h"

#include "wire/wire_text.h"

namespace corvane {

std::optional<long long> shownHertz(const Display& display, char side) {
    const bool a = side == 'A';
    const TextField& channel = a ? display.channelFrequencyAField : display.channelFrequencyBField;
    const Button& vfo = a ? display.vqFreqAButton : display.vqFreqBButton;
    const std::string& shown = channel.stringValue().empty() ? vfo.title() : channel.stringValue();
    const auto hertz = decimal(without(shown, "."));
    return hertz ? std::optional<long long>(*hertz) : std::nullopt;
}

std::optional<long long> activeHertz(const Display& display) {
    return shownHertz(display, display.activeVfoField.stringValue() == "B" ? 'B' : 'A');
}

}  // namespace corvane

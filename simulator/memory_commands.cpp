#include "simulator/memory_commands.h"

#include <array>

#include "simulator/decimal_field.h"

namespace simulator {

namespace {

constexpr std::size_t channelWidth = 3;
constexpr std::size_t frequencyWidth = 9;
constexpr std::size_t clarifierWidth = 7;  // including the two switches after it
constexpr std::size_t modePosition = channelWidth + frequencyWidth + clarifierWidth;
constexpr std::size_t recordWidth = modePosition + 6;

Reply toggleMemory(RadioState& state, std::string_view parameters) {
    return acceptedIf(parameters.empty() && state.toggleMemory());
}

Reply copyMemoryToVfo(RadioState& state, std::string_view parameters) {
    return acceptedIf(parameters.empty() && state.copyMemoryToVfo());
}

Reply putQuickMemory(RadioState& state, std::string_view parameters) {
    if (!parameters.empty()) return rejected();
    state.putQuickMemory();
    return {};
}

Reply recallQuickMemory(RadioState& state, std::string_view parameters) {
    return acceptedIf(parameters.empty() && state.recallQuickMemory());
}

Reply selectChannel(RadioState& state, std::string_view parameters) {
    if (parameters.empty()) return answered(selectedChannelReading(state));
    const auto channel = parseDecimal(parameters, channelWidth);
    return acceptedIf(channel && state.selectChannel(*channel));
}

Reply readChannel(RadioState& state, std::string_view parameters) {
    const auto number = parseDecimal(parameters, channelWidth);
    const MemoryChannel* channel = number ? state.memories.find(*number) : nullptr;
    return channel != nullptr ? answered(channelReading(*number, *channel)) : rejected();
}

Reply tag(RadioState& state, std::string_view parameters) {
    const auto number = parseDecimal(parameters.substr(0, channelWidth), channelWidth);
    const MemoryChannel* channel = number ? state.memories.find(*number) : nullptr;
    if (channel == nullptr) return rejected();
    if (parameters.size() == channelWidth) {
        std::string padded = channel->tag;
        padded.resize(MemoryBank::tagLength, ' ');
        return answered("MT" + decimalField(*number, channelWidth) + (channel->tagShown ? '1' : '0') + padded);
    }
    const char shown = parameters[channelWidth];
    const auto text = parameters.substr(channelWidth + 1);
    if ((shown != '0' && shown != '1') || text.size() > MemoryBank::tagLength || !isPrintable(text)) return rejected();
    return acceptedIf(state.memories.writeTag(*number, text, shown == '1'));
}

Reply writeChannel(RadioState& state, std::string_view parameters) {
    const auto number = parseDecimal(parameters.substr(0, channelWidth), channelWidth);
    if (!number || *number < 1 || *number > MemoryBank::lastChannel) return rejected();
    // A command with nothing but a channel number is accepted and writes nothing.
    if (parameters.size() == channelWidth) return {};
    if (parameters.size() < recordWidth) return rejected();
    const auto frequency = parseDecimal(parameters.substr(channelWidth, frequencyWidth), frequencyWidth);
    if (!frequency) return rejected();
    if (*frequency == 0) return acceptedIf(state.clearChannel(*number));
    if (parameters.size() != recordWidth) return rejected();
    return acceptedIf(state.memories.write(*number, {*frequency, parameters[modePosition]}));
}

constexpr std::array rows{
    CommandRow{"VM", toggleMemory},
    CommandRow{"MA", copyMemoryToVfo},
    CommandRow{"QI", putQuickMemory},
    CommandRow{"QR", recallQuickMemory},
    CommandRow{"MC", selectChannel},
    CommandRow{"MR", readChannel},
    CommandRow{"MT", tag},
    CommandRow{"MW", writeChannel},
};

}  // namespace

std::span<const CommandRow> memoryCommands() { return rows; }

}  // namespace simulator

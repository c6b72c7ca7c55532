// Questions about the transceiver.
#include <fmt/core.h>

#include <algorithm>
#include <array>
#include <cstdint>

#include "share/rigctl_handlers.h"
#include "share/rigctl_levels.h"
#include "share/rigctl_modes.h"
#include "wire/decimal_number.h"

namespace corvane::rigctl {

namespace {

constexpr std::array<std::string_view, 2> vfoNames{"VFOA", "VFOB"};
constexpr int levelDecimals = 6;

std::string_view vfoName(int side) { return vfoNames.at(static_cast<std::size_t>(side)); }

const RigctlMode& modeOf(int code) {
    const auto mode = std::ranges::find(rigctlModes, static_cast<char>(code), &RigctlMode::code);
    return mode == rigctlModes.end() ? rigctlModes.front() : *mode;
}

void addFrequency(RigctlExchange& exchange, std::string_view key, std::optional<int> side) {
    const auto hertz = side ? exchange.need(ofSide(Item::frequencyA, *side)) : std::nullopt;
    if (hertz) exchange.answer.add(key, *hertz);
}

void addMode(RigctlExchange& exchange, std::string_view key, std::string_view widthKey, std::optional<int> side) {
    const auto code = side ? exchange.need(ofSide(Item::modeA, *side)) : std::nullopt;
    if (!code) return;
    exchange.answer.add(key, std::string(modeOf(*code).name));
    exchange.answer.add(widthKey, modeOf(*code).passband);
}

void addOfSide(RigctlExchange& exchange, std::string_view key, Item ofSideA) {
    const auto side = exchange.side();
    const auto hertz = side ? exchange.need(ofSide(ofSideA, *side)) : std::nullopt;
    if (hertz) exchange.answer.add(key, *hertz);
}

// The check sum of the protocol: CRC-32 as in Ethernet.
std::uint32_t checkSum(std::string_view text) {
    std::uint32_t sum = ~0U;
    for (const char c : text) {
        sum ^= static_cast<unsigned char>(c);
        for (int bit = 0; bit < 8; ++bit) sum = (sum >> 1) ^ ((sum & 1U) != 0 ? 0xedb88320U : 0U);
    }
    return ~sum;
}

}  // namespace

void getFrequency(RigctlExchange& exchange) { addFrequency(exchange, "Frequency", exchange.side()); }
void getMode(RigctlExchange& exchange) { addMode(exchange, "Mode", "Passband", exchange.side()); }

void getVfo(RigctlExchange& exchange) {
    const auto side = exchange.side();
    const auto memory = side ? exchange.need(ofSide(Item::memoryA, *side)) : std::nullopt;
    if (memory) exchange.answer.add("VFO", std::string(*memory == 1 ? "MEM" : vfoName(*side)));
}

void getTransmit(RigctlExchange& exchange) {
    if (const auto on = exchange.need(Item::transmit)) exchange.answer.add("PTT", *on == 0 ? 0 : 1);
}

void getSplit(RigctlExchange& exchange) {
    const auto split = exchange.need(Item::split);
    const auto active = exchange.need(Item::vfo);
    if (!split || !active) return;
    exchange.answer.add("Split", *split);
    exchange.answer.add("TX VFO", std::string(vfoName(*split == 1 ? 1 - *active : *active)));
}

void getSplitFrequency(RigctlExchange& exchange) { addFrequency(exchange, "TX Frequency", exchange.idleSide()); }
void getSplitMode(RigctlExchange& exchange) { addMode(exchange, "TX Mode", "TX Passband", exchange.idleSide()); }

void getSplitFrequencyAndMode(RigctlExchange& exchange) {
    getSplitFrequency(exchange);
    getSplitMode(exchange);
}

void getClarifier(RigctlExchange& exchange) { addOfSide(exchange, "RIT", Item::clarifierA); }
void getTransmitClarifier(RigctlExchange& exchange) { addOfSide(exchange, "XIT", Item::transmitClarifierA); }

void getLevel(RigctlExchange& exchange) {
    if (exchange.word(0) == "?") return exchange.answer.add("", rigctlLevelNames(false));
    const auto level = rigctlLevel(exchange.word(0));
    if (!level)
        return exchange.fail(isUnavailable(exchange.word(0)) ? RigctlError::notAvailable : RigctlError::invalid);
    const auto reported = exchange.need(level->item);
    if (!reported) return;
    const double value = level->read(*reported);
    exchange.answer.add("",
                        level->fraction ? withDecimals(value, levelDecimals) : std::to_string(static_cast<int>(value)));
}

void getFunction(RigctlExchange& exchange) {
    if (exchange.word(0) == "?") {
        std::string names;
        for (const RigctlFunction& function : rigctlFunctions) names.append(function.name).append(" ");
        return exchange.answer.add("", names);
    }
    const auto function = std::ranges::find(rigctlFunctions, exchange.word(0), &RigctlFunction::name);
    if (function == rigctlFunctions.end())
        return exchange.fail(isUnavailable(exchange.word(0)) ? RigctlError::notAvailable : RigctlError::invalid);
    if (const auto on = exchange.need(function->item)) exchange.answer.add("", *on);
}

void getChannel(RigctlExchange& exchange) {
    if (const auto channel = exchange.need(Item::channel)) exchange.answer.add("Memory#", *channel);
}

void getPower(RigctlExchange& exchange) {
    using Contact = SharedTransceiver::Contact;
    const Contact contact = exchange.radio.contact();
    if (contact == Contact::closed) return exchange.fail(RigctlError::inputOutput);
    if (contact == Contact::silent) return exchange.fail(RigctlError::timeOut);
    exchange.answer.add("Power Status", contact == Contact::present ? 1 : 0);
}

void getVfoInformation(RigctlExchange& exchange) {
    const std::string_view name = exchange.word(0);
    std::optional<int> side;
    if (const auto named = std::ranges::find(vfoNames, name); named != vfoNames.end())
        side = static_cast<int>(named - vfoNames.begin());
    else if (name == "currVFO")
        side = exchange.side();
    else
        return exchange.fail(RigctlError::invalid);
    const auto split = exchange.need(Item::split);
    addFrequency(exchange, "Freq", side);
    addMode(exchange, "Mode", "Width", side);
    if (!split) return;
    exchange.answer.add("Split", *split);
    exchange.answer.add("SatMode", 0);
}

void getRigInformation(RigctlExchange& exchange) {
    const auto active = exchange.need(Item::vfo);
    const auto split = exchange.need(Item::split);
    std::string text;
    for (const int side : {0, 1}) {
        const auto hertz = exchange.need(ofSide(Item::frequencyA, side));
        const auto code = exchange.need(ofSide(Item::modeA, side));
        if (!hertz || !code || !active || !split) return;
        const bool receives = *active == side;
        text += fmt::format("VFO={} Freq={} Mode={} Width={} RX={} TX={}\n", side == 0 ? "Main" : "Sub", *hertz,
                            modeOf(*code).name, modeOf(*code).passband, receives ? 1 : 0,
                            receives != (*split == 1) ? 1 : 0);
    }
    text += fmt::format("Split={} SatMode=0\nRig=Corvane\nApp=Corvane\nVersion=1 1.0.0\n", *split);
    exchange.answer.add("", text + fmt::format("CRC=0x{:08x}\n", checkSum(text)));
}

}  // namespace corvane::rigctl

#include "simulator/station_commands.h"

#include <array>

#include "simulator/decimal_field.h"

namespace simulator {

namespace {

using namespace std::chrono_literals;

constexpr std::size_t menuNumberWidth = 6;
constexpr Time tuningTime = 3s;

/// How long one character takes on the air: 20 words a minute of Morse code, 45.45 baud, 31.25 baud.
constexpr Time characterTime(TextFamily family) {
    switch (family) {
        case TextFamily::cw:
            return 600ms;
        case TextFamily::rtty:
            return 165ms;
        case TextFamily::psk:
            break;
    }
    return 200ms;
}

int digit(char character) { return character - '0'; }

Reply playText(const RadioState& state, TextFamily family, int number) {
    const std::string* text = state.texts.find(family, number);
    if (text == nullptr) return rejected();
    return {.transmission = Transmission{*text, characterTime(family) * text->size()}};
}

Reply textMemory(RadioState& state, TextFamily family, int number, std::string_view name, std::string_view text) {
    const std::string* stored = state.texts.find(family, number);
    if (stored == nullptr) return rejected();
    if (text.empty()) return answered(std::string(name) + *stored);
    return acceptedIf(state.texts.store(family, number, text));
}

Reply keyerMemory(RadioState& state, std::string_view parameters) {
    if (parameters.empty()) return rejected();
    const std::string name = std::string("KM") + parameters[0];
    return textMemory(state, TextFamily::cw, digit(parameters[0]), name, parameters.substr(1));
}

std::optional<TextFamily> encoderFamily(std::string_view parameters) {
    if (parameters.size() < 2) return std::nullopt;
    if (parameters[0] == '0') return TextFamily::rtty;
    if (parameters[0] == '1') return TextFamily::psk;
    return std::nullopt;
}

Reply encoderMemory(RadioState& state, std::string_view parameters) {
    const auto family = encoderFamily(parameters);
    if (!family) return rejected();
    const std::string name = "EM" + std::string(parameters.substr(0, 2));
    return textMemory(state, *family, digit(parameters[1]), name, parameters.substr(2));
}

Reply playKeyer(RadioState& state, std::string_view parameters) {
    static constexpr std::string_view codes = "6789A";  // memory 1 to 5
    if (parameters.size() != 1) return rejected();
    const auto index = codes.find(parameters[0]);
    return index == std::string_view::npos ? rejected() : playText(state, TextFamily::cw, static_cast<int>(index) + 1);
}

Reply playEncoder(RadioState& state, std::string_view parameters) {
    const auto family = encoderFamily(parameters);
    return family && parameters.size() == 2 ? playText(state, *family, digit(parameters[1])) : rejected();
}

Reply menuItem(RadioState& state, std::string_view parameters) {
    const auto number = parameters.substr(0, menuNumberWidth);
    const auto current = state.menu.value(number);
    if (!current) return rejected();
    const std::string name = "EX" + std::string(number);
    if (parameters.size() == menuNumberWidth) return answered(name + *current);
    if (!state.menu.store(number, parameters.substr(menuNumberWidth))) return rejected();
    const std::string stored = *state.menu.value(number);
    return {.report = stored == *current ? std::string() : name + stored};
}

Reply antennaTuner(RadioState& state, std::string_view parameters) {
    if (parameters.empty()) return answered(tunerReading(state));
    const auto value = parseDecimal(parameters, 3);
    if (!value || *value > 2) return rejected();
    state.tunerOn = *value != 0;
    if (*value != 2) return {};
    return {.transmission = Transmission{"", tuningTime}};
}

Reply agc(RadioState& state, std::string_view parameters) {
    if (parameters.empty()) return answered(agcReading(state));
    if (parameters.size() != 1 || parameters[0] < '0' || parameters[0] > '4') return rejected();
    state.agc = parameters[0];
    return {};
}

Reply roofingFilter(RadioState& state, std::string_view parameters) {
    if (parameters.empty()) return answered(roofingFilterReading(state));
    if (parameters.size() != 1 || std::string_view("1245").find(parameters[0]) == std::string_view::npos)
        return rejected();
    state.roofingFilter = parameters[0];
    return {};
}

Reply meter(RadioState& state, std::string_view parameters) {
    return parameters == "1" ? answered(meterReading(state)) : rejected();
}

Reply transmit(RadioState& state, std::string_view parameters) {
    if (parameters.empty()) return answered(transmitReading(state));
    if (parameters != "0" && parameters != "1") return rejected();
    state.keyed = parameters == "1";
    return {};
}

Reply switchOff(RadioState& state) {
    state.powered = false;
    state.keyed = false;
    state.awake = false;
    state.autoInformation = false;
    return {.report = "PS0"};
}

Reply switchOn(RadioState& state) {
    if (!state.powered && !state.awake) {
        state.awake = true;  // the first "PS1;" only wakes the link
        return {};
    }
    state.powered = true;
    return {};
}

Reply power(RadioState& state, std::string_view parameters) {
    if (parameters.empty()) return answered(state.powered ? "PS1" : "PS0");
    if (parameters == "0") return switchOff(state);
    return parameters == "1" ? switchOn(state) : rejected();
}

Reply autoInformation(RadioState& state, std::string_view parameters) {
    if (parameters.empty()) return answered(state.autoInformation ? "AI1" : "AI0");
    if (parameters != "0" && parameters != "1") return rejected();
    state.autoInformation = parameters == "1";
    return {};
}

constexpr std::array rows{
    CommandRow{"KM", keyerMemory}, CommandRow{"EM", encoderMemory},   CommandRow{"KY", playKeyer},
    CommandRow{"EN", playEncoder}, CommandRow{"EX", menuItem},        CommandRow{"AC", antennaTuner},
    CommandRow{"GT0", agc},        CommandRow{"RF0", roofingFilter},  CommandRow{"RM", meter},
    CommandRow{"PS", power},       CommandRow{"AI", autoInformation}, CommandRow{"TX", transmit},
};

}  // namespace

std::span<const CommandRow> stationCommands() { return rows; }

}  // namespace simulator

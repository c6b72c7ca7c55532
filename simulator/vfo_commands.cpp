#include "simulator/vfo_commands.h"

#include <array>

#include "simulator/decimal_field.h"

namespace simulator {

namespace {

template <Side side>
Reply frequency(RadioState& state, std::string_view parameters) {
    if (parameters.empty()) return answered(frequencyReading(state, side));
    const auto hertz = parseDecimal(parameters, 9);
    return acceptedIf(hertz && state.tune(side, {*hertz, state.tuning(side).mode}));
}

template <Side side>
Reply information(RadioState& state, std::string_view parameters) {
    return parameters.empty() ? answered(informationReading(state, side)) : rejected();
}

Reply mode(RadioState& state, std::string_view parameters) {
    if (parameters.empty()) return answered(modeReading(state));
    if (parameters.size() != 1) return rejected();
    return acceptedIf(state.tune(state.active, {state.activeTuning().frequency, parameters[0]}));
}

Reply activeVfo(RadioState& state, std::string_view parameters) {
    if (parameters.empty()) return answered(vfoReading(state));
    if (parameters != "0" && parameters != "1") return rejected();
    state.active = parameters == "0" ? Side::a : Side::b;
    return {};
}

Reply swapVfos(RadioState& state, std::string_view parameters) {
    if (!parameters.empty()) return rejected();
    state.swapVfos();
    return {};
}

Reply band(RadioState& state, std::string_view parameters) {
    const auto number = parseDecimal(parameters, 2);
    return acceptedIf(number && state.selectBand(*number));
}

Reply zeroIn(RadioState& state, std::string_view parameters) {
    return acceptedIf((parameters.empty() || parameters == "0") && state.zeroIn());
}

constexpr std::array rows{
    CommandRow{"FA", frequency<Side::a>},
    CommandRow{"FB", frequency<Side::b>},
    CommandRow{"IF", information<Side::a>},
    CommandRow{"OI", information<Side::b>},
    CommandRow{"MD0", mode},
    CommandRow{"VS", activeVfo},
    CommandRow{"SV", swapVfos},
    CommandRow{"BS", band},
    CommandRow{"ZI", zeroIn},
};

}  // namespace

std::span<const CommandRow> vfoCommands() { return rows; }

}  // namespace simulator

#include "simulator/reports.h"

#include <algorithm>
#include <utility>

namespace simulator {

namespace {

std::vector<std::string> readings(const RadioState& state) {
    const Side idle = state.active == Side::a ? Side::b : Side::a;
    std::vector<std::string> result{informationReading(state, idle),
                                    frequencyReading(state, idle),
                                    vfoReading(state),
                                    informationReading(state, state.active),
                                    selectedChannelReading(state),
                                    frequencyReading(state, state.active),
                                    modeReading(state),
                                    agcReading(state),
                                    roofingFilterReading(state),
                                    meterReading(state),
                                    tunerReading(state),
                                    transmitReading(state)};
    for (std::size_t row = 0; row < panelRows().size(); ++row) result.push_back(state.panel.reading(row));
    return result;
}

}  // namespace

Reports::Reports(const RadioState& state) : known_(readings(state)) {}

std::vector<std::string> Reports::takeChanges(const RadioState& state) {
    auto current = readings(state);
    std::vector<std::string> changes;
    // Every text begins with its name, so a text that is found anywhere in the old list is unchanged. The first one,
    // the record of the idle side, is only remembered.
    for (auto reading = current.begin() + 1; reading != current.end(); ++reading)
        if (std::ranges::find(known_, *reading) == known_.end()) changes.push_back(*reading);
    known_ = std::move(current);
    return changes;
}

}  // namespace simulator

#include "simulator/command_set.h"

#include <algorithm>

#include "simulator/memory_commands.h"
#include "simulator/station_commands.h"
#include "simulator/vfo_commands.h"

namespace simulator {

namespace {

const CommandRow* find(std::span<const CommandRow> rows, std::string_view command) {
    const auto found = std::ranges::find_if(rows, [&](const CommandRow& row) { return command.starts_with(row.name); });
    return found == rows.end() ? nullptr : &*found;
}

Reply executePanel(std::size_t row, std::string_view command, RadioState& state) {
    const auto value = command.substr(panelRows()[row].command.size());
    if (value.empty()) return answered(state.panel.reading(row));
    return acceptedIf(state.panel.store(row, value));
}

}  // namespace

Reply execute(std::string_view command, RadioState& state) {
    if (!state.powered && command != "PS" && command != "PS1") return {};
    for (const auto rows : {vfoCommands(), memoryCommands(), stationCommands()})
        if (const CommandRow* row = find(rows, command)) return row->handle(state, command.substr(row->name.size()));
    if (const auto row = PanelSettings::rowOf(command)) return executePanel(*row, command, state);
    return rejected();
}

}  // namespace simulator

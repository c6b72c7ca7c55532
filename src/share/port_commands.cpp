#include "share/port_commands.h"

#include "wire/operating_modes.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

using Action = PortRequest::Action;

constexpr bool isPrintable(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return c >= ' ' && c <= '~'; });
}

// The digits of the value of a paced setting.
std::size_t digitsOf(Item item) { return std::ranges::find(reportRows, item, &ReportRow::item)->digits; }

PortRequest pacedRequest(PortRequest request, std::string_view text) {
    const PortCommand::Paced& paced = *request.command->paced;
    const std::string_view digits = text.substr(request.command->name.size());
    const auto value = decimal(digits);
    const bool fits = digits.size() == digitsOf(paced.item) &&
                      std::ranges::all_of(digits, [](char c) { return c >= '0' && c <= '9'; });
    if (!fits || !value || *value < paced.lowest || *value > paced.highest) return request;
    request.action = Action::pace;
    request.value = *value;
    return request;
}

Action settingAction(const PortCommand& row, std::string_view text) {
    using Kind = PortCommand::Kind;
    if (text == "TX0") return Action::unkey;
    if (text == "TX1") return Action::key;
    switch (row.kind) {
        case Kind::asks:
        case Kind::own:
            return Action::refuse;
        case Kind::sets:
            return Action::set;
        case Kind::transmits:
            return row.harmless.find(text) == std::string_view::npos ? Action::transmit : Action::set;
        case Kind::stores:
            break;
    }
    return Action::store;
}

}  // namespace

const PortCommand* portCommand(std::string_view text) {
    const auto after = std::ranges::upper_bound(portCommands, text, {}, &PortCommand::name);
    if (after == portCommands.begin()) return nullptr;
    const PortCommand& row = *(after - 1);
    return text.starts_with(row.name) ? &row : nullptr;
}

PortRequest portRequest(std::string_view command) {
    PortRequest request{Action::refuse, portCommand(command)};
    if (!request.command || !isPrintable(command)) return request;
    const PortCommand& row = *request.command;
    if (row.paced) request.item = row.paced->item;
    if (command == "VS") request.item = Item::vfo;
    if (command == "TX") request.item = Item::transmit;
    if (row.kind == PortCommand::Kind::own) {
        if (command == "AI" || command == "AI0" || command == "AI1") request.action = Action::answer;
    } else if (command.size() <= row.readLength) {
        if (command.size() == row.readLength) request.action = Action::read;
    } else if (row.paced) {
        return pacedRequest(request, command);
    } else if (row.name == "MD0") {
        if (command.size() == row.readLength + 1 && modeName(command.back())) request.action = Action::mode;
    } else {
        request.action = settingAction(row, command);
    }
    return request;
}

}  // namespace corvane

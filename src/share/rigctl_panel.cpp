// What the panel "Other programs" shows.
#include <fmt/core.h>

#include <utility>

#include "display/table_columns.h"
#include "share/clock_seconds.h"
#include "share/rigctl_server.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

constexpr std::size_t longestShown = 40;  // characters of a request
constexpr Scheduler::Duration showInterval = std::chrono::milliseconds(500);

// A request as it can be shown: other programs may send any bytes.
std::string shown(std::string_view request) {
    std::string text(request.substr(0, longestShown));
    for (char& c : text)
        if (c < ' ' || c > '~') c = '.';
    return text;
}

}  // namespace

TableCell RigctlServer::cell(int row, int column) const {
    const Client& client = *clients_.at(static_cast<std::size_t>(row));
    const bool keyed = radio_.keyedBy() == client.session.number;
    switch (column) {
        case 0:
            return TextCell{client.connection->peer() + (keyed ? ", transmits" : "")};
        case 1:
            return TextCell{client.since};
        case 2:
            return TextCell{shown(client.last)};
        default:
            return {};
    }
}

std::string RigctlServer::time() const { return clockSeconds(tasks_.now()); }

void RigctlServer::note(const std::string& text) { display_.shareNoticeField.setStringValue(text); }

// Programs ask many times a second; nobody reads so fast.
void RigctlServer::showSoon() {
    if (std::exchange(showing_, true)) return;
    tasks_.after(showInterval, [this] {
        showing_ = false;
        show();
    });
}

void RigctlServer::show() {
    const int wanted = port_ != 0 ? port_ : wantedPort();
    if (!display_.sharePortField.editing() && display_.sharePortField.stringValue().empty())
        display_.sharePortField.setStringValue(std::to_string(wanted));
    display_.shareAddressField.setStringValue(
        port_ == 0 ? "Not shared" : fmt::format("In the other program choose \"NET rigctl\" at 127.0.0.1:{}", port_));
    const bool keyed = radio_.keyedBy().has_value();
    const Client* client = keyed ? find(*radio_.keyedBy()) : nullptr;
    display_.shareKeyedField.setStringValue(
        client ? fmt::format("ON AIR: keyed by the program at {}", client->connection->peer()) : "");
    display_.shareTable.reloadData();
}

}  // namespace corvane

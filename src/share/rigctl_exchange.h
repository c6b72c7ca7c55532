// What the handler of a command works with.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "share/rigctl_answer.h"
#include "share/shared_transceiver.h"

namespace corvane {

// What a program has chosen. It is a value: it ends with the connection.
struct RigctlSession {
    unsigned number = 0;      // of the program, from 1
    std::optional<int> side;  // the VFO that it has chosen, 0 is A; nothing: the one in use
};

// What the operator permits, and what the controller does for the room.
struct RigctlPermissions {
    bool mayTransmit = false;
    std::function<bool(std::string_view text)> sendText = [](std::string_view) { return false; };
    std::function<void()> switchOn = [] {};
};

// A handler answers at once, or names the value that it lacks: it is called again when that is known.
struct RigctlExchange {
    SharedTransceiver& radio;
    RigctlSession& session;
    const RigctlPermissions& permissions;
    const RigctlRequest& request;
    RigctlAnswer& answer;
    std::optional<Item> lacking = {};
    bool again = false;  // the handler waits for something else: it is called again until it has come
    bool refusedToTransmit = false;

    std::string_view word(std::size_t index) const { return request.words.at(index); }
    void fail(RigctlError error) { answer.error = error; }

    std::optional<int> need(Item item) {
        const auto value = radio.value(item);
        if (!value && !lacking) lacking = item;
        return value;
    }
    // The side that the program means, or the other one; nothing when that is lacking.
    std::optional<int> side() { return session.side ? session.side : need(Item::vfo); }
    std::optional<int> idleSide() {
        const auto active = need(Item::vfo);
        return active ? std::optional(1 - *active) : std::nullopt;
    }
    bool mayTransmit() {
        refusedToTransmit = !permissions.mayTransmit;
        if (refusedToTransmit) fail(RigctlError::rejected);
        return permissions.mayTransmit;
    }
};

}  // namespace corvane

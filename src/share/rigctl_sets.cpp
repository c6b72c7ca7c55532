// Settings. Each checks its arguments first, then what it needs to know, and sends last.
#include <algorithm>
#include <array>
#include <cmath>

#include "share/rigctl_handlers.h"
#include "share/rigctl_levels.h"
#include "share/rigctl_modes.h"
#include "wire/cat_command.h"
#include "wire/decimal_number.h"
#include "wire/memory_fields.h"
#include "wire/tuning_range.h"
#include "wire/wire_text.h"

namespace corvane::rigctl {

namespace {

constexpr int sideB = 1;
constexpr double hertzInMegahertz = 1e6;
constexpr std::size_t longestText = 400;  // characters of Morse code in one request

std::optional<int> hertz(std::string_view text) {
    const auto number = decimalNumber(text);
    if (!number || *number < lowestMegahertz * hertzInMegahertz || *number > highestMegahertz * hertzInMegahertz)
        return std::nullopt;
    return static_cast<int>(*number);
}

const RigctlMode* mode(std::string_view name) {
    const auto found = std::ranges::find(rigctlModes, name, &RigctlMode::name);
    return found == rigctlModes.end() ? nullptr : &*found;
}

// Any width will do: a mode has one, and that is the nearest there is.
bool isWidth(std::string_view text) {
    const auto number = decimalNumber(text);
    return number && *number >= -1;
}

std::optional<int> sideOf(std::string_view name) {
    if (name == "VFOA" || name == "Main") return 0;
    if (name == "VFOB" || name == "Sub") return sideB;
    return std::nullopt;
}

// The window shows the side of the last report as the active one; "VS;" puts that right for the idle side.
void tune(RigctlExchange& exchange, int side, int frequency) {
    const auto active = exchange.radio.value(Item::vfo);
    std::string command = (side == sideB ? "FB" : "FA") + zeroPadded(frequency, 9) + ';';
    if (active != side) command += "VS;";
    exchange.radio.set(ofSide(Item::frequencyA, side), frequency, std::move(command));
}

// The mode is set on the active side only: that of the other one takes a change of sides and back. "MD0;" brings the
// window back to the mode of the active side.
void change(RigctlExchange& exchange, int side, int active, char code) {
    std::string command = std::string("MD0") + code + ';';
    if (side != active) {
        command = (side == sideB ? "VS1;" : "VS0;") + command + (active == sideB ? "VS1;OI;" : "VS0;IF;") + "MD0;";
        exchange.radio.assume(Item::vfo, active);
    }
    exchange.radio.set(ofSide(Item::modeA, side), code, std::move(command));
}

void selectSide(RigctlExchange& exchange, int side) {
    exchange.radio.set(Item::vfo, side, side == sideB ? "VS1;" : "VS0;");
}

void swapSides(SharedTransceiver& radio) {
    radio.send(Item::memoryA, "SV;");
    for (std::size_t item = 0; item <= index(Item::transmitClarifierB); ++item) radio.forget(static_cast<Item>(item));
}

}  // namespace

void setFrequency(RigctlExchange& exchange) {
    const auto frequency = hertz(exchange.word(0));
    if (!frequency) return exchange.fail(RigctlError::invalid);
    if (const auto side = exchange.side()) tune(exchange, *side, *frequency);
}

void setMode(RigctlExchange& exchange) {
    if (exchange.word(0) == "?") return listModes(exchange);
    const RigctlMode* wanted = mode(exchange.word(0));
    if (!wanted || !isWidth(exchange.word(1))) return exchange.fail(RigctlError::invalid);
    const auto side = exchange.side();
    const auto active = exchange.need(Item::vfo);
    if (side && active) change(exchange, *side, *active, wanted->code);
}

void setVfo(RigctlExchange& exchange) {
    const std::string_view name = exchange.word(0);
    if (name == "?") return listVfos(exchange);
    if (name == "currVFO") {
        exchange.session.side.reset();
        return;
    }
    const auto named = sideOf(name);
    if (!named && name != "MEM") return exchange.fail(RigctlError::invalid);
    const auto active = exchange.need(Item::vfo);
    if (!active) return;
    const int side = named.value_or(*active);
    const auto memory = exchange.need(ofSide(Item::memoryA, side));
    if (!memory) return;
    exchange.session.side = side;
    if (side != *active) selectSide(exchange, side);
    if (*memory != (named ? 0 : 1)) exchange.radio.set(ofSide(Item::memoryA, side), named ? 0 : 1, "VM;");
}

// "T 0" is never refused while a program has keyed the transceiver, also not while that seems silent: it can only end
// the transmission.
void setTransmit(RigctlExchange& exchange) {
    using Contact = SharedTransceiver::Contact;
    const auto on = decimal(exchange.word(0));
    if (!on || *on < 0 || *on > 3) return exchange.fail(RigctlError::invalid);
    if (*on == 0 && exchange.radio.keyedBy()) return exchange.radio.unkey();
    const Contact contact = exchange.radio.contact();
    if (contact != Contact::present)
        return exchange.fail(contact == Contact::silent ? RigctlError::timeOut : RigctlError::inputOutput);
    if (*on != 0) {
        if (exchange.mayTransmit()) exchange.radio.key(exchange.session.number);
        return;
    }
    if (exchange.radio.onAir()) exchange.radio.set(Item::transmit, 0, "TX0;");
}

void setSplit(RigctlExchange& exchange) {
    const auto on = decimal(exchange.word(0));
    const auto transmits = sideOf(exchange.word(1));
    if (!on || *on < 0 || *on > 1 || (!transmits && exchange.word(1) != "currVFO"))
        return exchange.fail(RigctlError::invalid);
    const auto active = exchange.need(Item::vfo);
    if (!active) return;
    // The transceiver transmits on the side that does not receive.
    if (*on == 1 && transmits == active) {
        selectSide(exchange, 1 - *transmits);
        exchange.session.side.reset();
    }
    exchange.radio.set(Item::split, *on, *on == 1 ? "ST1;" : "ST0;");
}

void setSplitFrequency(RigctlExchange& exchange) {
    const auto frequency = hertz(exchange.word(0));
    if (!frequency) return exchange.fail(RigctlError::invalid);
    if (const auto side = exchange.idleSide()) tune(exchange, *side, *frequency);
}

void setSplitMode(RigctlExchange& exchange) {
    const RigctlMode* wanted = mode(exchange.word(0));
    if (!wanted || !isWidth(exchange.word(1))) return exchange.fail(RigctlError::invalid);
    if (const auto side = exchange.idleSide()) change(exchange, *side, 1 - *side, wanted->code);
}

void setSplitFrequencyAndMode(RigctlExchange& exchange) {
    const auto frequency = hertz(exchange.word(0));
    const RigctlMode* wanted = mode(exchange.word(1));
    if (!frequency || !wanted || !isWidth(exchange.word(2))) return exchange.fail(RigctlError::invalid);
    const auto side = exchange.idleSide();
    if (!side) return;
    tune(exchange, *side, *frequency);
    change(exchange, *side, 1 - *side, wanted->code);
}

void setLevel(RigctlExchange& exchange) {
    const std::string_view name = exchange.word(0);
    if (name == "?") return exchange.answer.add("", rigctlLevelNames(true));
    const auto level = rigctlLevel(name);
    if (!level) return exchange.fail(isUnavailable(name) ? RigctlError::notAvailable : RigctlError::invalid);
    if (level->command.empty()) return exchange.fail(RigctlError::notAvailable);
    const auto given = decimalNumber(exchange.word(1));
    const auto number = given ? level->write(*given) : std::nullopt;
    if (!number) return exchange.fail(RigctlError::invalid);
    std::string command(level->command);
    command.append(zeroPadded(*number, level->digits)).append(level->end).append(";");
    exchange.radio.set(level->item, *number, std::move(command));
}

void setFunction(RigctlExchange& exchange) {
    const std::string_view name = exchange.word(0);
    if (name == "?") return getFunction(exchange);
    const auto function = std::ranges::find(rigctlFunctions, name, &RigctlFunction::name);
    if (function == rigctlFunctions.end())
        return exchange.fail(isUnavailable(name) ? RigctlError::notAvailable : RigctlError::invalid);
    const auto on = decimal(exchange.word(1));
    if (!on || *on < 0 || *on > 1) return exchange.fail(RigctlError::invalid);
    exchange.radio.set(function->item, *on,
                       std::string(function->command).append(zeroPadded(*on, function->digits)).append(";"));
}

void setChannel(RigctlExchange& exchange) {
    const auto channel = decimal(exchange.word(0));
    if (!channel || *channel < 1 || *channel > memoryChannels) return exchange.fail(RigctlError::invalid);
    exchange.radio.set(Item::channel, *channel, "MC" + zeroPadded(*channel, 3) + ';');
}

void setPower(RigctlExchange& exchange) {
    using Contact = SharedTransceiver::Contact;
    const auto on = decimal(exchange.word(0));
    if (!on || *on < 0 || *on > 1) return exchange.fail(RigctlError::invalid);
    // A transceiver that is switched off ends what it transmits, and cannot be switched on again by everyone.
    if (*on == 0 && !exchange.mayTransmit()) return;
    const Contact contact = exchange.radio.contact();
    if (contact == Contact::closed) return exchange.fail(RigctlError::inputOutput);
    if (*on == 0) {
        exchange.radio.unkey();
        exchange.radio.set(Item::switchedOn, 0, "PS0;");
    } else if (contact != Contact::present) {
        exchange.permissions.switchOn();
    }
}

void setLock(RigctlExchange& exchange) {
    if (exchange.word(0) != "0") exchange.fail(RigctlError::notAvailable);
}

void operateVfo(RigctlExchange& exchange) {
    const std::string_view operation = exchange.word(0);
    if (operation == "?") return exchange.answer.add("", "XCHG TO_VFO TUNE TOGGLE ");
    if (operation == "XCHG") return swapSides(exchange.radio);
    if (operation == "TO_VFO") return exchange.radio.send(Item::memoryB, "MA;");
    if (operation == "TUNE") {
        if (exchange.mayTransmit()) exchange.radio.tune();
        return;
    }
    if (operation != "TOGGLE") return exchange.fail(RigctlError::notAvailable);
    if (const auto idle = exchange.idleSide()) {
        selectSide(exchange, *idle);
        exchange.session.side.reset();
    }
}

void sendMorse(RigctlExchange& exchange) {
    if (!exchange.mayTransmit()) return;
    if (exchange.word(0).size() > longestText) return exchange.fail(RigctlError::invalid);
    if (exchange.radio.congested()) return exchange.fail(RigctlError::timeOut);
    const auto active = exchange.need(Item::vfo);
    const auto code = active ? exchange.need(ofSide(Item::modeA, *active)) : std::nullopt;
    if (!code) return;
    if (modeGroup(static_cast<char>(*code)) != cwGroup) return exchange.fail(RigctlError::rejected);
    if (!exchange.permissions.sendText(exchange.word(0))) return exchange.fail(RigctlError::invalid);
    exchange.radio.assume(Item::transmit, 2);
}

void waitForMorse(RigctlExchange& exchange) {
    const auto on = exchange.need(Item::transmit);
    exchange.again = on && *on != 0;
}

}  // namespace corvane::rigctl

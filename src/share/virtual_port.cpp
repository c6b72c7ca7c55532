#include "share/virtual_port.h"

#include <fmt/core.h>

#include <algorithm>
#include <utility>

#include "wire/cat_command.h"

namespace corvane {

namespace {

using Action = PortRequest::Action;
using Contact = SharedTransceiver::Contact;

constexpr std::string_view refusal = "?;";
constexpr std::string_view transmitSwitch = "Other programs may transmit";
constexpr std::string_view storeSwitch = "Other programs may change memories and menus";

// The answer to a read of a value that is known, if that is all the answer says.
std::string knownAnswer(Item item, int value) {
    const auto row = std::ranges::find(reportRows, item, &ReportRow::item);
    return std::string(row->name) + zeroPadded(value, static_cast<int>(row->digits)) + ';';
}

}  // namespace

VirtualPort::VirtualPort(Display& display, const Preferences& preferences, Link& link, SharedTransceiver& radio,
                         const Surroundings& surroundings)
    : display_(display),
      preferences_(preferences),
      link_(link),
      radio_(radio),
      around_(surroundings),
      tasks_(around_.scheduler) {
    around_.terminal.onConnected = [this] { programCame(); };
    around_.terminal.onReadable = [this] { serve(); };
    around_.terminal.onDisconnected = [this] { programLeft(); };
}

VirtualPort::~VirtualPort() {
    radio_.release(number);
    around_.terminal.onConnected = around_.terminal.onReadable = around_.terminal.onDisconnected = [] {};
    around_.terminal.close();
}

void VirtualPort::applyPreferences() {
    if (!preferences_.shareTransmit()) radio_.release(number);
    if (offered_) note({});
    if (preferences_.virtualPort())
        open();
    else
        close();
}

void VirtualPort::open() {
    if (offered_) return;
    note({});
    switch (around_.terminal.open()) {
        case PseudoTerminal::Opening::yes:
            offered_ = true;
            break;
        case PseudoTerminal::Opening::taken:
            note(
                fmt::format("Another Corvane offers {}. Close it, or switch its virtual port off; then switch this one "
                            "off and on.",
                            around_.terminal.path()));
            break;
        case PseudoTerminal::Opening::failed:
            note(
                fmt::format("{} cannot be made. Its folder must be yours; what stands in the place of the port must "
                            "be removed.",
                            around_.terminal.path()));
            break;
    }
    show();
}

void VirtualPort::close() {
    if (std::exchange(offered_, false)) around_.terminal.close();
    programLeft();
    note({});
}

void VirtualPort::programCame() {
    since_ = time();
    show();
}

// What it sent before it left still counts, a transmission does not.
void VirtualPort::programLeft() {
    for (std::size_t turn = 0; offered_ && !waiting_ && turn < mostBacklog / bytesInTurn; ++turn) serve();
    since_.clear();
    radio_.release(number);
    reader_.clear();
    exchanges_.abandon();
    waiting_.reset();
    autoInformation_ = false;
    show();
}

void VirtualPort::portClosed() {
    exchanges_.clear();
    paced_.clear();
    waiting_.reset();
    autoInformation_ = false;
    if (!since_.empty()) serveLater();
    show();
}

// The work of one turn is bounded: a program that floods the port waits, the window does not.
void VirtualPort::serve() {
    if (waiting_) {
        if (!handle(waiting_->command, waiting_->since)) return unkeyAhead();
        waiting_.reset();
    }
    for (bool mayRead = true; !waiting_;) {
        if (auto command = reader_.next()) {
            if (!handle(*command, now_)) waiting_ = Waiting{std::move(*command), now_};
        } else if (std::exchange(mayRead, false)) {
            const std::string bytes = around_.terminal.read(bytesInTurn);
            reader_.feed(bytes);
            if (bytes.size() == bytesInTurn) serveLater();
        } else {
            break;
        }
    }
    if (waiting_) wake();
    show();
}

// The end of its transmission does not wait behind a command that must.
void VirtualPort::unkeyAhead() {
    if (radio_.keyedBy() != number) return;
    if (reader_.held() < bytesInTurn) reader_.feed(around_.terminal.read(bytesInTurn));
    if (reader_.takeOut("TX", "TX0")) radio_.unkey();
}

void VirtualPort::serveLater() {
    if (std::exchange(due_, true)) return;
    tasks_.after(Scheduler::Duration{0}, [this] {
        due_ = false;
        serve();
    });
}

// False while the command must wait.
bool VirtualPort::handle(const std::string& command, ShareTime since) {
    const PortRequest request = portRequest(command);
    heard_ = now_;
    radio_.noteActivity();
    // It can only end the transmission: a transceiver that seems silent gets it, too.
    if (request.action == Action::unkey && radio_.keyedBy()) {
        radio_.unkey();
        return true;
    }
    const Contact contact = radio_.contact();
    const bool present = contact == Contact::present;
    // A transceiver that is off answers nothing but what asks for that, or switches it on.
    if (!present && (contact != Contact::off || !request.command || request.command->name != "PS")) return true;
    // Answers keep the order of the commands.
    if (exchanges_.reading() && request.action != Action::unkey) return false;
    switch (request.action) {
        case Action::refuse:
            answer(refusal);
            return true;
        case Action::answer:
            answerAutoInformation(command);
            return true;
        case Action::unkey:
            radio_.set(Item::transmit, 0, "TX0;");
            return true;
        case Action::key:
        case Action::transmit:
            if (!permit(preferences_.shareTransmit(), "transmit", transmitSwitch)) return true;
            break;
        case Action::store:
            if (!permit(preferences_.shareStore(), "change a memory or the setup menu", storeSwitch)) return true;
            break;
        case Action::read:
            if (request.item && present && radio_.reportsChanges() && now_ >= certainFrom_)
                if (const auto known = radio_.value(*request.item)) {
                    answer(knownAnswer(*request.item, *known));
                    return true;
                }
            break;
        case Action::set:
        case Action::pace:
        case Action::mode:
            break;
    }
    if (lineTaken() || radio_.congested()) {
        if (now_ - since < longestWait) return false;
        answer(refusal);
        return true;
    }
    return request.action == Action::read ? read(request, command) : sendSetting(request, command);
}

bool VirtualPort::permit(bool permitted, std::string_view wish, std::string_view switchName) {
    if (permitted) return true;
    answer(refusal);
    note(fmt::format("{}: the program at the virtual port asked to {} and may not. To let it, switch on \"{}\".",
                     time(), wish, switchName));
    return false;
}

// A question goes behind the settings that were given before it, and one at a time.
bool VirtualPort::read(const PortRequest& request, const std::string& command) {
    if (!exchanges_.empty() || radio_.settingsWait()) return false;
    const int active = radio_.value(Item::vfo).value_or(0);
    if (request.item && now_ >= certainFrom_) {
        if (!radio_.ask(*request.item)) return true;  // it was silent a moment ago
    } else if (command == "IF" || command == "OI") {
        link_.sendCommand(requestFor(ofSide(Item::modeA, command == "OI" ? 1 : 0), active));
    } else {
        link_.sendCommand(command + ';');
        if (command == (active == 0 ? "FB" : "FA")) link_.sendCommand("VS;");
    }
    exchanges_.begin({command, true, {}, now_});
    wake();
    return true;
}

bool VirtualPort::sendSetting(const PortRequest& request, const std::string& command) {
    if (request.action == Action::key) {
        radio_.key(number);
        wake();
        return true;
    }
    if (request.action == Action::pace) {
        pace(*request.item, request.value, command);
        return true;
    }
    const auto active = radio_.value(Item::vfo);
    if (request.action == Action::mode && active && radio_.reportsChanges() && now_ >= certainFrom_) {
        pace(ofSide(Item::modeA, *active), command.back(), command);
        return true;
    }
    if (!exchanges_.empty() || radio_.settingsWait()) return false;
    sendAlone(command);
    return true;
}

// The window shows the side of the last report as the active one; "VS;" puts that right for the idle side.
void VirtualPort::pace(Item item, int value, const std::string& command) {
    std::erase_if(paced_, [item](const Paced& waiting) { return waiting.item == item; });
    paced_.push_back({command + ';', item});
    std::string text = command + ';';
    if (item == Item::frequencyA || item == Item::frequencyB)
        if (radio_.value(Item::vfo) != static_cast<int>(index(item) - index(Item::frequencyA))) text += "VS;";
    text += PortExchanges::fence;
    wake();
    radio_.set(item, value, std::move(text));
}

void VirtualPort::sendAlone(const std::string& command) {
    if (command == "PS0") radio_.unkey();
    link_.sendCommand(command + ';');
    link_.sendCommand(PortExchanges::fence);
    exchanges_.begin({"AI", false, {}, now_});
    certainFrom_ = now_ + settling;
    wake();
}

// The line's own auto information stays on: the window lives from it.
void VirtualPort::answerAutoInformation(const std::string& command) {
    if (command == "AI")
        answer(autoInformation_ ? "AI1;" : "AI0;");
    else
        autoInformation_ = command == "AI1";
}

void VirtualPort::answer(std::string_view text) {
    if (!since_.empty() && around_.terminal.backlog() + text.size() <= mostBacklog) around_.terminal.write(text);
}

bool VirtualPort::takeResponse(std::string_view response) {
    if (!offered_ && exchanges_.empty()) return false;
    const auto exchange = exchanges_.take(response.starts_with('?') ? "?" : response);
    const bool refused = exchange && response.starts_with('?');
    if (refused) {
        if (exchange->item) radio_.forget(*exchange->item);
        if (!exchange->abandoned) answer(refusal);
    } else if (exchange ? exchange->reads && !exchange->abandoned : autoInformation_ && isReport(response)) {
        answer(std::string(response) + ';');
    }
    // The rooms of the program take the response first.
    if (exchange && waiting_) serveLater();
    // The window takes the channel of an "MR" response for the one in use.
    return refused || (exchange && exchange->reads && response.starts_with("MR"));
}

// Not what Corvane itself has asked for.
bool VirtualPort::isReport(std::string_view response) const {
    const PortCommand* row = portCommand(response);
    if (!row) return !response.starts_with('?');
    return row->reported && !(row->kind == PortCommand::Kind::stores && lineTaken());
}

void VirtualPort::noteSent(std::string_view command) {
    const auto sent = std::ranges::find(paced_, command, &Paced::command);
    if (sent == paced_.end()) return;
    exchanges_.begin({"AI", false, sent->item, now_});
    paced_.erase(sent);
}

void VirtualPort::wake() {
    if (std::exchange(ticking_, true)) return;
    tasks_.after(beat, [this] { tick(); });
}

void VirtualPort::tick() {
    now_ += beat;
    exchanges_.expire(now_);
    if (radio_.keyedBy() == number && now_ - heard_ > hangLimit) {
        radio_.unkey();
        note(
            fmt::format("{}: the program at the virtual port had keyed the transceiver and was silent for 30 s: it was "
                        "unkeyed.",
                        time()));
    }
    if (!radio_.settingsWait()) paced_.clear();  // another program's took the place of some
    if (waiting_) serve();
    show();
    ticking_ = waiting_ || !exchanges_.empty() || !paced_.empty() || radio_.keyedBy() == number || now_ < certainFrom_;
    if (ticking_) tasks_.after(beat, [this] { tick(); });
}

}  // namespace corvane

#include "share/rigctl_server.h"

#include <fmt/core.h>

#include <algorithm>
#include <utility>

#include "share/rigctl_commands.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

using namespace std::chrono_literals;

constexpr std::string_view portKey = "sharePort";
constexpr int lowestPort = 1024;  // those below belong to the system
constexpr int highestPort = 65535;

int portOf(std::string_view text) {
    const int port = decimalOrZero(text);
    return port >= lowestPort && port <= highestPort ? port : 0;
}

}  // namespace

RigctlServer::RigctlServer(Display& display, const Preferences& preferences, SharedTransceiver& radio,
                           const Surroundings& surroundings)
    : display_(display), preferences_(preferences), radio_(radio), around_(surroundings), tasks_(around_.scheduler) {
    around_.loopback.onConnection = [this](std::unique_ptr<TcpConnection> connection) { take(std::move(connection)); };
    radio_.onAnswered = [this] { resumeAll(); };
    radio_.onVfoChanged = [this] {
        for (const auto& client : clients_) client->session.side.reset();
    };
    radio_.onKeyed = [this] { showSoon(); };
    radio_.onBeat = [this] { beat(); };
}

RigctlServer::~RigctlServer() {
    radio_.unkey();
    radio_.onAnswered = radio_.onVfoChanged = radio_.onKeyed = radio_.onBeat = [] {};
    around_.loopback.onConnection = nullptr;
    around_.loopback.stop();
}

void RigctlServer::applyPreferences() {
    const bool mayTransmit = preferences_.shareTransmit();
    if (!mayTransmit) {
        radio_.unkey();
        radio_.cancelTuning();
    }
    if (mayTransmit && !permissions.mayTransmit) note({});
    permissions.mayTransmit = mayTransmit;
    if (preferences_.share())
        open();
    else
        close();
}

// The one that the operator chose, unless what is stored is no port.
int RigctlServer::wantedPort() const {
    const int stored = portOf(around_.settings.text(portKey).value_or(""));
    return stored == 0 ? usualPort : stored;
}

void RigctlServer::open() {
    const int wanted = wantedPort();
    if (port_ == wanted) return;
    close();
    switch (around_.loopback.listen(wanted)) {
        case LoopbackServer::Listening::yes:
            port_ = wanted;
            break;
        case LoopbackServer::Listening::portTaken:
            note(
                fmt::format("Port {} is taken, probably by another server of this kind. Stop that program, or choose "
                            "another port here and in the other programs.",
                            wanted));
            break;
        case LoopbackServer::Listening::failed:
            note(fmt::format("Port {} cannot be opened. Choose another one.", wanted));
            break;
    }
    show();
}

void RigctlServer::close() {
    if (std::exchange(port_, 0) != 0) around_.loopback.stop();
    for (const auto& client : clients_) client->ends = true;
    removeEnded();
    display_.shareNoticeField.setStringValue({});
    show();
}

void RigctlServer::choosePort(TextField& sender) {
    const int port = portOf(trimmed(sender.stringValue()));
    if (port == 0) return note(fmt::format("A port is a number from {} to {}.", lowestPort, highestPort));
    sender.endEditing();
    note({});
    around_.settings.setText(portKey, std::to_string(port));
    if (preferences_.share()) {
        port_ = port_ == port ? port_ : 0;
        open();
    }
    show();
}

void RigctlServer::disconnect(const Button& sender) {
    const auto row = static_cast<std::size_t>(sender.tag());
    if (row >= clients_.size()) return;
    clients_[row]->ends = true;
    removeEnded();
}

void RigctlServer::take(std::unique_ptr<TcpConnection> connection) {
    if (clients_.size() >= mostClients || port_ == 0) return;
    Client& client = *clients_.emplace_back(std::make_unique<Client>());
    client.session.number = ++lastNumber_;
    client.since = time();
    client.connection = std::move(connection);
    client.connection->onReadable = [this, &client] { serve(client); };
    client.connection->onWritten = [this, &client] {
        if (std::exchange(client.stalled, std::nullopt)) serve(client);
    };
    client.connection->onClosed = [this, &client] {
        client.ends = true;
        removeEnded();
    };
    showSoon();
}

// The work of one turn is bounded: a program that floods the server waits, the window does not.
void RigctlServer::serve(Client& client) {
    std::string text;
    bool mayRead = true;
    bool more = false;
    while (!client.waiting && !client.ends) {
        if (client.connection->backlog() + text.size() > mostBacklog) {
            client.stalled = radio_.now();
            radio_.noteActivity();
            break;
        }
        if (const auto request = client.reader.next()) {
            answer(client, *request, text);
            continue;
        }
        if (!mayRead) {
            if (more) serveLater(client);
            break;
        }
        const std::string bytes = client.connection->read(bytesInTurn);
        client.reader.feed(bytes);
        mayRead = false;
        more = bytes.size() == bytesInTurn;
        if (bytes.empty()) break;
    }
    if (!text.empty()) client.connection->write(text);
    if (client.ends) removeEnded();
}

void RigctlServer::serveLater(Client& client) {
    if (std::exchange(client.due, true)) return;
    tasks_.after(Scheduler::Duration{0}, [this, number = client.session.number] {
        if (Client* found = find(number)) {
            found->due = false;
            serve(*found);
        }
    });
}

void RigctlServer::answer(Client& client, const RigctlRequest& request, std::string& text) {
    using Problem = RigctlRequest::Problem;
    if (request.problem == Problem::foreign) {
        client.ends = true;
        return;
    }
    client.heard = radio_.now();
    client.last = request.text;
    radio_.noteActivity();
    showSoon();
    RigctlAnswer reply;
    if (request.problem != Problem::none)
        reply.error = request.problem == Problem::unknown ? RigctlError::notAvailable : RigctlError::invalid;
    else if (!run(client, request, reply))
        return;
    reply.appendTo(text, request);
    if (reply.error == RigctlError::invalid) client.reader.skipLine();
    client.ends = client.ends || reply.closes;
}

// False while the answer must wait.
bool RigctlServer::run(Client& client, const RigctlRequest& request, RigctlAnswer& answer) {
    using Contact = SharedTransceiver::Contact;
    const RigctlCommand& command = *request.command;
    if (command.needs == RigctlCommand::Needs::transceiver) {
        const Contact contact = radio_.contact();
        if (contact != Contact::present) {
            answer.error = contact == Contact::silent ? RigctlError::timeOut : RigctlError::inputOutput;
            return true;
        }
    }
    RigctlExchange exchange{radio_, client.session, permissions, request, answer};
    command.handle(exchange);
    if (exchange.refusedToTransmit)
        note(
            fmt::format("{}: the program at {} asked to transmit and may not. To let it, switch on \"Other programs "
                        "may transmit\".",
                        time(), client.connection->peer()));
    if (answer.error == RigctlError::none) {
        const bool waits = exchange.again ? radio_.now() - client.heard < morseLimit
                                          : exchange.lacking && radio_.ask(*exchange.lacking);
        if (waits) {
            client.waiting = request;
            return false;
        }
        if (exchange.again || exchange.lacking) answer.error = RigctlError::timeOut;
    }
    answer.status = answer.status || (command.sets && answer.error == RigctlError::none);
    return true;
}

void RigctlServer::resumeAll() {
    for (const auto& client : clients_) {
        if (!client->waiting || client->ends) continue;
        const RigctlRequest request = *std::exchange(client->waiting, std::nullopt);
        RigctlAnswer reply;
        if (!run(*client, request, reply)) continue;
        std::string text;
        reply.appendTo(text, request);
        if (reply.error == RigctlError::invalid) client->reader.skipLine();
        client->connection->write(text);
        serveLater(*client);
    }
}

void RigctlServer::beat() {
    bool resumes = false;
    for (const auto& client : clients_) {
        resumes = resumes || client->waiting;
        if (client->stalled) {
            radio_.noteActivity();
            client->ends = client->ends || radio_.now() - *client->stalled > stallLimit;
        }
        if (radio_.keyedBy() == client->session.number && radio_.now() - client->heard > hangLimit) {
            radio_.unkey();
            note(fmt::format("{}: the program at {} had keyed the transceiver and was silent for 30 s: it was unkeyed.",
                             time(), client->connection->peer()));
        }
    }
    if (resumes) resumeAll();
    removeEnded();
}

void RigctlServer::removeEnded() {
    for (const auto& client : clients_)
        if (client->ends) radio_.release(client->session.number);
    if (std::erase_if(clients_, [](const auto& client) { return client->ends; }) > 0) showSoon();
}

RigctlServer::Client* RigctlServer::find(unsigned number) {
    const auto found =
        std::ranges::find_if(clients_, [number](const auto& client) { return client->session.number == number; });
    return found == clients_.end() ? nullptr : found->get();
}

}  // namespace corvane

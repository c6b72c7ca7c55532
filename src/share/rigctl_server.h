// Lets other programs on this machine use the transceiver over TCP, by the NET rigctl protocol: "f\n" is answered
// "14074000\n". Off until the operator switches it on.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "app/preferences.h"
#include "display/display.h"
#include "platform/loopback_server.h"
#include "platform/settings_store.h"
#include "platform/tasks.h"
#include "share/rigctl_client.h"
#include "share/shared_transceiver.h"

namespace corvane {

class RigctlServer {
public:
    static constexpr int usualPort = 4532;
    static constexpr std::size_t mostClients = 16;
    static constexpr std::size_t bytesInTurn = 1024;       // read from one program in one turn of the event loop
    static constexpr std::size_t mostBacklog = 64 * 1024;  // answers that wait for a program that does not read
    static constexpr ShareTime stallLimit{5'000};          // how long such a program stays
    static constexpr ShareTime hangLimit{30'000};          // a program that keyed and asks nothing more is unkeyed
    static constexpr ShareTime morseLimit{9'000};          // of a program that waits for its text to end

    struct Surroundings {
        LoopbackServer& loopback;
        SettingsStore& settings;
        Scheduler& scheduler;
    };

    RigctlServer(Display& display, const Preferences& preferences, SharedTransceiver& radio,
                 const Surroundings& surroundings);
    ~RigctlServer();
    RigctlServer(const RigctlServer&) = delete;
    RigctlServer& operator=(const RigctlServer&) = delete;

    // The controller says how Morse code is sent, and how the transceiver is switched on.
    RigctlPermissions permissions;

    void applyPreferences();                // opens or closes the door, permits or forbids transmitting
    void choosePort(TextField& sender);     // 1024 to 65535
    void disconnect(const Button& sender);  // the program in the row that is the sender's tag

    int rows() const { return static_cast<int>(clients_.size()); }
    TableCell cell(int row, int column) const;

private:
    using Client = RigctlClient;

    int wantedPort() const;
    void open();
    void close();
    void take(std::unique_ptr<TcpConnection> connection);
    void serve(Client& client);
    void serveLater(Client& client);
    void answer(Client& client, const RigctlRequest& request, std::string& text);
    bool run(Client& client, const RigctlRequest& request, RigctlAnswer& answer);
    void resumeAll();
    void beat();
    void removeEnded();
    Client* find(unsigned number);
    void note(const std::string& text);
    void showSoon();
    void show();
    std::string time() const;

    Display& display_;
    const Preferences& preferences_;
    SharedTransceiver& radio_;
    Surroundings around_;
    Tasks tasks_;
    std::vector<std::unique_ptr<Client>> clients_;  // in the order in which they came
    unsigned lastNumber_ = 0;
    int port_ = 0;  // on which it listens; 0: it does not
    bool showing_ = false;
};

}  // namespace corvane

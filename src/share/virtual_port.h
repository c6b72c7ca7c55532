// A serial port for programs that know nothing else: it speaks the transceiver's own commands, "FA;" is answered
// "FA014250000;". Off until the operator switches it on.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/preferences.h"
#include "display/display.h"
#include "platform/clipboard.h"
#include "platform/pseudo_terminal.h"
#include "platform/tasks.h"
#include "radio/link.h"
#include "share/port_commands.h"
#include "share/port_exchanges.h"
#include "share/port_reader.h"
#include "share/shared_transceiver.h"

namespace corvane {

class VirtualPort {
public:
    static constexpr unsigned number = 0;             // among the programs that key; those of the rigctl server follow
    static constexpr std::size_t bytesInTurn = 512;   // read in one turn of the event loop
    static constexpr std::size_t mostBacklog = 4096;  // bytes that wait for a program; answers beyond are dropped
    static constexpr ShareTime beat{50};
    static constexpr ShareTime longestWait{3'000};  // of a command for the end of a memory read; then "?;"
    static constexpr ShareTime hangLimit{30'000};   // a program that keyed and sends nothing more is unkeyed
    static constexpr ShareTime settling{300};       // after a setting of unknown consequences nothing known counts

    struct Surroundings {
        PseudoTerminal& terminal;
        Clipboard& clipboard;
        Scheduler& scheduler;
    };

    VirtualPort(Display& display, const Preferences& preferences, Link& link, SharedTransceiver& radio,
                const Surroundings& surroundings);
    ~VirtualPort();
    VirtualPort(const VirtualPort&) = delete;
    VirtualPort& operator=(const VirtualPort&) = delete;

    // Whether error responses are awaited by a read of the memories or of the setup menu: commands wait.
    std::function<bool()> lineTaken = [] { return false; };

    void applyPreferences();  // opens or closes the port, permits or forbids
    void copyPath();

    // --- what happens on the line. True when a response, without its ";", concerns the program alone: an error
    // response to its command, or a memory channel that it asked for.
    bool takeResponse(std::string_view response);
    void noteSent(std::string_view command);
    void portClosed();

private:
    struct Waiting {
        std::string command;
        ShareTime since;
    };
    struct Paced {
        std::string command;  // "FA014250000;"
        Item item;
    };
    void open();
    void close();
    void programCame();
    void programLeft();
    void serve();
    void serveLater();
    void unkeyAhead();
    bool handle(const std::string& command, ShareTime since);
    bool permit(bool permitted, std::string_view wish, std::string_view switchName);
    bool read(const PortRequest& request, const std::string& command);
    bool sendSetting(const PortRequest& request, const std::string& command);
    void pace(Item item, int value, const std::string& command);
    void sendAlone(const std::string& command);
    void answerAutoInformation(const std::string& command);
    void answer(std::string_view text);
    bool isReport(std::string_view response) const;
    void wake();
    void tick();
    void note(const std::string& text);
    void show();
    std::string time() const;

    Display& display_;
    const Preferences& preferences_;
    Link& link_;
    SharedTransceiver& radio_;
    Surroundings around_;
    Tasks tasks_;
    PortReader reader_;
    PortExchanges exchanges_;
    std::vector<Paced> paced_;        // on their way to the line
    std::optional<Waiting> waiting_;  // nothing more is read meanwhile
    std::string since_;               // when the program came: "13:02:11 UTC"; empty: there is none
    bool offered_ = false;
    bool autoInformation_ = false;  // the program has asked for reports
    bool due_ = false;              // it is served again in the next turn of the event loop
    bool ticking_ = false;
    ShareTime now_{0};
    ShareTime heard_{0};
    ShareTime certainFrom_{0};
};

}  // namespace corvane

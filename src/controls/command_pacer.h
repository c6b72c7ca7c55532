// Keeps a control that is dragged from sending more than the line carries: at most one command in 50 ms, and always
// the last one given.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/tasks.h"

namespace corvane {

class CommandPacer {
public:
    using Send = std::function<void(std::string command)>;

    static constexpr Scheduler::Duration interval{50};

    // `tasks` end with the pacer; `rested` is called when the last command is 50 ms old.
    CommandPacer(Send send, const Tasks& tasks, std::function<void()> rested)
        : send_(std::move(send)), tasks_(tasks), rested_(std::move(rested)) {}

    // Sends the command at once, or as soon as the one before it is 50 ms old; only the latest of those that wait is
    // sent. "AG0080;", "AG0085;", "AG0090;" within 50 ms send the first and the last.
    void submit(std::string command);

private:
    Send send_;
    const Tasks& tasks_;
    std::function<void()> rested_;
    bool pausing_ = false;
    std::optional<std::string> waiting_;
};

}  // namespace corvane

#include "share/paced_commands.h"

#include <algorithm>
#include <utility>

namespace corvane {

void PacedCommands::submit(Item item, std::string command) {
    const auto same = std::ranges::find(waiting_, item, &Waiting::item);
    if (same != waiting_.end())
        same->command = std::move(command);
    else
        waiting_.push_back({item, std::move(command)});
}

void PacedCommands::pump(ShareTime now) {
    while (!waiting_.empty() && rested(waiting_.front().item, now)) {
        const Waiting next = std::move(waiting_.front());
        waiting_.erase(waiting_.begin());
        send(next, now);
    }
}

void PacedCommands::flush(ShareTime now) {
    for (const Waiting& command : std::exchange(waiting_, {})) send(command, now);
}

void PacedCommands::send(const Waiting& command, ShareTime now) {
    sentAt_[index(command.item)] = now;
    send_(command.item, command.command);
}

}  // namespace corvane

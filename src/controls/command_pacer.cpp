#include "controls/command_pacer.h"

#include <utility>

namespace corvane {

void CommandPacer::submit(std::string command) {
    if (pausing_) {
        waiting_ = std::move(command);
        return;
    }
    pausing_ = true;
    tasks_.after(interval, [this] {
        pausing_ = false;
        if (waiting_)
            submit(*std::exchange(waiting_, std::nullopt));
        else
            rested_();
    });
    send_(std::move(command));
}

}  // namespace corvane

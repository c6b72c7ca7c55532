#include "simulator/stop_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <system_error>

namespace simulator {

namespace {

volatile std::sig_atomic_t wakeDescriptor = -1;

constexpr std::array caught{SIGINT, SIGTERM, SIGHUP};

void wake(int) {
    const int saved = errno;
    const char byte = 1;
    [[maybe_unused]] const auto written = write(wakeDescriptor, &byte, 1);
    errno = saved;
}

}  // namespace

StopSignals::StopSignals() {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        throw std::system_error(errno, std::generic_category(), "pipe");
    readEnd_ = ends[0];
    writeEnd_ = ends[1];
    wakeDescriptor = writeEnd_;
    for (const int number : caught) std::signal(number, wake);
    std::signal(SIGPIPE, SIG_IGN);  // a closed output must not end us before the link is removed
}

StopSignals::~StopSignals() {
    for (const int number : caught) std::signal(number, SIG_DFL);
    close(readEnd_);
    close(writeEnd_);
}

}  // namespace simulator

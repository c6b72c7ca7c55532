#include "simulator/pseudo_terminal.h"

#include <fcntl.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <system_error>

namespace simulator {

namespace {

[[noreturn]] void fail(const char* what) { throw std::system_error(errno, std::generic_category(), what); }

void makeRaw(int terminal) {
    termios settings{};
    if (tcgetattr(terminal, &settings) != 0) fail("tcgetattr");
    cfmakeraw(&settings);
    cfsetspeed(&settings, B38400);
    if (tcsetattr(terminal, TCSANOW, &settings) != 0) fail("tcsetattr");
}

}  // namespace

PseudoTerminal::PseudoTerminal() : master_(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)) {
    try {
        if (master_ < 0) fail("posix_openpt");
        std::array<char, 128> name{};
        if (grantpt(master_) != 0 || unlockpt(master_) != 0 || ptsname_r(master_, name.data(), name.size()) != 0)
            fail("pseudo-terminal");
        path_ = name.data();
        slave_ = open(name.data(), O_RDWR | O_NOCTTY | O_CLOEXEC);
        if (slave_ < 0) fail("open");
        makeRaw(slave_);
    } catch (...) {
        if (slave_ >= 0) close(slave_);
        if (master_ >= 0) close(master_);
        throw;
    }
}

PseudoTerminal::~PseudoTerminal() {
    close(slave_);
    close(master_);
}

std::string PseudoTerminal::read() {
    std::array<char, 4096> buffer{};
    const auto count = ::read(master_, buffer.data(), buffer.size());
    return count > 0 ? std::string(buffer.data(), static_cast<std::size_t>(count)) : std::string();
}

void PseudoTerminal::write(std::string_view bytes) {
    while (!bytes.empty()) {
        const auto count = ::write(master_, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

}  // namespace simulator

// A simulated serial line: a pseudo-terminal.
#pragma once

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <unistd.h>

#include <array>
#include <stdexcept>
#include <string>
#include <string_view>

namespace corvane {

// Holds the far end; the near end can be opened under `path()` like a serial device. `unplug` removes it.
class PseudoTerminal {
public:
    PseudoTerminal() : master_(::posix_openpt(O_RDWR | O_NOCTTY)) {
        std::array<char, 64> name{};
        if (master_ < 0 || ::grantpt(master_) != 0 || ::unlockpt(master_) != 0 ||
            ::ptsname_r(master_, name.data(), name.size()) != 0) {
            throw std::runtime_error("no pseudo-terminal");
        }
        path_ = name.data();
    }
    ~PseudoTerminal() { unplug(); }
    PseudoTerminal(const PseudoTerminal&) = delete;
    PseudoTerminal& operator=(const PseudoTerminal&) = delete;

    const std::string& path() const { return path_; }

    void unplug() {
        if (master_ >= 0) ::close(master_);
        master_ = -1;
    }

    bool send(std::string_view bytes) const {
        return ::write(master_, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
    }

    // The bytes that have arrived since the last call.
    std::string taken() const {
        std::string bytes;
        pollfd line{master_, POLLIN, 0};
        while (::poll(&line, 1, 0) > 0 && (line.revents & POLLIN) != 0) {
            std::array<char, 256> piece{};
            const ssize_t count = ::read(master_, piece.data(), piece.size());
            if (count <= 0) break;
            bytes.append(piece.data(), static_cast<std::size_t>(count));
        }
        return bytes;
    }

private:
    int master_;
    std::string path_;
};

}  // namespace corvane

#pragma once

#include <filesystem>

namespace simulator {

// A symbolic link of a fixed name to a pseudo-terminal, whose own name changes. Removed when it is destroyed, if it is
// still the one that was made.
class PortLink {
public:
    // Replaces a symbolic link that stands there; throws std::filesystem::filesystem_error for anything else.
    PortLink(std::filesystem::path link, std::filesystem::path target);
    ~PortLink();
    PortLink(const PortLink&) = delete;
    PortLink& operator=(const PortLink&) = delete;

private:
    std::filesystem::path link_;
    std::filesystem::path target_;
};

}  // namespace simulator

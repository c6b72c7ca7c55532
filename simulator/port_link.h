#pragma once

#include <filesystem>

namespace simulator {

// A symbolic link with a fixed name to a pseudo-terminal, whose own name changes. The destructor removes the link
// unless it has been replaced.
class PortLink {
public:
    // Replaces an existing symbolic link; throws std::filesystem::filesystem_error for anything else.
    PortLink(std::filesystem::path link, std::filesystem::path target);
    ~PortLink();
    PortLink(const PortLink&) = delete;
    PortLink& operator=(const PortLink&) = delete;

private:
    std::filesystem::path link_;
    std::filesystem::path target_;
};

}  // namespace simulator

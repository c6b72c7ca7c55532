#include "simulator/port_link.h"

#include <system_error>
#include <utility>

namespace simulator {

PortLink::PortLink(std::filesystem::path link, std::filesystem::path target)
    : link_(std::move(link)), target_(std::move(target)) {
    if (std::filesystem::is_symlink(std::filesystem::symlink_status(link_))) std::filesystem::remove(link_);
    std::filesystem::create_symlink(target_, link_);
}

PortLink::~PortLink() {
    std::error_code ignored;
    if (std::filesystem::read_symlink(link_, ignored) == target_) std::filesystem::remove(link_, ignored);
}

}  // namespace simulator

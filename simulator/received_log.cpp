#include "simulator/received_log.h"

#include <algorithm>

namespace simulator {

namespace {

std::string_view nameOf(std::string_view command) {
    const auto name = command.substr(0, 2);
    const bool isName = name.size() == 2 && std::ranges::all_of(name, [](char c) { return c >= 'A' && c <= 'Z'; });
    return isName ? name : "?";
}

}  // namespace

void ReceivedLog::add(Time at, std::string_view command) {
    commands_.push_back({at, std::string(command) + ";"});
    if (commands_.size() > capacity) commands_.pop_front();
    ++counts_[std::string(nameOf(command))];
    ++total_;
}

void ReceivedLog::clear() { *this = {}; }

std::size_t ReceivedLog::count(std::string_view name) const {
    const auto found = counts_.find(name);
    return found == counts_.end() ? 0 : found->second;
}

}  // namespace simulator

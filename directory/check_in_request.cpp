#include "check_in_request.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace corvane::directory {

bool isOperatorKey(std::string_view text) {
    constexpr std::size_t length = 32;
    return text.size() == length &&
           std::ranges::all_of(text, [](char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'); });
}

std::optional<CheckIn> checkInFrom(std::string_view body) {
    const auto json = nlohmann::json::parse(body, nullptr, false);
    if (!json.is_object()) return {};
    const auto key = json.find("key");
    const auto net = json.find("net_id");
    const auto action = json.find("action");
    if (key == json.end() || net == json.end() || action == json.end()) return {};
    if (!key->is_string() || !net->is_string() || !action->is_number()) return {};
    if (!isOperatorKey(key->get_ref<const std::string&>()) || (*action != 0 && *action != 1)) return {};
    return CheckIn{*key, *net, *action == 1};
}

}  // namespace corvane::directory

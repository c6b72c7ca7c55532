#include "app/operator_key.h"

#include <random>
#include <string_view>

namespace corvane {

namespace {

constexpr std::size_t length = 32;
constexpr std::string_view digits = "0123456789abcdef";

}  // namespace

std::string randomKey() {
    std::random_device random;
    std::uniform_int_distribution<int> digit(0, 15);
    std::string key;
    for (std::size_t i = 0; i < length; ++i) key += digits[digit(random)];
    return key;
}

std::string operatorKey(SettingsStore& settings) {
    std::string key = settings.text("operator").value_or("");
    if (key.empty()) {
        key = randomKey();
        settings.setText("operator", key);
    }
    return key;
}

std::string keyQuery(const std::string& key) {
    const bool isKey = key.size() == length && key.find_first_not_of(digits) == std::string::npos;
    return isKey ? "?key=" + key : "";
}

}  // namespace corvane

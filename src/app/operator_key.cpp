#include "app/operator_key.h"

#include <random>
#include <string_view>

namespace corvane {

namespace {

constexpr std::string_view setting = "operator";
constexpr std::size_t length = 32;
constexpr std::string_view digits = "0123456789abcdef";

// From the system's source of randomness.
std::string randomKey() {
    std::random_device random;
    std::uniform_int_distribution<int> digit(0, 15);
    std::string key;
    for (std::size_t i = 0; i < length; ++i) key += digits[digit(random)];
    return key;
}

}  // namespace

std::string keptOperatorKey(const SettingsStore& settings) {
    std::string key = settings.text(setting).value_or("");
    const bool whole = key.size() == length && key.find_first_not_of(digits) == std::string::npos;
    return whole ? key : std::string();
}

std::string operatorKey(SettingsStore& settings) {
    std::string key = keptOperatorKey(settings);
    if (key.empty()) {
        key = randomKey();
        settings.setText(setting, key);
    }
    return key;
}

}  // namespace corvane

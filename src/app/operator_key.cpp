#include "app/operator_key.h"

#include <random>
#include <string_view>

namespace corvane {

namespace {

constexpr std::size_t length = 32;
constexpr std::string_view figures = "0123456789abcdef";

}  // namespace

std::string randomKey() {
    std::random_device random;
    std::uniform_int_distribution<int> digit(0, 15);
    std::string key;
    for (std::size_t i = 0; i < length; ++i) key += figures[digit(random)];
    return key;
}

std::string keyQuery(const std::string& key) {
    const bool isKey = key.size() == length && key.find_first_not_of(figures) == std::string::npos;
    return isKey ? "?key=" + key : "";
}

}  // namespace corvane

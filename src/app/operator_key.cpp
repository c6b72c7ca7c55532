#include "app/operator_key.h"

#include <random>

namespace corvane {

std::string randomKey() {
    std::random_device random;
    std::uniform_int_distribution<int> digit(0, 15);
    std::string key;
    for (int i = 0; i < 32; ++i) key += "0123456789abcdef"[digit(random)];
    return key;
}

}  // namespace corvane

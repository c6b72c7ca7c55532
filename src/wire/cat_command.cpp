#include "wire/cat_command.h"

namespace corvane {

std::string zeroPadded(long long number, int width) {
    std::string digits = std::to_string(number < 0 ? -number : number);
    const std::size_t places = static_cast<std::size_t>(width) - (number < 0 ? 1 : 0);
    if (digits.size() < places) digits.insert(0, places - digits.size(), '0');
    if (number < 0) digits.insert(0, 1, '-');
    return digits;
}

}  // namespace corvane

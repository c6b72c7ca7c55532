#include "display/number_run.h"

#include <fmt/core.h>

#include "wire/cat_command.h"

namespace corvane {

std::string NumberRun::at(int index) const {
    const int number = first + index * step;
    if (sign) return fmt::format("{:+0{}}", number, digits + 1);
    return zeroPadded(number, number < 0 ? digits + 1 : digits);
}

std::optional<int> NumberRun::indexOf(std::string_view title) const {
    const auto number = decimal(title);
    if (!number || !has(*number)) return std::nullopt;
    const int index = (*number - first) / step;
    if (at(index) != title) return std::nullopt;  // "7" is not "007"
    return index;
}

}  // namespace corvane

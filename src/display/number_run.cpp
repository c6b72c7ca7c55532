#include "display/number_run.h"

namespace corvane {

std::string NumberRun::at(int index) const {
    const int number = first + index * step;
    std::string text = std::to_string(number < 0 ? -number : number);
    if (const auto width = static_cast<std::size_t>(digits); text.size() < width)
        text.insert(0, width - text.size(), '0');
    if (sign || number < 0) text.insert(0, 1, number < 0 ? '-' : '+');
    return text;
}

std::optional<int> NumberRun::indexOf(std::string_view title) const {
    std::string_view rest = title;
    const auto number = takeNumber(rest);
    if (!number || !has(*number)) return std::nullopt;
    const int index = (*number - first) / step;
    if (at(index) != title) return std::nullopt;  // "7" is not "007"
    return index;
}

}  // namespace corvane

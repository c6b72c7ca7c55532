// A command of the NET rigctl protocol as it was read from a line.
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace corvane {

struct RigctlCommand;

struct RigctlRequest {
    enum class Problem { none, unknown, malformed, foreign };

    const RigctlCommand* command = nullptr;  // there is one unless the problem is another than none or malformed
    Problem problem = Problem::none;
    char extended = '\0';  // '\n', ';', '|' or ',': the extended form is asked for, its lines separated by this
    std::array<std::string_view, 3> words{};  // valid until the next request is read
    std::size_t count = 0;
    std::string_view text;  // as it stood in the line: "F 14074000"

    std::span<const std::string_view> arguments() const { return std::span(words).first(count); }
};

}  // namespace corvane

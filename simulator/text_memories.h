#pragma once

#include <array>
#include <string>
#include <string_view>

namespace simulator {

enum class TextFamily { cw, rtty, psk };

// The texts that the transceiver can send from its memories: five each for CW ("KM1" to "KM5"), RTTY ("EM01" to "EM05")
// and PSK ("EM11" to "EM15"), up to 50 printable characters long.
class TextMemories {
public:
    static constexpr int perFamily = 5;
    static constexpr std::size_t textLength = 50;

    // Null for a number outside 1 to 5.
    const std::string* find(TextFamily family, int number) const;

    // Stores a text; a "}" at its end only marks the end and is not stored. Refused for a number outside 1 to 5 and
    // for a text that is too long or not printable.
    bool store(TextFamily family, int number, std::string_view text);

private:
    std::array<std::array<std::string, perFamily>, 3> texts_;
};

}  // namespace simulator

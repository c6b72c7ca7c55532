// CAT commands: ASCII text, a two-letter name, parameters of fixed width, and ";". Several may stand back to back:
// "MD02;FA014250000;". A command without parameters asks for a value, one with parameters sets it. The protocol has no
// line endings.
#pragma once

#include <string>
#include <string_view>

namespace corvane {

// Splits `text` at every ";" and calls `each` with the pieces, including the one after the last ";": "FA;FB;" gives
// "FA", "FB" and the empty text.
template <typename Each>
void forEachPiece(std::string_view text, Each each) {
    for (;;) {
        const std::size_t end = text.find(';');
        each(text.substr(0, end));
        if (end == std::string_view::npos) return;
        text.remove_prefix(end + 1);
    }
}

// Calls `each` with the commands in `text`, each with its ";", in order. Line feeds are removed, empty commands
// skipped, and a last command without ";" gets one: "FA;;FB" gives "FA;" and "FB;". The text that `each` gets is valid
// only during the call.
template <typename Each>
void forEachCommand(std::string_view text, Each each) {
    std::string command;
    forEachPiece(text, [&](std::string_view piece) {
        command.clear();
        for (const char c : piece)
            if (c != '\n') command += c;
        if (command.empty()) return;
        command += ';';
        each(std::string_view(command));
    });
}

// `number` in decimal with leading zeros: zeroPadded(7074000, 9) is "007074000". A longer number keeps all its digits;
// a minus sign counts as one of them.
std::string zeroPadded(long long number, int width);

}  // namespace corvane

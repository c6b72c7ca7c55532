#include "controls/text_messages.h"

#include <fmt/core.h>

#include "wire/utf8.h"

namespace corvane {

std::vector<std::string_view> textPieces(std::string_view text) {
    std::vector<std::string_view> pieces;
    do {
        pieces.push_back(utf8Prefix(text, textPieceLength));
        text.remove_prefix(pieces.back().size());
    } while (!text.empty());
    const bool usedUp = utf8Prefix(pieces.back(), textPieceLength - 1) != pieces.back();
    if (usedUp) pieces.push_back(text);
    return pieces;
}

std::string storeScratch(const ModeGroup& group, std::string_view text) {
    return fmt::format("{}{}{}}};", group.storeCommand, scratchMemory, text);
}

std::string storeAndReadBack(const ModeGroup& group, int memory, std::string_view text) {
    return fmt::format("{0}{1}{2};{0}{1};", group.storeCommand, memory, utf8Prefix(text, textPieceLength));
}

}  // namespace corvane

#include "controls/sendable_text.h"

#include <fmt/core.h>

#include "wire/utf8.h"

namespace corvane {

std::string refusal(std::string_view text) {
    constexpr unsigned char space = 0x20, deleted = 0x7f;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        if (c == ';') return "The transceiver cannot hold \";\".";
        if (c < space || c == deleted)
            return "The transceiver cannot hold line ends, tabs and other control characters.";
        if (c > deleted)
            return fmt::format("The transceiver cannot hold \"{}\": only unaccented letters, digits and signs.",
                               utf8Prefix(text.substr(i), 1));
    }
    return {};
}

bool acceptsText(const TextField& typed, TextField& notice) {
    const std::string reason = refusal(typed.stringValue());
    notice.setStringValue(reason);
    return reason.empty();
}

}  // namespace corvane

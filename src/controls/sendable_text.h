// Whether the transceiver can take a text as it was typed.
#pragma once

#include <string>
#include <string_view>

#include "display/text_field.h"

namespace corvane {

// Empty for a text that can be sent: printable ASCII without ";", which would end the command in the middle and make
// another one of the rest. Else why it is refused: "The transceiver cannot hold \";\"."
std::string refusal(std::string_view text);

// Whether the text in a field can be sent; `notice` says why not, or nothing.
bool acceptsText(const TextField& typed, TextField& notice);

}  // namespace corvane

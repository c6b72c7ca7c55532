// Whether the transceiver can take a text as it was typed.
#pragma once

#include <string>
#include <string_view>

#include "display/text_field.h"

namespace corvane {

// Why a text is refused: "The transceiver cannot hold \";\"." Empty for a text that can be sent: printable ASCII
// without ";", which would end the command early and make another one of the rest.
std::string refusal(std::string_view text);

// Whether the text in a field can be sent; `notice` shows why not, or is emptied.
bool acceptsText(const TextField& typed, TextField& notice);

}  // namespace corvane

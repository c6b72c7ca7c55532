// The body of a check-in: {"action":1,"key":"0123456789abcdef0123456789abcdef","net_id":"noon-net"}.
#pragma once

#include <optional>
#include <string_view>

#include "directory_store.h"

namespace corvane::directory {

// Whether this is a key as the program makes them: 32 hexadecimal digits in lower case.
bool isOperatorKey(std::string_view text);

// Nothing unless the body is a JSON object with all three members, a key of that form, a net that is a text, and the
// action 1 (to confirm) or 0 (to retract). Other members are ignored.
std::optional<CheckIn> checkInFrom(std::string_view body);

}  // namespace corvane::directory

// The body of a check-in: {"action":1,"key":"0123456789abcdef0123456789abcdef","net_id":"noon-net"}.
#pragma once

#include <optional>
#include <string_view>

#include "directory_store.h"

namespace corvane::directory {

// The form of the keys that the program makes: 32 hexadecimal figures, small letters.
bool isOperatorKey(std::string_view text);

// Nothing for what is no JSON object, lacks a member, has a key of another form, a net that is no text, or an action
// that is neither 1 (to confirm) nor 0 (to retract). Other members are passed over.
std::optional<CheckIn> checkInFrom(std::string_view body);

}  // namespace corvane::directory

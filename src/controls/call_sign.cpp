#include "controls/call_sign.h"

#include <fmt/core.h>

#include "wire/letter_case.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

constexpr std::size_t callSignLength = 12;

}  // namespace

std::string callSignCommand(std::string_view text) {
    std::string call = upperCase(trimmed(text));
    call.resize(callSignLength, ' ');
    return fmt::format("EX040101{};", call);
}

}  // namespace corvane

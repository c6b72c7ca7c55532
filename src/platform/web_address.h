// Which texts are addresses of web pages.
#pragma once

#include <cstddef>
#include <string_view>

namespace corvane {

inline constexpr std::size_t longestAddress = 2000;  // bytes

// The web address that a text consists of, without blanks around it; empty if it is none. That is "http://" or
// "https://", the name or number of a host, perhaps a port, and anything at all after a "/", "?" or "#", in at most
// `longestAddress` bytes: "https://a.example/100% sure|yes". A name before the host ("https://bank.example@x.example/")
// makes it none: it would hide where the address leads. The bytes must be well-formed UTF-8.
std::string_view webAddress(std::string_view text);

}  // namespace corvane

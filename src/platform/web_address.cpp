#include "platform/web_address.h"

#include <arpa/inet.h>
#include <unictype.h>
#include <unistr.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <string>

namespace corvane {

namespace {

std::string_view withoutBlanksAround(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t start = std::min(text.find_first_not_of(blanks), text.size());
    text.remove_prefix(start);
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

// What follows the scheme; empty for another scheme. Letters may have any case.
std::string_view afterScheme(std::string_view address) {
    for (const std::string_view scheme : {"http://", "https://"}) {
        const auto same = [](char c, char wanted) { return c == wanted || (c >= 'A' && c <= 'Z' && c + 32 == wanted); };
        if (address.size() > scheme.size() && std::ranges::equal(address.substr(0, scheme.size()), scheme, same))
            return address.substr(scheme.size());
    }
    return {};
}

// Of ASCII letters, digits, "-" within and "_"; beyond it small letters of Latin, Greek and Cyrillic, which every
// reader of addresses takes. Other names have an ASCII form, "xn--...".
bool isInLabel(ucs4_t sign) {
    constexpr ucs4_t endOfAscii = 0x80, endOfLetters = 0x500;
    if (sign < endOfAscii) return sign == '-' || sign == '_' || uc_is_alnum(sign);
    return sign < endOfLetters && uc_is_general_category_withtable(sign, UC_CATEGORY_MASK_Ll);
}

bool isLabel(std::string_view label) {
    constexpr std::size_t longest = 63;
    if (label.empty() || label.size() > longest || label.front() == '-' || label.back() == '-') return false;
    const auto* bytes = reinterpret_cast<const uint8_t*>(label.data());
    for (std::size_t at = 0; at < label.size();) {
        ucs4_t sign = 0;
        at += static_cast<std::size_t>(u8_mbtouc(&sign, bytes + at, label.size() - at));
        if (!isInLabel(sign)) return false;
    }
    return true;
}

bool isHostName(std::string_view host) {
    if (host.ends_with('.')) host.remove_suffix(1);
    for (std::size_t dot = 0; (dot = host.find('.')) != std::string_view::npos; host.remove_prefix(dot + 1))
        if (!isLabel(host.substr(0, dot))) return false;
    return isLabel(host);
}

bool isHost(std::string_view host) {
    if (!host.starts_with('[')) return isHostName(host);
    std::array<unsigned char, sizeof(in6_addr)> number{};
    return host.ends_with(']') &&
           inet_pton(AF_INET6, std::string(host.substr(1, host.size() - 2)).c_str(), &number) == 1;
}

bool isPort(std::string_view port) {
    unsigned number = 0;
    const auto [end, error] = std::from_chars(port.data(), port.data() + port.size(), number);
    return port.empty() || (error == std::errc() && end == port.data() + port.size() && number <= 65535);
}

}  // namespace

std::string_view webAddress(std::string_view text) {
    const std::string_view address = withoutBlanksAround(text);
    if (address.size() > longestAddress) return {};
    const std::string_view rest = afterScheme(address);
    const std::string_view place = rest.substr(0, rest.find_first_of("/?#"));
    const std::size_t hostEnd = place.find(':', place.starts_with('[') ? std::min(place.find(']'), place.size()) : 0);
    const std::string_view port = hostEnd == std::string_view::npos ? std::string_view() : place.substr(hostEnd + 1);
    return isHost(place.substr(0, hostEnd)) && isPort(port) ? address : std::string_view();
}

}  // namespace corvane

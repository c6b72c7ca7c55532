#include "address.h"

#include <arpa/inet.h>
#include <netinet/in.h>

#include <algorithm>
#include <cstring>

namespace corvane::directory {

namespace {

constexpr std::array<char, 12> ipv4Prefix{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, '\xff', '\xff'};

bool isPort(std::string_view text) {
    return !text.empty() && text.size() <= 5 && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

std::string_view withoutPort(std::string_view text) {
    if (text.starts_with('[')) {
        const std::size_t end = text.find(']');
        if (end == std::string_view::npos) return {};
        const std::string_view rest = text.substr(end + 1);
        return rest.empty() || (rest.front() == ':' && isPort(rest.substr(1))) ? text.substr(1, end - 1) : "";
    }
    const std::size_t colon = text.find(':');
    const bool one = colon != std::string_view::npos && text.rfind(':') == colon;
    return one && isPort(text.substr(colon + 1)) ? text.substr(0, colon) : text;
}

std::string_view trimmed(std::string_view text) {
    const std::size_t start = text.find_first_not_of(" \t");
    return start == std::string_view::npos ? "" : text.substr(start, text.find_last_not_of(" \t") + 1 - start);
}

}  // namespace

std::optional<Address> Address::from(std::string_view text) {
    const std::string plain(withoutPort(text));
    Address address;
    if (inet_pton(AF_INET6, plain.c_str(), address.bytes_.data()) == 1) return address;
    std::ranges::copy(ipv4Prefix, address.bytes_.begin());
    if (inet_pton(AF_INET, plain.c_str(), &address.bytes_[ipv4Prefix.size()]) == 1) return address;
    return {};
}

Address::Address(const sockaddr& address) {
    if (address.sa_family == AF_INET6) {
        std::memcpy(bytes_.data(), &reinterpret_cast<const sockaddr_in6&>(address).sin6_addr, bytes_.size());
        return;
    }
    std::ranges::copy(ipv4Prefix, bytes_.begin());
    std::memcpy(&bytes_[ipv4Prefix.size()], &reinterpret_cast<const sockaddr_in&>(address).sin_addr, 4);
}

bool Address::isIpv4() const { return bytes().starts_with(std::string_view(ipv4Prefix.data(), ipv4Prefix.size())); }

std::string Address::text() const {
    std::array<char, INET6_ADDRSTRLEN> text{};
    if (isIpv4())
        inet_ntop(AF_INET, &bytes_[ipv4Prefix.size()], text.data(), text.size());
    else
        inet_ntop(AF_INET6, bytes_.data(), text.data(), text.size());
    return text.data();
}

Address Address::network() const {
    Address network = *this;
    if (!isIpv4()) std::fill(network.bytes_.begin() + 8, network.bytes_.end(), '\0');
    return network;
}

Address clientOf(const Address& peer, std::span<const std::string> forwardedFor, std::span<const Address> proxies) {
    const auto isTrusted = [&](const Address& address) { return std::ranges::find(proxies, address) != proxies.end(); };
    Address client = peer;
    for (std::size_t line = forwardedFor.size(); line-- > 0;) {
        std::string_view rest = forwardedFor[line];
        for (bool more = true; more;) {
            if (!isTrusted(client)) return client;
            const std::size_t comma = rest.rfind(',');
            more = comma != std::string_view::npos;
            const auto named = Address::from(trimmed(more ? rest.substr(comma + 1) : rest));
            if (!named) return client;
            client = *named;
            rest = rest.substr(0, more ? comma : 0);
        }
    }
    return client;
}

}  // namespace corvane::directory

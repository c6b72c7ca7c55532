// The network address of a client.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

struct sockaddr;

namespace corvane::directory {

// An IPv4 or IPv6 address. An IPv4 address in IPv6 form, "::ffff:192.0.2.1", is the IPv4 address.
class Address {
public:
    // "192.0.2.1", "2001:db8::1", also with a port: "192.0.2.1:8073", "[2001:db8::1]:8073". Nothing from other texts.
    static std::optional<Address> from(std::string_view text);
    explicit Address(const sockaddr& address);

    std::string text() const;
    // What one household has: an IPv4 address, or all IPv6 addresses with the same first 64 bits.
    Address network() const;
    std::string_view bytes() const { return {bytes_.data(), bytes_.size()}; }
    bool operator==(const Address&) const = default;

private:
    Address() = default;
    bool isIpv4() const;

    std::array<char, 16> bytes_{};  // an IPv4 address in its IPv6 form
};

// The client behind the proxies that are trusted. Each proxy appends the address that it was asked from to
// X-Forwarded-For: of all lines of that header, the last address that is not itself a trusted proxy's. `peer` when that
// is no trusted proxy, or has named no address.
Address clientOf(const Address& peer, std::span<const std::string> forwardedFor, std::span<const Address> proxies);

}  // namespace corvane::directory

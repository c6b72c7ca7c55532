// How often one address may ask.
#pragma once

#include <chrono>
#include <mutex>
#include <unordered_map>

#include "address.h"

namespace corvane::directory {

// Each network of an address has a stock of one minute's requests, which refills evenly over a minute. Remembers
// 100,000 stocks at most, in about 8 MB.
class RateLimit {
public:
    using Time = std::chrono::steady_clock::time_point;

    // 0 requests a minute: no limit.
    explicit RateLimit(int requestsAMinute) : perMinute_(requestsAMinute) {}

    // From any thread. Takes one request out of the stock; false if it is empty.
    bool allows(const Address& address, Time now);

private:
    struct Stock {
        double requests;
        Time filled;
    };
    struct Hash {
        std::size_t operator()(const Address& address) const { return std::hash<std::string_view>()(address.bytes()); }
    };
    double filled(const Stock& stock, Time now) const;
    void forgetFullStocks(Time now);

    const int perMinute_;
    std::mutex mutex_;
    std::unordered_map<Address, Stock, Hash> stocks_;
};

}  // namespace corvane::directory

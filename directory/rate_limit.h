// How often one address may ask.
#pragma once

#include <chrono>
#include <mutex>
#include <string>
#include <string_view>
#include <unordered_map>

namespace corvane::directory {

// Each address has a stock of one minute's requests, which refills evenly over a minute. All IPv6 addresses with the
// same first 64 bits share a stock, because one household has at least that many.
class RateLimit {
public:
    using Time = std::chrono::steady_clock::time_point;

    // 0 requests a minute: no limit.
    explicit RateLimit(int requestsAMinute) : perMinute_(requestsAMinute) {}

    // From any thread. Takes one request out of the stock; false if it is empty.
    bool allows(std::string_view address, Time now);

private:
    struct Stock {
        double requests;
        Time filled;
    };
    double filled(const Stock& stock, Time now) const;
    void forgetFullStocks(Time now);

    const int perMinute_;
    std::mutex mutex_;
    std::unordered_map<std::string, Stock> stocks_;
};

}  // namespace corvane::directory

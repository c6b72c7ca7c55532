#include "rate_limit.h"

#include <algorithm>

namespace corvane::directory {

namespace {

constexpr std::size_t mostAddresses = 100'000;

}  // namespace

double RateLimit::filled(const Stock& stock, Time now) const {
    const std::chrono::duration<double, std::ratio<60>> minutes = now - stock.filled;
    return std::min<double>(perMinute_, stock.requests + minutes.count() * perMinute_);
}

bool RateLimit::allows(const Address& address, Time now) {
    if (perMinute_ == 0) return true;
    const std::lock_guard lock(mutex_);
    if (stocks_.size() >= mostAddresses) forgetFullStocks(now);
    Stock& stock = stocks_.try_emplace(address.network(), Stock{double(perMinute_), now}).first->second;
    stock = {filled(stock, now), now};
    if (stock.requests < 1) return false;
    stock.requests -= 1;
    return true;
}

// A full stock needs no entry. If too many are not full at once, all start again full, to bound the memory.
void RateLimit::forgetFullStocks(Time now) {
    std::erase_if(stocks_, [&](const auto& entry) { return filled(entry.second, now) >= perMinute_; });
    if (stocks_.size() >= mostAddresses) stocks_.clear();
}

}  // namespace corvane::directory

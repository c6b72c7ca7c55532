#include "share/port_exchanges.h"

#include <algorithm>

namespace corvane {

std::optional<PortExchange> PortExchanges::take(std::string_view response) {
    if (response == "?") {
        if (open_.empty()) return std::nullopt;
        PortExchange oldest = open_.front();
        if (oldest.reads) open_.pop_front();  // a setting still has its fence to come
        return oldest;
    }
    const auto found = std::ranges::find_if(open_, [response](const PortExchange& exchange) {
        return response.size() > exchange.end.size() && response.starts_with(exchange.end);
    });
    if (found == open_.end()) return std::nullopt;
    PortExchange ended = *found;
    open_.erase(found);
    return ended;
}

bool PortExchanges::reading() const { return std::ranges::any_of(open_, &PortExchange::reads); }

void PortExchanges::expire(ShareTime now) {
    std::erase_if(open_, [now](const PortExchange& exchange) { return now - exchange.sent >= patience; });
}

}  // namespace corvane

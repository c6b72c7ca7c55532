// Any body of a check-in. What is taken from it can be written and read again.
#include <nlohmann/json.hpp>

#include "directory/check_in_request.h"
#include "fuzz/fuzz_target.h"

namespace corvane {

void fuzz(std::string_view input) {
    const auto checkIn = directory::checkInFrom(input);
    if (!checkIn) return;
    INVARIANT(directory::isOperatorKey(checkIn->operatorKey));
    const auto again = directory::checkInFrom(nlohmann::json{
        {"key", checkIn->operatorKey},
        {"net_id", checkIn->net},
        {"action", checkIn->confirms ? 1 : 0}}.dump());
    INVARIANT(again && again->net == checkIn->net && again->confirms == checkIn->confirms);
}

}  // namespace corvane

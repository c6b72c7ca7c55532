#include "feeds/check_in.h"

#include <nlohmann/json.hpp>
#include <utility>

namespace corvane {

CheckIn::Next CheckIn::take(Event event) {
    const bool confirm = kind_ == Kind::confirm;
    switch (event) {
        case Event::begun:
            return confirm ? Next::announce : Next::holdList;
        case Event::timePassed:
            if (confirm) return Next::fetchList;
            [[fallthrough]];
        case Event::answered:
            return confirm || std::exchange(released_, true) ? Next::nothing : Next::releaseList;
        case Event::listShown:
            return confirm ? Next::nothing : Next::announce;
    }
    return Next::nothing;
}

std::string CheckIn::body(const std::string& operatorKey) const {
    const int action = kind_ == Kind::confirm ? 1 : 0;
    return nlohmann::json{{"key", operatorKey}, {"net_id", net_}, {"action", action}}.dump();
}

std::string CheckIn::announcement() const {
    if (kind_ == Kind::retract) return "your confirmation of this net has been retracted";
    return "thank you for confirming " + name_;
}

}  // namespace corvane

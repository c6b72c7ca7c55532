// One check-in to a net, as a value: what happens, and what is to be done next.
#pragma once

#include <string>

namespace corvane {

class CheckIn {
public:
    enum class Kind { confirm, retract };
    enum class Event {
        begun,
        answered,    // by the directory
        timePassed,  // that the directory is given to note it
        listShown,   // the nets, fetched anew
    };
    enum class Next { nothing, announce, fetchList };

    CheckIn(Kind kind, std::string net, std::string name) : kind_(kind), net_(std::move(net)), name_(std::move(name)) {}

    // A confirmation is announced at once, and the list fetched when the directory has had its time. A retraction is
    // announced once the list shows it, which is fetched as soon as the directory answers, or has had its time.
    Next take(Event event);

    // For the directory: {"action":1,"key":"0123456789abcdef0123456789abcdef","net_id":"7"}.
    std::string body(const std::string& operatorKey) const;
    std::string announcement() const;  // "thank you for confirming Noon Net"

private:
    Kind kind_;
    std::string net_;   // its number in the directory
    std::string name_;  // as the list has it
    bool fetched_ = false;
};

}  // namespace corvane

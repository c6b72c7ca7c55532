// One check-in to a net, as a value: it takes what happens and says what to do next.
#pragma once

#include <string>

namespace corvane {

class CheckIn {
public:
    enum class Kind { confirm, retract };
    enum class Event {
        begun,
        answered,    // by the directory
        timePassed,  // the directory has had time to store it
        listShown,   // the list of nets was fetched again
    };
    enum class Next { nothing, announce, fetchList };

    CheckIn(Kind kind, std::string net, std::string name) : kind_(kind), net_(std::move(net)), name_(std::move(name)) {}

    // A confirmation is announced at once, and the list is fetched when the directory has had its time. For a
    // retraction the list is fetched as soon as the directory answers or has had its time; once the list is shown, the
    // retraction is announced.
    Next take(Event event);

    // The request to the directory: {"action":1,"key":"0123456789abcdef0123456789abcdef","net_id":"7"}.
    std::string body(const std::string& operatorKey) const;
    std::string announcement() const;  // "thank you for confirming Noon Net"

private:
    Kind kind_;
    std::string net_;   // its number in the directory
    std::string name_;  // as the list has it
    bool fetched_ = false;
};

}  // namespace corvane

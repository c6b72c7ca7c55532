// One check-in to a net, as a value: it takes what happens and says what to do next.
#pragma once

#include <string>
#include <utility>

#include "platform/scheduler.h"

namespace corvane {

class CheckIn {
public:
    enum class Kind { confirm, retract };
    enum class Event {
        begun,
        answered,    // by the directory
        timePassed,  // `recordingTime`: the directory has had time to store it
        listShown,   // the list of nets was fetched again
    };
    enum class Next {
        nothing,
        announce,
        fetchList,    // empty the list and ask for it
        holdList,     // empty the list; the request for it waits
        releaseList,  // for this
    };

    CheckIn(Kind kind, std::string net, std::string name) : kind_(kind), net_(std::move(net)), name_(std::move(name)) {}

    // A confirmation is announced at once, and the list is fetched when the directory has had its time. A retraction
    // empties the list at once and asks for it as soon as the directory has answered or had its time; once the list is
    // shown, the retraction is announced.
    Next take(Event event);

    Kind kind() const { return kind_; }
    // 2.0 s for a confirmation. Less for a retraction: within 2.0 s its list must be asked for and shown.
    Scheduler::Duration recordingTime() const { return Scheduler::Duration(kind_ == Kind::confirm ? 2000 : 1000); }

    // The request to the directory: {"action":1,"key":"0123456789abcdef0123456789abcdef","net_id":"7"}.
    std::string body(const std::string& operatorKey) const;
    std::string announcement() const;  // "thank you for confirming Noon Net"

private:
    Kind kind_;
    std::string net_;   // its number in the directory
    std::string name_;  // as the list has it
    bool released_ = false;
};

}  // namespace corvane

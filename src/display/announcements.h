// What the program tells an operator who does not look at the window: "20 meters", "Read: 12 programmed, 87 empty". The
// window hands it to the screen reader. What the voice guide speaks is never said here as well.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "display/control.h"

namespace corvane {

class Announcements : public Control {
public:
    Announcements() : Control({"announcements", 0, "", "Announcements"}) {}

    // An empty text says nothing.
    void say(std::string_view text) {
        if (text.empty()) return;
        texts_.emplace_back(text);
        markChanged();
    }
    // The operator has tuned: the frequency and mode are to be said once the transceiver has reported them.
    void sayTuning() {
        tuning_ = true;
        markChanged();
    }

    // For the window: hands over what there is to say.
    std::vector<std::string> take() { return std::exchange(texts_, {}); }
    bool takeTuning() { return std::exchange(tuning_, false); }

private:
    std::vector<std::string> texts_;
    bool tuning_ = false;
};

}  // namespace corvane

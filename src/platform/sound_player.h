// Sounds: the program's own, and the named alerts.
#pragma once

#include <string_view>

namespace corvane {

// Both return at once; a name without a file, and a system without sound, play nothing and report nothing.
class SoundPlayer {
public:
    virtual ~SoundPlayer() = default;

    virtual void playFile(std::string_view name) = 0;   // "Seatbelts" plays Sounds/Seatbelts.aiff
    virtual void playAlert(std::string_view name) = 0;  // "Tink", "Basso", "Frog", "Bottle" or "Glass"
};

}  // namespace corvane

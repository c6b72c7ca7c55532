// What the front-panel keys do: a kind for each way a key works, with what differs from key to key.
#pragma once

#include <string_view>
#include <variant>

#include "display/button.h"
#include "display/feed.h"

namespace corvane {

struct BandKey {
    std::string_view command;       // e.g. "BS05;"
    std::string_view announcement;  // what the voice guide says

    // No default constructor: BandKey is the variant's first type, so a row without an action would be an empty one.
    constexpr BandKey(std::string_view sent, std::string_view spoken) : command(sent), announcement(spoken) {}
};

struct MediumWaveKey {  // a band key whose command names the active VFO
    std::string_view announcement;
};

struct ModeKey {
    char code;  // of the "MD" command
};

// Pressed in its off tag it sends the one command and takes the on tag, pressed in its on tag the other.
struct ToggleKey {
    std::string_view onCommand;
    std::string_view offCommand;
    Color onColor = Color::blue;
    std::string_view onTitle = {};  // empty: the title stays
    std::string_view offTitle = {};
};

struct MuteKey {};  // switches a picture and a flag besides, and sends the volume as it was

struct CommandKey {  // always sends the same
    std::string_view command;
    std::string_view announcement = {};
};

struct FirstScopeColorKey {  // takes its second tag with the first press, and means the same in both
    std::string_view command;
};

struct StepKey {
    std::string_view direction;  // "up" or "down"
    int step;                    // hertz
};

struct SwapKey {
    std::string_view command;
};

struct PowerOnKey {};
struct PowerOffKey {};

struct VfoKey {
    char vfo;  // 'A' or 'B'
};

struct MemoryKey {};
struct MemoryBKey {};

struct TextMemoryKey {
    int memory;  // 1 to 5
};

struct ClearLogKey {};
struct ProductPageKey {};

struct RefreshKey {
    Feed feed;
};

struct ClearAutoMemoriesKey {};

struct ReadMenuKey {
    int page;  // of the group, on the settings page
};

using KeyAction = std::variant<BandKey, MediumWaveKey, ModeKey, ToggleKey, MuteKey, CommandKey, FirstScopeColorKey,
                               StepKey, SwapKey, PowerOnKey, PowerOffKey, VfoKey, MemoryKey, MemoryBKey, TextMemoryKey,
                               ClearLogKey, ProductPageKey, RefreshKey, ClearAutoMemoriesKey, ReadMenuKey>;

// Whether the key's colour is a state that the operator reads.
constexpr bool lights(const KeyAction& action) {
    return std::holds_alternative<BandKey>(action) || std::holds_alternative<MediumWaveKey>(action) ||
           std::holds_alternative<ModeKey>(action) || std::holds_alternative<ToggleKey>(action) ||
           std::holds_alternative<MuteKey>(action);
}

// Whether the key takes another tag, onTagOffset more than its first, and is known by both.
constexpr bool hasTwoTags(const KeyAction& action) {
    return std::holds_alternative<ToggleKey>(action) || std::holds_alternative<MuteKey>(action) ||
           std::holds_alternative<FirstScopeColorKey>(action);
}

}  // namespace corvane

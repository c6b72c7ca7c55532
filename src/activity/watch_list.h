// The calls and references that the operator looks for.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvane {

class WatchList {
public:
    static constexpr std::size_t most = 200;    // entries
    static constexpr std::size_t longest = 20;  // characters of an entry
    static constexpr std::size_t fewest = 2;    // characters, of which the "*" is none

    // Entries with blanks or commas between, as text() gives them; what is no entry is left out.
    static WatchList from(std::string_view text);

    // An entry is a call, "K1ABC", or a reference, "US-1234" or "G/LD-001", perhaps with a "*" at its end: "W7W/*".
    // Case does not matter. Returns why it was not taken, for the operator; an empty text: it was, or is there already.
    std::string add(std::string_view entry);
    void remove(std::size_t index);

    const std::vector<std::string>& entries() const { return entries_; }
    std::string text() const;

    // Whether an entry is this call, or a part of it between slashes, or this reference: "K1ABC" fits "EA8/K1ABC/P".
    bool watches(std::string_view call, std::string_view reference) const;

private:
    std::vector<std::string> entries_;  // in upper case, sorted
};

}  // namespace corvane

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace simulator {

// Puts commands together from bytes that arrive in pieces: "FA0142" and "50000;MD" give "FA014250000" and leave "MD"
// waiting. At most 256 bytes of a command are kept, so that noise without a ";" does not fill the memory.
class CommandAssembler {
public:
    static constexpr std::size_t longestCommand = 256;

    // The commands completed by these bytes, without ";".
    std::vector<std::string> take(std::string_view bytes);

    void clear() { unfinished_.clear(); }

private:
    std::string unfinished_;
};

}  // namespace simulator

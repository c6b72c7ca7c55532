#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace simulator {

// Puts commands together from bytes that arrive in pieces: "FA0142" and "50000;MD" give "FA014250000" and leave "MD"
// waiting. A command longer than any the transceiver knows is cut to 256 bytes, so that noise without a ";" takes no
// more memory than that.
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

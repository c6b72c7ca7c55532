// The options of the program's command line.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace corvane {

// What the program prints instead of opening its window.
struct Printout {
    std::string text;
    int status = 0;  // of the process: 0, or 2 for options that it does not know

    bool operator==(const Printout&) const = default;
};

// Nothing for a usual start. {"--version"} gives "Corvane 0.1.0\n", {"--wrong"} an error of one line. "--list-ports"
// gives a line for each serial port: "ttyUSB0  USB serial adapter, /dev/ttyUSB0". Needs no display.
std::optional<Printout> printoutFor(const std::vector<std::string>& arguments);

}  // namespace corvane

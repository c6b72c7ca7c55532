// What the program and its surroundings are called, for a report.
#pragma once

#include <string>

namespace corvane {

struct ProgramFacts {
    std::string program;  // "Corvane 1.2.0"
    std::string toolkit;  // "Qt 6.4.2"
    std::string system;   // "Debian GNU/Linux 12 (bookworm), Linux 6.1.0-18-amd64, x86_64"
    std::string home;     // the user's folder, which a report never names
};

}  // namespace corvane

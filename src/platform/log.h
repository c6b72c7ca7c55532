// Diagnostic lines, for developers.
#pragma once

#include <string_view>

namespace corvane {

class Log {
public:
    virtual ~Log() = default;
    virtual void line(std::string_view text) = 0;  // one line without its line feed
};

}  // namespace corvane

// The desktop's clipboard.
#pragma once

#include <string_view>

namespace corvane {

class Clipboard {
public:
    virtual ~Clipboard() = default;
    virtual void setText(std::string_view text) = 0;  // UTF-8
};

}  // namespace corvane

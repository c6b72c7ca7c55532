// Diagnostic lines on the standard output.
#pragma once

#include "platform/log.h"

namespace corvane {

// Every line is flushed when `line` returns, so that the last lines before a crash can be read.
class StandardLog final : public Log {
public:
    void line(std::string_view text) override;
};

}  // namespace corvane

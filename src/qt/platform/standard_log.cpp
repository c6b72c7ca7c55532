#include "qt/platform/standard_log.h"

#include <cstdio>
#include <string>

namespace corvane {

void StandardLog::line(std::string_view text) {
    const std::string whole = std::string(text) + '\n';
    std::fwrite(whole.data(), 1, whole.size(), stdout);
    std::fflush(stdout);
}

}  // namespace corvane

// Reads requests from the bytes of one program: one command a line or several in it, "F 14074000\n" or "fmv\n".
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "share/rigctl_request.h"

namespace corvane {

class RigctlReader {
public:
    static constexpr std::size_t longestLine = 1024;  // bytes; a longer line is one malformed request; see `foreign`

    // Takes bytes, cut anywhere. What has not been read yet is kept.
    void feed(std::string_view bytes);
    // The next request of the whole lines so far. After one that is malformed or unknown the rest of its line is
    // skipped: what follows a command that is not understood may be its argument.
    std::optional<RigctlRequest> next();
    // Skips the rest of the line: what follows an argument that is wrong may belong to it.
    void skipLine() { line_ = {}; }
    std::size_t held() const { return bytes_.size() - read_; }

private:
    bool takeLine();
    RigctlRequest readCommand();
    void readArguments(RigctlRequest& request);
    std::string_view takeWord();
    void skipBlanks();
    RigctlRequest problem(RigctlRequest::Problem kind, std::string_view text);

    // A page in a web browser can send bytes of its choice to any port, but only behind a first line of the browser's:
    // "POST /some/path HTTP/1.1". Whoever begins so, or with a line that is too long to tell, is foreign.
    enum class Opening { unread, program, foreign };

    Opening opening_ = Opening::unread;
    std::string bytes_;
    std::size_t read_ = 0;   // of bytes_
    std::string current_;    // the line that is being read
    std::string_view line_;  // what is left of it
    bool skipping_ = false;  // the rest of a line that is too long
    bool tooLong_ = false;
};

}  // namespace corvane

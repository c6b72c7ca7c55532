#include "share/rigctl_reader.h"

#include <algorithm>
#include <array>
#include <utility>

#include "share/rigctl_commands.h"

namespace corvane {

namespace {

// Programs end lines with "\r\n", too, and some send the zero that ends a text.
constexpr bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\0'; }
constexpr bool asksForExtended(char c) { return c == '+' || c == ';' || c == '|' || c == ','; }

// What browsers begin a request with. None of them is a command with its argument.
constexpr std::array browserWords{
    std::string_view("GET "),    std::string_view("POST "),    std::string_view("PUT "),   std::string_view("HEAD "),
    std::string_view("DELETE "), std::string_view("OPTIONS "), std::string_view("PATCH "), std::string_view("CONNECT "),
    std::string_view("TRACE "),  std::string_view("\x16\x03")};  // the last one begins an encrypted connection

bool isBrowsers(std::string_view line) {
    return std::ranges::any_of(browserWords, [&](std::string_view word) { return line.starts_with(word); });
}

}  // namespace

void RigctlReader::feed(std::string_view bytes) {
    bytes_.erase(0, std::exchange(read_, 0));
    bytes_ += bytes;
}

bool RigctlReader::takeLine() {
    while (line_.empty()) {
        const std::string_view rest = std::string_view(bytes_).substr(read_);
        const std::size_t end = rest.find('\n');
        if (end == std::string_view::npos) {
            if (rest.size() <= longestLine) return false;
            if (opening_ == Opening::unread) opening_ = Opening::foreign;
            tooLong_ = !std::exchange(skipping_, true);
            read_ = bytes_.size();
            return tooLong_;
        }
        if (opening_ == Opening::unread)
            opening_ = end > longestLine || isBrowsers(rest) ? Opening::foreign : Opening::program;
        read_ += end + 1;
        if (std::exchange(skipping_, false)) continue;
        if (end > longestLine) return tooLong_ = true;
        current_ = rest.substr(0, end);
        line_ = current_;
    }
    return true;
}

std::optional<RigctlRequest> RigctlReader::next() {
    using Problem = RigctlRequest::Problem;
    for (;;) {
        const bool newLine = line_.empty();
        if (!takeLine()) return std::nullopt;
        if (opening_ == Opening::foreign) return problem(Problem::foreign, "a page in a web browser");
        if (std::exchange(tooLong_, false)) return problem(Problem::malformed, "a line that is too long");
        if (newLine && line_.find(" HTTP/1.") != std::string_view::npos) return problem(Problem::foreign, line_);
        skipBlanks();
        if (line_.empty()) continue;
        if (line_[0] == '#') {
            line_ = {};
            continue;
        }
        if (asksForExtended(line_[0]) && std::ranges::all_of(line_.substr(1), isBlank)) {
            line_ = {};
            continue;
        }
        return readCommand();
    }
}

RigctlRequest RigctlReader::readCommand() {
    using Problem = RigctlRequest::Problem;
    const std::string_view whole = line_;
    RigctlRequest request;
    while (!line_.empty() && (asksForExtended(line_[0]) || isBlank(line_[0]))) {
        if (!isBlank(line_[0])) request.extended = line_[0] == '+' ? '\n' : line_[0];
        line_.remove_prefix(1);
    }
    if (line_.empty()) return problem(Problem::unknown, whole);
    const std::string_view start = line_;
    if (line_[0] == '\\') {
        line_.remove_prefix(1);
        request.command = rigctlCommand(takeWord());
    } else {
        request.command = rigctlCommand(line_[0]);
        line_.remove_prefix(1);
        // "F14080000" is not read as "F" and "14080000" by every program.
        if (request.command && request.command->arguments > 0 && !line_.empty() && !isBlank(line_[0]))
            request.problem = Problem::malformed;
    }
    if (!request.command) return problem(Problem::unknown, whole);
    if (request.problem == Problem::none) readArguments(request);
    if (request.problem != Problem::none) line_ = {};
    request.text =
        start.substr(0, static_cast<std::size_t>(line_.empty() ? start.size() : line_.data() - start.data()));
    while (!request.text.empty() && isBlank(request.text.back())) request.text.remove_suffix(1);
    return request;
}

void RigctlReader::readArguments(RigctlRequest& request) {
    const RigctlCommand& command = *request.command;
    skipBlanks();
    if (command.takesText) {
        while (!line_.empty() && isBlank(line_.back())) line_.remove_suffix(1);
        request.words[0] = line_;
        request.count = line_.empty() ? 0 : 1;
        line_ = {};
    } else {
        while (request.count < command.arguments) {
            const std::string_view word = takeWord();
            if (word.empty()) break;
            request.words[request.count++] = word;
            if (word == "?") return;  // asks what there is
            skipBlanks();
        }
    }
    if (request.count < command.arguments) request.problem = RigctlRequest::Problem::malformed;
}

std::string_view RigctlReader::takeWord() {
    const auto end = std::ranges::find_if(line_, isBlank);
    const std::string_view word = line_.substr(0, static_cast<std::size_t>(end - line_.begin()));
    line_.remove_prefix(word.size());
    return word;
}

void RigctlReader::skipBlanks() {
    while (!line_.empty() && isBlank(line_[0])) line_.remove_prefix(1);
}

RigctlRequest RigctlReader::problem(RigctlRequest::Problem kind, std::string_view text) {
    line_ = {};
    RigctlRequest request;
    request.problem = kind;
    request.text = text;
    return request;
}

}  // namespace corvane

#include "share/port_reader.h"

#include <algorithm>
#include <utility>

namespace corvane {

namespace {

constexpr std::string_view lineEnds("\r\n\0", 3);

}  // namespace

void PortReader::feed(std::string_view bytes) {
    bytes_.erase(0, std::exchange(read_, 0));
    bytes_ += bytes;
}

std::optional<std::string> PortReader::next() {
    for (;;) {
        std::string_view rest = std::string_view(bytes_).substr(read_);
        if (!skipping_) rest.remove_prefix(std::min(rest.find_first_not_of(lineEnds), rest.size()));
        read_ = bytes_.size() - rest.size();
        const std::size_t end = rest.find(';');
        const bool whole = end != std::string_view::npos;
        if (!whole && !skipping_ && rest.size() <= longestCommand) return std::nullopt;
        read_ = whole ? read_ + end + 1 : bytes_.size();
        const bool known = std::exchange(skipping_, !whole);  // that it is too long
        if (known) {
            if (!whole) return std::nullopt;
        } else {
            return !whole || end > longestCommand ? "?" : std::string(rest.substr(0, end));
        }
    }
}

bool PortReader::takeOut(std::string_view kind, std::string_view command) {
    if (skipping_) return false;
    for (std::size_t at = read_;;) {
        at = std::min(bytes_.find_first_not_of(lineEnds, at), bytes_.size());
        const std::size_t end = bytes_.find(';', at);
        if (end == std::string::npos) return false;
        const std::string_view text = std::string_view(bytes_).substr(at, end - at);
        if (text == command) {
            bytes_.erase(at, end + 1 - at);
            return true;
        }
        if (text.starts_with(kind)) return false;
        at = end + 1;
    }
}

}  // namespace corvane

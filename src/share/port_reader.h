// Reads commands from the bytes of a program at the virtual port: "FA;MD02;" is "FA" and "MD02".
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace corvane {

class PortReader {
public:
    static constexpr std::size_t longestCommand = 64;  // bytes before the ";"; what is longer is one command, "?"

    // Takes bytes, cut anywhere. What has not been read yet is kept.
    void feed(std::string_view bytes);
    // The next whole command without its ";". Line ends between commands do not count.
    std::optional<std::string> next();
    // Takes out `command` ahead of others, if it is the first of the whole commands that begin as `kind` does:
    // takeOut("TX", "TX0"). Whether it was there.
    bool takeOut(std::string_view kind, std::string_view command);
    void clear() { *this = {}; }
    std::size_t held() const { return bytes_.size() - read_; }

private:
    std::string bytes_;
    std::size_t read_ = 0;   // of bytes_
    bool skipping_ = false;  // the rest of a command that is too long
};

}  // namespace corvane

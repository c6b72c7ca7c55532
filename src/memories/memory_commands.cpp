#include "memories/memory_commands.h"

#include <fmt/core.h>

#include "wire/wire_text.h"

namespace corvane {

namespace {

constexpr std::size_t frequencyDigits = 9;
constexpr std::string_view noClarifier = "+000000";
constexpr std::string_view plainFlags = "10000";
constexpr std::string_view erase = "000000000+0000001000001-- ERASE -- ;";

int channelOf(std::string_view reply) {
    const int channel = decimalOrZero(positions(reply, 3, 3));
    return channel >= 1 && channel <= memoryChannels && isAscii(reply) ? channel : 0;
}

}  // namespace

std::string memoryRequest(std::string_view name, int channel) { return fmt::format("{}{:03};", name, channel); }

MemoryReply memoryReply(std::string_view reply) {
    return {channelOf(reply), lastOf(reply.substr(0, 14), frequencyDigits), lastOf(reply, 6).substr(0, 1),
            positions(reply, 15, reply.size())};
}

MemoryChannel rowOf(const MemoryReply& reply) { return {std::string(reply.frequency), std::string(reply.mode), ""}; }

TagReply tagReply(std::string_view reply) { return {channelOf(reply), lastOf(reply, tagLength)}; }

std::string memoryPopUpTitle(int row, const MemoryChannel& channel) {
    return fmt::format("M-{:02} {}", row + 1, channel.tag);
}

bool isProgrammed(const MemoryChannel& row) { return row.frequency.size() == frequencyDigits; }

std::string memoryWriteCommand(int row, const MemoryChannel& channel) {
    if (!isProgrammed(channel)) return fmt::format("MW{:03}{}", row + 1, erase);
    return fmt::format("MW{:03}{}{}{}{};", row + 1, channel.frequency, noClarifier, channel.mode, plainFlags);
}

std::optional<std::string> tagWriteCommand(int row, const MemoryChannel& channel) {
    if (!isProgrammed(channel)) return std::nullopt;
    std::string tag = channel.tag;
    tag.resize(tagLength, ' ');
    return fmt::format("MT{:03}1{};", row + 1, tag);
}

}  // namespace corvane

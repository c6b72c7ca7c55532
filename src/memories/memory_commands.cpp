#include "memories/memory_commands.h"

#include "wire/cat_command.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

constexpr std::size_t frequencyDigits = 9;
constexpr std::string_view noClarifier = "+000000";
constexpr std::string_view plainFlags = "10000";
constexpr std::string_view erase = "000000000+0000001000001-- ERASE -- ;";

int channelOf(std::string_view reply) {
    const int channel = decimalOrZero(positions(reply, 3, 3));
    return channel >= 1 && channel <= memoryChannels ? channel : 0;
}

std::string channelText(int row) { return zeroPadded(row + 1, 3); }

}  // namespace

std::string memoryRequest(std::string_view name, int channel) {
    return std::string(name).append(zeroPadded(channel, 3)).append(";");
}

MemoryReply memoryReply(std::string_view reply) {
    return {channelOf(reply), lastOf(reply.substr(0, 14), frequencyDigits), lastOf(reply, 6).substr(0, 1),
            positions(reply, 15, reply.size())};
}

TagReply tagReply(std::string_view reply) { return {channelOf(reply), lastOf(reply, tagLength)}; }

bool isProgrammed(const MemoryChannel& row) { return row.frequency.size() == frequencyDigits; }

std::string memoryWriteCommand(int row, const MemoryChannel& channel) {
    std::string command = "MW" + channelText(row);
    if (!isProgrammed(channel)) return command.append(erase);
    return command.append(channel.frequency).append(noClarifier).append(channel.mode).append(plainFlags).append(";");
}

std::optional<std::string> tagWriteCommand(int row, const MemoryChannel& channel) {
    if (!isProgrammed(channel)) return std::nullopt;
    std::string tag = channel.tag;
    tag.resize(tagLength, ' ');
    return "MT" + channelText(row) + '1' + tag + ';';
}

}  // namespace corvane

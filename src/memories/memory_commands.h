// The memory channels on the wire: requests, replies and writes.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "memories/memory_channel.h"

namespace corvane {

// "MR" asks for frequency and mode of a channel, "MT" for its tag: memoryRequest("MR", 7) is "MR007;".
std::string memoryRequest(std::string_view name, int channel);

// A reply without its ";": "MR001014250000+000000210000". The fields of a short reply are taken from the characters
// that it has. The channel is 0 if it is not from 1 to 99, or if a byte is not ASCII: line noise can be valid UTF-8.
struct MemoryReply {
    int channel = 0;
    std::string_view frequency;  // nine digits of hertz in a whole reply
    std::string_view mode;       // mode code, one character
    std::string_view rest;       // what follows the frequency, e.g. "+000000210000"
};
MemoryReply memoryReply(std::string_view reply);
MemoryChannel rowOf(const MemoryReply& reply);  // as a row of the table, its tag still empty

// "MT0011CALLING     ": the channel as above, and the tag, twelve characters in a whole reply.
struct TagReply {
    int channel = 0;
    std::string_view tag;
};
TagReply tagReply(std::string_view reply);

// The entry of the memory pop-up for row i: "M-05 20M FT8"; an empty channel shows "M-05" and two blanks.
std::string memoryPopUpTitle(int row, const MemoryChannel& channel);

// A row whose frequency has nine characters holds a channel; any other is empty.
bool isProgrammed(const MemoryChannel& row);

// The commands that write a row, counted from 0. A programmed row gives two: "MW005007074000+000000210000;" for
// frequency and mode, "MT0051FT8         ;" for the tag. An empty row gives only the command that erases its channel.
std::string memoryWriteCommand(int row, const MemoryChannel& channel);
std::optional<std::string> tagWriteCommand(int row, const MemoryChannel& channel);

}  // namespace corvane

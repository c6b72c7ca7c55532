// The memory channels in the file format of memory programming tools, and what such a file would change:
//   Location,Name,Frequency,Duplex,Offset,Tone,rToneFreq,cToneFreq,DtcsCode,DtcsPolarity,RxDtcsCode,CrossMode,Mode,...
//   5,20M FT8,14.074000,,0.000000,,88.5,88.5,023,NN,023,Tone->Tone,DIG,5.00,,50W,,,,,
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "memories/memory_channel.h"

namespace corvane {

// One line for each programmed channel, in the order of the channels; empty channels are left out. A mode that the
// tools do not know is written as the nearest one, with the transceiver's own name as the comment.
std::string memoryCsv(const MemoryTable& channels);

struct ImportedChannel {
    int line = 0;           // of the file, counted from 1
    int row = 0;            // of the table, counted from 0
    MemoryChannel channel;  // frequency in nine digits, a mode code, a tag of ASCII characters
    std::string note;       // what of the line was changed or left out; empty: nothing

    bool operator==(const ImportedChannel&) const = default;
};

struct RefusedLine {
    int line = 0;
    std::string reason;  // "the frequency \"146.520000\" is not from 0.03 to 75 MHz"

    bool operator==(const RefusedLine&) const = default;
};

struct MemoryImport {
    std::string problem;  // why the file cannot be used; then both lists are empty. Empty: it can be used
    std::vector<ImportedChannel> channels;
    std::vector<RefusedLine> refused;

    bool operator==(const MemoryImport&) const = default;
};

// Takes any bytes. Columns are found by their titles in the first line, in any order, in upper or lower case; other
// columns are ignored. Location (1 to 99) and Frequency (MHz, 0.03 to 75) must be present. A channel without a mode
// gets the usual side band. A line of blanks and commas only is skipped. A line that cannot be used is refused, and so
// is a second line for the same channel. Channels that no line names stay unchanged.
MemoryImport readMemoryCsv(std::string_view text);

// Whether writing either channel has the same result: blanks around a tag and the contents of an empty row do not
// count.
bool sameChannel(const MemoryChannel& left, const MemoryChannel& right);

// A channel in a few words: "14.074000 DATA-U 20M FT8"; "empty" for an empty one.
std::string channelInWords(const MemoryChannel& channel);

}  // namespace corvane

// The memory channels as a file that memory programming tools read and write, and what a file of theirs would change:
//   Location,Name,Frequency,Duplex,Offset,Tone,rToneFreq,cToneFreq,DtcsCode,DtcsPolarity,Mode,TStep,Skip,Comment,...
//   5,20M FT8,14.074000,,0.000000,,88.5,88.5,023,NN,DIG,5.00,,,,,,
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "memories/memory_channel.h"

namespace corvane {

// One line a programmed channel, in the order of the channels; empty channels are left out. A mode that the tools have
// no name for is written as the nearest, with the transceiver's own name as the comment.
std::string memoryCsv(const MemoryTable& channels);

struct ImportedChannel {
    int line = 0;           // of the file, counted from 1
    int row = 0;            // of the table, counted from 0
    MemoryChannel channel;  // frequency in nine digits, a mode code, a tag of ASCII characters
    std::string note;       // what of the line is not taken as it stands; empty: nothing

    bool operator==(const ImportedChannel&) const = default;
};

struct RefusedLine {
    int line = 0;
    std::string reason;  // "the frequency \"146.520000\" is not from 0.03 to 75 MHz"

    bool operator==(const RefusedLine&) const = default;
};

struct MemoryImport {
    std::string problem;  // why the file is none of memory channels; then there are no lines. Empty: it is one
    std::vector<ImportedChannel> channels;
    std::vector<RefusedLine> refused;

    bool operator==(const MemoryImport&) const = default;
};

// Any bytes. Columns are known by their titles in the first line, in any order, small letters or capitals; of others
// nothing is used. Location (1 to 99) and Frequency (MHz, 0.03 to 75) must be there. Without a mode a channel gets the
// usual side band. A line that cannot be used, and a second one for a channel, is refused; channels that no line names
// stay as they are.
MemoryImport readMemoryCsv(std::string_view text);

// Whether a write leaves the transceiver with the same: blanks around a tag and what an empty row holds do not count.
bool sameChannel(const MemoryChannel& left, const MemoryChannel& right);

// A channel in a few words: "14.074000 DATA-U 20M FT8"; "empty" for one that is.
std::string channelInWords(const MemoryChannel& channel);

}  // namespace corvane

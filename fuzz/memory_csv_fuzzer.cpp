// Any file of memory channels. The channels taken from it survive an export and another import.
#include <bitset>

#include "fuzz/fuzz_target.h"
#include "memories/memory_csv.h"
#include "wire/operating_modes.h"
#include "wire/wire_text.h"

namespace corvane {

void fuzz(std::string_view input) {
    const MemoryImport import = readMemoryCsv(input);
    INVARIANT(import.problem.empty() || (import.channels.empty() && import.refused.empty()));
    MemoryTable table;
    std::bitset<memoryChannels> taken;
    for (const auto& [line, row, channel, note] : import.channels) {
        INVARIANT(row >= 0 && row < memoryChannels && !taken.test(static_cast<std::size_t>(row)));
        taken.set(static_cast<std::size_t>(row));
        const int hertz = decimalOrZero(channel.frequency);
        INVARIANT(channel.frequency.size() == 9 && hertz >= 30'000 && hertz <= 75'000'000);
        INVARIANT(channel.mode.size() == 1 && modeName(channel.mode.front()));
        INVARIANT(channel.tag.size() <= tagLength && isAscii(channel.tag) &&
                  channel.tag.find(';') == std::string::npos);
        table[static_cast<std::size_t>(row)] = channel;
    }
    const MemoryImport again = readMemoryCsv(memoryCsv(table));
    INVARIANT(again.refused.empty() && again.channels.size() == import.channels.size());
    for (const ImportedChannel& imported : again.channels)
        INVARIANT(sameChannel(imported.channel, table[static_cast<std::size_t>(imported.row)]) &&
                  imported.note.empty());
}

}  // namespace corvane

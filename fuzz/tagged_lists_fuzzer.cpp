// Any body of the NetLogger service, of the nets directory or of the list of stations.
#include <algorithm>

#include "feeds/feed_cells.h"
#include "feeds/tagged_lists.h"
#include "feeds/tune_command.h"
#include "fuzz/fuzz_target.h"
#include "wire/utf8.h"

namespace corvane {

void fuzz(std::string_view input) {
    struct Decoder {
        DecodedFeed (*decode)(std::string_view input);
        std::size_t fields;
    };
    for (const auto& [decode, fields] :
         {Decoder{decodeNetLoggerNets, 4}, Decoder{decodeNets, 7}, Decoder{decodeMWStations, 5}}) {
        const DecodedFeed list = decode(input);
        INVARIANT(list.problem.empty() || list.rows.empty());
        for (const FeedRow& row : list.rows) {
            INVARIANT(row.fields.size() == fields);
            for (const std::string& field : row.fields) INVARIANT(isUtf8(field));
            INVARIANT(row[1].find_first_not_of("0123456789.") == std::string::npos);
            feedCell(Feed::netLogger, "freq", row);
            const std::string command = tuneCommandForNetLogger(row[1], "A");
            INVARIANT(std::ranges::count(command, ';') == 4 && command.find("FA") == 5);
        }
    }
}

}  // namespace corvane

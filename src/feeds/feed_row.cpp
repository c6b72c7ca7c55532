#include "feeds/feed_row.h"

#include "platform/web_address.h"
#include "wire/utf8.h"

namespace corvane {

FeedRow withinLimits(FeedRow row, std::size_t address) {
    for (std::size_t i = 0; i < row.fields.size(); ++i) {
        std::string& field = row.fields[i];
        const std::size_t limit = i == address ? longestAddress : longestField;
        if (field.size() <= limit) continue;
        field.resize(i == address ? 0 : utf8Prefix(field, limit).size());
        field.shrink_to_fit();
    }
    return row;
}

}  // namespace corvane

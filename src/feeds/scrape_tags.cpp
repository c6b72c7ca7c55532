#include "feeds/scrape_tags.h"

#include <fmt/core.h>

#include <algorithm>

namespace corvane {

namespace {

// Finds the text between the first opening tag of a line and the first closing tag after it.
struct TagPair {
    explicit TagPair(std::string_view name)
        : opening(fmt::format("<{}>", name)), closing(fmt::format("</{}>", name)), isFrequency(name == "Frequency") {}

    void scrape(std::string_view line, std::vector<std::string>& values) const {
        const std::size_t start = line.find(opening);
        if (start == std::string_view::npos) return;
        const std::size_t from = start + opening.size();
        const std::size_t end = line.find(closing, from);
        if (end == std::string_view::npos) return;
        const std::string_view value = line.substr(from, end - from);
        values.push_back(isFrequency ? keepDigits(value) : std::string(value));
    }

    std::string opening;
    std::string closing;
    bool isFrequency;
};

}  // namespace

std::vector<std::vector<std::string>> scrapeTags(std::string_view text, std::span<const std::string_view> tags) {
    const std::vector<TagPair> pairs(tags.begin(), tags.end());
    std::vector<std::vector<std::string>> lists(tags.size());
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        const std::string_view line = text.substr(0, end);
        for (std::size_t i = 0; i < pairs.size(); ++i) pairs[i].scrape(line, lists[i]);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lists;
}

FeedList rowsOf(std::vector<std::vector<std::string>> lists) {
    std::size_t count = lists.empty() ? 0 : lists.front().size();
    for (const auto& list : lists) count = std::min(count, list.size());
    FeedList rows(count);
    for (std::size_t k = 0; k < count; ++k)
        for (auto& list : lists) rows[k].fields.push_back(std::move(list[k]));
    return rows;
}

std::string keepDigits(std::string_view text) {
    std::string kept;
    std::ranges::copy_if(text, std::back_inserter(kept), [](char c) { return (c >= '0' && c <= '9') || c == '.'; });
    return kept;
}

}  // namespace corvane

#include "display/entry_titles.h"

#include <fmt/core.h>

#include <algorithm>

#include "display/pop_up_entries.h"
#include "wire/cat_command.h"
#include "wire/wire_text.h"

namespace corvane {

int EntryTitles::size() const {
    if (const auto* run = std::get_if<NumberRun>(&titles_)) return run->size();
    return static_cast<int>(std::get<0>(titles_).size());
}

std::string EntryTitles::at(int index) const {
    if (const auto* run = std::get_if<NumberRun>(&titles_)) return run->at(index);
    return std::get<0>(titles_)[static_cast<std::size_t>(index)];
}

std::optional<int> EntryTitles::indexOf(std::string_view title) const {
    if (const auto* run = std::get_if<NumberRun>(&titles_)) return run->indexOf(title);
    const auto& texts = std::get<0>(titles_);
    const auto found = std::ranges::find(texts, title);
    if (found == texts.end()) return std::nullopt;
    return static_cast<int>(found - texts.begin());
}

std::vector<std::string> EntryTitles::list() const {
    if (const auto* texts = std::get_if<0>(&titles_)) return *texts;
    std::vector<std::string> all;
    for (int index = 0; index < size(); ++index) all.push_back(at(index));
    return all;
}

void EntryTitles::insert(int index, std::string title) {
    std::vector<std::string> texts = list();
    texts.insert(texts.begin() + index, std::move(title));
    titles_ = std::move(texts);
}

EntryTitles entryTitles(std::string_view entries) {
    if (const auto run = numberRun(entries)) return *run;
    return entryList(entries);
}

}  // namespace corvane

#include "display/entry_titles.h"

#include <fmt/core.h>

#include <algorithm>

#include "display/pop_up_entries.h"
#include "wire/cat_command.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

// The number in front of a separator, which must be there; moves the text behind it.
std::optional<int> numberBefore(std::string_view separator, std::string_view& text) {
    const std::size_t end = text.find(separator);
    if (end == std::string_view::npos) return std::nullopt;
    const auto number = decimal(text.substr(0, end));
    text.remove_prefix(end + separator.size());
    return number;
}

std::optional<NumberRun> numberRun(std::string_view text) {
    const auto first = numberBefore("..", text);
    const auto last = numberBefore("/", text);
    const auto step = numberBefore("%", text);
    const auto digits = decimal(text);
    if (!first || !last || !step || *step < 1 || !digits) return std::nullopt;
    return NumberRun{*first, *last, *step, *digits, text.starts_with('+')};
}

}  // namespace

std::string NumberRun::at(int index) const {
    const int number = first + index * step;
    if (sign) return fmt::format("{:+0{}}", number, digits + 1);
    return zeroPadded(number, number < 0 ? digits + 1 : digits);
}

std::optional<int> NumberRun::indexOf(std::string_view title) const {
    const auto number = decimal(title);
    if (!number || *number < first || *number > last || (*number - first) % step != 0) return std::nullopt;
    const int index = (*number - first) / step;
    if (at(index) != title) return std::nullopt;  // "7" is not "007"
    return index;
}

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

EntryTitles entryTitles(std::string_view entries) {
    if (const auto run = numberRun(entries)) return *run;
    return entryList(entries);
}

}  // namespace corvane

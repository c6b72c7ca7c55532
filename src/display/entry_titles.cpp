#include "display/entry_titles.h"

#include <algorithm>
#include <charconv>

#include "display/pop_up_entries.h"

namespace corvane {

namespace {

// The number that a text begins with, sign included; moves the text behind it.
std::optional<int> takeNumber(std::string_view& text) {
    std::string_view digits = text;
    if (digits.starts_with('+')) digits.remove_prefix(1);
    int number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc{}) return std::nullopt;
    text = digits.substr(static_cast<std::size_t>(end - digits.data()));
    return number;
}

bool skip(std::string_view& text, std::string_view what) {
    if (!text.starts_with(what)) return false;
    text.remove_prefix(what.size());
    return true;
}

std::optional<NumberRun> numberRun(std::string_view text) {
    const auto first = takeNumber(text);
    if (!first || !skip(text, "..")) return std::nullopt;
    const auto last = takeNumber(text);
    if (!last || !skip(text, "/")) return std::nullopt;
    const auto step = takeNumber(text);
    if (!step || *step < 1 || !skip(text, "%")) return std::nullopt;
    const bool sign = skip(text, "+");
    const auto digits = takeNumber(text);
    if (!digits || !text.empty()) return std::nullopt;
    return NumberRun{*first, *last, *step, *digits, sign};
}

}  // namespace

std::string NumberRun::at(int index) const {
    const int number = first + index * step;
    std::string text = std::to_string(number < 0 ? -number : number);
    if (const auto width = static_cast<std::size_t>(digits); text.size() < width)
        text.insert(0, width - text.size(), '0');
    if (sign || number < 0) text.insert(0, 1, number < 0 ? '-' : '+');
    return text;
}

std::optional<int> NumberRun::indexOf(std::string_view title) const {
    std::string_view rest = title;
    const auto number = takeNumber(rest);
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

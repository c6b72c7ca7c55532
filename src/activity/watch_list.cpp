#include "activity/watch_list.h"

#include <algorithm>

#include "wire/letter_case.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

constexpr std::string_view between = " ,;\t\r\n";

bool mayStand(char c) { return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '/' || c == '-'; }

bool fits(std::string_view entry, std::string_view text) {
    return entry.ends_with('*') ? text.starts_with(entry.substr(0, entry.size() - 1)) : text == entry;
}

bool fitsAPart(std::string_view entry, std::string_view call) {
    for (std::size_t start = 0; start <= call.size();) {
        const std::size_t end = std::min(call.find('/', start), call.size());
        if (fits(entry, call.substr(start, end - start))) return true;
        start = end + 1;
    }
    return false;
}

}  // namespace

WatchList WatchList::from(std::string_view text) {
    WatchList list;
    for (std::size_t start = 0; (start = text.find_first_not_of(between, start)) < text.size();) {
        const std::size_t end = std::min(text.find_first_of(between, start), text.size());
        list.add(text.substr(start, end - start));
        start = end;
    }
    return list;
}

std::string WatchList::add(std::string_view text) {
    const std::string entry = upperCase(trimmed(text));
    const std::string_view letters = std::string_view(entry).substr(0, entry.size() - (entry.ends_with('*') ? 1 : 0));
    if (letters.size() < fewest)
        return "Type at least two characters of a call or a reference, such as K1ABC or US-1234.";
    if (entry.size() > longest) return "That is too long for a call or a reference.";
    if (!std::ranges::all_of(letters, mayStand))
        return "A call or a reference has letters, digits, / and - only, perhaps with * at its end.";
    const auto place = std::ranges::lower_bound(entries_, entry);
    if (place != entries_.end() && *place == entry) return {};
    if (entries_.size() >= most) return "The list is full: remove an entry first.";
    entries_.insert(place, entry);
    return {};
}

void WatchList::remove(std::size_t index) {
    if (index < entries_.size()) entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(index));
}

std::string WatchList::text() const {
    std::string text;
    for (const std::string& entry : entries_) text.append(text.empty() ? "" : " ").append(entry);
    return text;
}

bool WatchList::watches(std::string_view call, std::string_view reference) const {
    if (entries_.empty()) return false;
    const std::string upperCall = upperCase(call);
    const std::string upperReference = upperCase(reference);
    return std::ranges::any_of(entries_, [&](const std::string& entry) {
        return fits(entry, upperCall) || fits(entry, upperReference) || fitsAPart(entry, upperCall);
    });
}

}  // namespace corvane

// The titles of a pop-up's entries.
#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "display/number_run.h"

namespace corvane {

// A list of texts, or a run of numbers, whose texts are made when they are asked for: ten thousand of them cost
// nothing.
class EntryTitles {
public:
    EntryTitles() = default;
    EntryTitles(std::vector<std::string> texts) : titles_(std::move(texts)) {}
    EntryTitles(std::initializer_list<std::string> texts) : titles_(std::vector(texts)) {}
    EntryTitles(NumberRun run) : titles_(run) {}

    int size() const;
    std::string at(int index) const;                           // the index must be below size()
    std::optional<int> indexOf(std::string_view title) const;  // the first entry of this title
    std::vector<std::string> list() const;                     // all of them
    void insert(int index, std::string title);                 // before the entry at `index`, or as the last one

    bool operator==(const EntryTitles&) const = default;

private:
    std::variant<std::vector<std::string>, NumberRun> titles_;
};

// "OFF|FAST|MID" gives three entries, "FIRST..LAST/STEP%D" or "FIRST..LAST/STEP%+D" a run of numbers, e.g.
// "-20..+10/1%+2"; empty text gives none.
EntryTitles entryTitles(std::string_view entries);

}  // namespace corvane

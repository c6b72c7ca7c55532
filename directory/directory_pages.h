// The lists in the form that the program reads: one line per record, each value between tags.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "directory_store.h"

namespace corvane::directory {

using Page = std::shared_ptr<const std::string>;

// "<City>Nashville</City>". The program decodes no entities. So "<" and ">" are replaced by their look-alikes U+2039
// and U+203A, which cannot end a tag, and control characters by blanks.
void appendTagged(std::string& line, std::string_view tag, std::string_view value);

// The stations in the given order: "<Station>WSM</Station><Frequency>650</Frequency><City>Nashville</City>
// <Power>50</Power><URL></URL>", all in one line.
Page stationsPage(const std::vector<Station>& stations);

// The nets, the one that meets next first: "<NetName>Noon Net</NetName><Frequency>3.940</Frequency><UTC>17:00
// Mon-Fri</UTC> <Mode>LSB</Mode><URL></URL><Confirmed>no (3)</Confirmed><NetID>noon-net</NetID>", all in one line.
// Confirmed says whether the asking operator has confirmed the net's next session, and how many operators have.
class NetsPage {
public:
    NetsPage(std::vector<Net> nets, const std::vector<SessionCount>& counts, Seconds now);

    // When the first of the next sessions ends: then that net's next session is another one.
    Seconds validUntil() const { return validUntil_; }
    // The page for an operator with these confirmations; only those of a net's next session count.
    Page with(const std::vector<Confirmation>& confirmations) const;

private:
    struct Row {
        Seconds starts;
        int confirmed;
        std::size_t state;  // where "no (3)" stands in the text
    };

    std::vector<Row> rows_;
    std::unordered_map<std::string, std::size_t> rowOfNet_;
    Page text_;
    Seconds validUntil_ = Seconds::max();
};

}  // namespace corvane::directory

// Comma-separated text: lines of fields.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace corvane {

// The fields with commas between them, in quotes where they need them, without a line end: `5,"20M FT8, EU",7.074000`.
std::string csvLine(std::span<const std::string> fields);

struct CsvLine {
    int number = 0;  // of its first line in the text, counted from 1
    std::vector<std::string> fields;
    bool quoteLeftOpen = false;  // it runs to the end of the text for want of a closing quote

    bool operator==(const CsvLine&) const = default;
};

// The lines of any bytes, without empty ones and without a mark of the byte order in front. They end with a line feed,
// a carriage return or both. A field in quotes may hold commas, line ends and, doubled, quotes; what follows its
// closing quote up to the next comma belongs to it.
std::vector<CsvLine> csvLines(std::string_view text);

}  // namespace corvane

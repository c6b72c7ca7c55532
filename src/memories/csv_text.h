// Comma-separated text: lines of fields.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace corvane {

// Joins fields with commas, in quotes where needed, without a line end: `5,"20M FT8, EU",7.074000`.
std::string csvLine(std::span<const std::string> fields);

struct CsvLine {
    int number = 0;  // the line of the text where it starts, counted from 1
    std::vector<std::string> fields;
    bool quoteLeftOpen = false;  // a closing quote is missing, so the line runs to the end of the text

    bool operator==(const CsvLine&) const = default;
};

// Splits any bytes into lines; leaves out empty lines, and a byte order mark at the start. A line ends with a line
// feed, a carriage return or both. A field in quotes may hold commas, line ends and doubled quotes; text between its
// closing quote and the next comma belongs to it.
std::vector<CsvLine> csvLines(std::string_view text);

}  // namespace corvane

// Lines of CSV files.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::directory {

struct CsvLine {
    int number;  // the line of the file where it begins, from 1
    std::vector<std::string> values;
};

// The lines of a text, without empty ones. Blanks around a value that is not in double quotes are dropped. `badLine` is
// the line with a wrong quote; nothing after it is read.
struct CsvLines {
    std::vector<CsvLine> lines;
    std::optional<int> badLine;
};
CsvLines readCsv(std::string_view text);

// The values as a line, in double quotes where needed.
std::string csvLine(const std::vector<std::string>& values);

}  // namespace corvane::directory

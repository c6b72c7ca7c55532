// Lines of comma-separated values.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::directory {

struct CsvLine {
    int number;  // of the line in the file where it begins, from 1
    std::vector<std::string> values;
};

// Without empty lines. Blanks around a value that is not in double quotes are dropped. `badLine` is where the quotes
// are wrong; nothing after it is read.
struct CsvLines {
    std::vector<CsvLine> lines;
    std::optional<int> badLine;
};
CsvLines readCsv(std::string_view text);

// With every value in double quotes that needs them.
std::string csvLine(const std::vector<std::string>& values);

}  // namespace corvane::directory

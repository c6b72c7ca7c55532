#include "csv_lines.h"

#include <csv.h>

namespace corvane::directory {

namespace {

struct Reading {
    CsvLines file;
    std::vector<std::string> values;
    int line = 1;   // the line that is being read
    int start = 0;  // the line where the values begin; 0 before it

    static void takeValue(void* value, std::size_t size, void* reading) {
        auto& self = *static_cast<Reading*>(reading);
        self.values.emplace_back(static_cast<const char*>(value), size);
    }
    static void takeLine(int, void* reading) {
        auto& self = *static_cast<Reading*>(reading);
        self.file.lines.push_back({self.start, std::move(self.values)});
        self.values.clear();
        self.start = 0;
    }
};

}  // namespace

CsvLines readCsv(std::string_view text) {
    csv_parser parser{};
    csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI);
    Reading reading;
    for (const char c : text) {
        if (reading.start == 0 && c != '\n' && c != '\r') reading.start = reading.line;
        if (csv_parse(&parser, &c, 1, Reading::takeValue, Reading::takeLine, &reading) != 1) {
            reading.file.badLine = reading.line;
            break;
        }
        if (c == '\n') ++reading.line;
    }
    if (!reading.file.badLine && csv_fini(&parser, Reading::takeValue, Reading::takeLine, &reading) != 0)
        reading.file.badLine = reading.start;
    csv_free(&parser);
    return std::move(reading.file);
}

std::string csvLine(const std::vector<std::string>& values) {
    std::string line;
    for (const std::string& value : values) {
        if (&value != &values.front()) line += ',';
        const bool plain =
            value.find_first_of(",\"\r\n") == std::string::npos && !value.starts_with(' ') && !value.ends_with(' ');
        std::string quoted(2 * value.size() + 2, '\0');
        quoted.resize(csv_write(quoted.data(), quoted.size(), value.data(), value.size()));
        line += plain ? value : quoted;
    }
    return line + '\n';
}

}  // namespace corvane::directory

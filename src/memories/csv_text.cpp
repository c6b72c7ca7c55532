#include "memories/csv_text.h"

#include <algorithm>

namespace corvane {

namespace {

constexpr std::string_view byteOrderMark = "\xef\xbb\xbf";

void appendField(std::string& line, std::string_view field) {
    const bool plain = field.find_first_of(",\"\r\n") == std::string_view::npos;
    if (plain) {
        line += field;
        return;
    }
    line += '"';
    for (const char c : field) line.append(c == '"' ? 2 : 1, c);
    line += '"';
}

class Reader {
public:
    explicit Reader(std::string_view text) : rest_(text) {}

    bool atEnd() const { return rest_.empty(); }

    CsvLine line() {
        CsvLine line{lineNumber_, {}, false};
        do line.fields.push_back(field(line.quoteLeftOpen));
        while (take(','));
        endLine();
        return line;
    }

private:
    bool take(char c) {
        if (!rest_.starts_with(c)) return false;
        rest_.remove_prefix(1);
        return true;
    }
    std::string field(bool& quoteLeftOpen) {
        std::string text;
        if (take('"')) quoteLeftOpen = !quoted(text);
        const std::size_t end = std::min(rest_.find_first_of(",\r\n"), rest_.size());
        text += rest_.substr(0, end);
        rest_.remove_prefix(end);
        return text;
    }
    // False when the closing quote is missing.
    bool quoted(std::string& text) {
        while (!rest_.empty()) {
            const char c = rest_.front();
            rest_.remove_prefix(1);
            if (c == '"' && !take('"')) return true;
            if (c == '\n' || (c == '\r' && !rest_.starts_with('\n'))) ++lineNumber_;
            text += c;
        }
        return false;
    }
    void endLine() {
        if (atEnd()) return;
        take('\r');
        take('\n');
        ++lineNumber_;
    }

    std::string_view rest_;
    int lineNumber_ = 1;
};

}  // namespace

std::string csvLine(std::span<const std::string> fields) {
    std::string line;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (i > 0) line += ',';
        appendField(line, fields[i]);
    }
    return line;
}

std::vector<CsvLine> csvLines(std::string_view text) {
    if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
    std::vector<CsvLine> lines;
    for (Reader reader(text); !reader.atEnd();) {
        CsvLine line = reader.line();
        if (line.quoteLeftOpen || line.fields != std::vector<std::string>{""}) lines.push_back(std::move(line));
    }
    return lines;
}

}  // namespace corvane

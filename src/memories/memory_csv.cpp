#include "memories/memory_csv.h"

#include <fmt/core.h>

#include <algorithm>
#include <array>
#include <optional>

#include "memories/csv_text.h"
#include "memories/memory_commands.h"
#include "memories/memory_entry.h"
#include "memories/memory_mode_names.h"
#include "memories/table_cells.h"
#include "wire/letter_case.h"
#include "wire/operating_modes.h"
#include "wire/tuning_range.h"
#include "wire/utf8.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

enum class Column { location, name, frequency, duplex, tone, mode, comment };
constexpr std::size_t columnCount = 7;

struct FileColumn {
    std::string_view title;
    std::string_view usual;           // what is written if the channel has no value for it
    std::optional<Column> read = {};  // its use on import; columns without one are only written
};

constexpr std::array fileColumns{
    FileColumn{"Location", "", Column::location},
    FileColumn{"Name", "", Column::name},
    FileColumn{"Frequency", "", Column::frequency},
    FileColumn{"Duplex", "", Column::duplex},
    FileColumn{"Offset", "0.000000"},
    FileColumn{"Tone", "", Column::tone},
    FileColumn{"rToneFreq", "88.5"},
    FileColumn{"cToneFreq", "88.5"},
    FileColumn{"DtcsCode", "023"},
    FileColumn{"DtcsPolarity", "NN"},
    FileColumn{"RxDtcsCode", "023"},
    FileColumn{"CrossMode", "Tone->Tone"},
    FileColumn{"Mode", "", Column::mode},
    FileColumn{"TStep", "5.00"},
    FileColumn{"Skip", ""},
    FileColumn{"Power", "50W"},  // what the tools write if a channel has none, as here
    FileColumn{"Comment", "", Column::comment},
    FileColumn{"URCALL", ""},
    FileColumn{"RPT1CALL", ""},
    FileColumn{"RPT2CALL", ""},
    FileColumn{"DVCODE", ""},
};
constexpr std::string_view lineEnd = "\r\n";
constexpr std::size_t longestQuoted = 30;  // characters of a field that a reason quotes

std::string inQuotes(std::string_view field) {
    const bool showable = isUtf8(field) && std::ranges::none_of(field, [](char c) { return c >= 0 && c < ' '; });
    return showable ? fmt::format("\"{}\"", utf8Prefix(field, longestQuoted)) : "(unreadable)";
}

// Finds the field of a line for a column: the first whose title matches.
class Header {
public:
    explicit Header(const CsvLine& titles) {
        for (const FileColumn& column : fileColumns) {
            if (!column.read) continue;
            const auto title = std::ranges::find_if(
                titles.fields, [&](const std::string& field) { return sameWord(trimmed(field), column.title); });
            positions_[static_cast<std::size_t>(*column.read)] =
                static_cast<std::size_t>(title - titles.fields.begin());
        }
        titles_ = titles.fields.size();
    }
    bool has(Column column) const { return positions_[static_cast<std::size_t>(column)] < titles_; }
    // Without white space at both ends; empty if the line is too short.
    std::string_view field(const CsvLine& line, Column column) const {
        const std::size_t position = positions_[static_cast<std::size_t>(column)];
        return has(column) && position < line.fields.size() ? trimmed(line.fields[position]) : std::string_view{};
    }

private:
    std::array<std::size_t, columnCount> positions_{};
    std::size_t titles_ = 0;
};

bool isBlank(const CsvLine& line) {
    return !line.quoteLeftOpen &&
           std::ranges::all_of(line.fields, [](const auto& field) { return trimmed(field).empty(); });
}

// The tag as if the name had been typed; a name that is not UTF-8 keeps its ASCII characters.
std::string tagOf(std::string_view name) {
    const bool text = isUtf8(name);
    std::string printable;
    for (const char c : name)
        if ((c >= ' ' && c <= '~') || (text && !isAscii({&c, 1}))) printable += c;
    return memoryTag(printable);
}

void addNote(std::string& note, const std::string& more) { note += (note.empty() ? "" : "; ") + more; }

// Reads the lines of one file.
class Importer {
public:
    explicit Importer(const Header& header) : header_(header) {}

    MemoryImport result;

    void read(const CsvLine& line) {
        ImportedChannel imported{line.number, 0, {"", "", ""}, ""};
        std::string reason = line.quoteLeftOpen ? "a quotation mark is not closed" : readRow(line, imported);
        if (reason.empty()) reason = readFrequencyAndMode(line, imported);
        if (!reason.empty()) {
            result.refused.push_back({line.number, std::move(reason)});
            return;
        }
        lineOf_[static_cast<std::size_t>(imported.row)] = line.number;
        readName(line, imported);
        if (const auto duplex = header_.field(line, Column::duplex); !duplex.empty())
            addNote(imported.note, "without shift " + inQuotes(duplex));
        if (const auto tone = header_.field(line, Column::tone); !tone.empty())
            addNote(imported.note, "without tone " + inQuotes(tone));
        result.channels.push_back(std::move(imported));
    }

private:
    std::string readRow(const CsvLine& line, ImportedChannel& imported) const {
        const std::string_view location = header_.field(line, Column::location);
        const auto channel = decimal(location);
        if (!channel || *channel < 1 || *channel > memoryChannels)
            return fmt::format("the location {} is not from 1 to 99", inQuotes(location));
        imported.row = *channel - 1;
        if (const int before = lineOf_[static_cast<std::size_t>(imported.row)]; before != 0)
            return fmt::format("location {} stands in line {} already", *channel, before);
        return {};
    }
    std::string readFrequencyAndMode(const CsvLine& line, ImportedChannel& imported) const {
        const std::string_view frequency = header_.field(line, Column::frequency);
        imported.channel.frequency = memoryFrequencyEntry(frequency).field;
        if (imported.channel.frequency.empty())
            return fmt::format("the frequency {} is not from 0.03 to 75 MHz", inQuotes(frequency));
        const std::string_view mode = header_.field(line, Column::mode);
        auto code = memoryModeCode(mode, header_.field(line, Column::comment));
        if (!code && !mode.empty()) return fmt::format("the mode {} is none of the transceiver's", inQuotes(mode));
        if (!code) {
            code = voiceSideBands.usual(decimalOrZero(imported.channel.frequency));
            addNote(imported.note, fmt::format("no mode: {} is usual there", *modeName(*code)));
        }
        imported.channel.mode = std::string(1, *code);
        return {};
    }
    void readName(const CsvLine& line, ImportedChannel& imported) const {
        const std::string_view name = header_.field(line, Column::name);
        imported.channel.tag = tagOf(name);
        if (imported.channel.tag != name) addNote(imported.note, "shortened from " + inQuotes(name));
    }

    const Header& header_;
    std::array<int, memoryChannels> lineOf_{};  // 0: none yet
};

}  // namespace

std::string memoryCsv(const MemoryTable& channels) {
    std::vector<std::string> fields;
    for (const FileColumn& column : fileColumns) fields.emplace_back(column.title);
    std::string csv = csvLine(fields).append(lineEnd);
    for (std::size_t row = 0; row < channels.size(); ++row) {
        const MemoryChannel& channel = channels[row];
        const std::string frequency = isProgrammed(channel) ? shownMemoryFrequency(channel.frequency) : "";
        if (frequency.empty()) continue;
        const OperatingMode* mode = operatingMode(channel.mode.size() == 1 ? channel.mode.front() : ' ');
        const bool named = mode && memoryModeCode(mode->inFile, {}) == mode->code;
        for (std::size_t i = 0; i < fileColumns.size(); ++i) {
            std::string& field = fields[i] = fileColumns[i].usual;
            const auto column = fileColumns[i].read;
            if (column == Column::location) field = std::to_string(row + 1);
            if (column == Column::name) field = trimmed(channel.tag);
            if (column == Column::frequency) field = frequency;
            if (column == Column::mode) field = mode ? mode->inFile : std::string_view{};
            if (column == Column::comment && mode && !named) field = mode->name;
        }
        csv.append(csvLine(fields)).append(lineEnd);
    }
    return csv;
}

MemoryImport readMemoryCsv(std::string_view text) {
    std::vector<CsvLine> lines = csvLines(text);
    std::erase_if(lines, isBlank);
    if (lines.empty()) return {"The file is empty.", {}, {}};
    if (lines.front().quoteLeftOpen) return {"Its first line has a quotation mark that is not closed.", {}, {}};
    const Header header(lines.front());
    for (const auto& [column, title] : {std::pair{Column::location, "Location"}, {Column::frequency, "Frequency"}})
        if (!header.has(column)) return {fmt::format("Its first line has no column \"{}\".", title), {}, {}};
    Importer importer(header);
    for (const CsvLine& line : std::span(lines).subspan(1)) importer.read(line);
    return std::move(importer.result);
}

bool sameChannel(const MemoryChannel& left, const MemoryChannel& right) {
    if (!isProgrammed(left) || !isProgrammed(right)) return isProgrammed(left) == isProgrammed(right);
    return left.frequency == right.frequency && left.mode == right.mode && trimmed(left.tag) == trimmed(right.tag);
}

std::string channelInWords(const MemoryChannel& channel) {
    if (!isProgrammed(channel)) return "empty";
    const auto mode = modeName(channel.mode.size() == 1 ? channel.mode.front() : ' ').value_or("(no mode)");
    const std::string_view tag = trimmed(channel.tag);
    return fmt::format("{} {}{}{}", shownMemoryFrequency(channel.frequency), mode, tag.empty() ? "" : " ", tag);
}

}  // namespace corvane

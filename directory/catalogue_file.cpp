#include "catalogue_file.h"

#include <QByteArrayView>
#include <QString>
#include <algorithm>
#include <array>
#include <charconv>
#include <set>

#include "csv_lines.h"
#include "net_schedule.h"

namespace corvane::directory {

namespace {

bool isUtf8(std::string_view text) {
    return QByteArrayView(text.data(), static_cast<qsizetype>(text.size())).isValidUtf8();
}

bool isText(std::string_view text) {
    const QString characters = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    return text.size() <= 200 && isUtf8(text) &&
           std::ranges::none_of(characters, [](QChar c) { return c.category() == QChar::Other_Control; });
}

bool isWord(std::string_view text) { return !text.empty() && isText(text); }

bool isId(std::string_view text) {
    return !text.empty() && text.size() <= 64 && std::ranges::all_of(text, [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-';
    });
}

// Digits and at most one point: the program keeps only these of a frequency.
bool isBetween(double least, double most, std::string_view text) {
    if (text.empty() || text.size() > 12 || text.front() < '0' || text.front() > '9') return false;
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    return error == std::errc{} && end == text.data() + text.size() && number >= least && number <= most;
}

// What the program tunes to: the receiver's range, and the modes that it knows of a net.
bool isMegahertz(std::string_view text) { return isBetween(0.03, 75, text); }
bool isKilohertz(std::string_view text) { return isBetween(520, 1720, text); }
bool isPower(std::string_view text) { return isBetween(0, 2500, text); }
bool isMode(std::string_view text) {
    return text == "LSB" || text == "USB" || text == "CW" || text == "FT8" || text == "FT4";
}

constexpr std::size_t longestDays = std::string_view("Sun Mon Tue Wed Thu Fri Sat").size();
bool isTime(std::string_view text) { return scheduleOf(text, "daily").has_value(); }
bool isDays(std::string_view text) { return text.size() <= longestDays && scheduleOf("00:00", text).has_value(); }

bool isWebPage(std::string_view text) {
    return text.empty() || (isText(text) && (text.starts_with("https://") || text.starts_with("http://")));
}

template <class Entry>
struct Column {
    std::string_view name;
    std::string Entry::*value;
    bool (*isGood)(std::string_view text);
    std::string_view wanted;
};

constexpr std::array netColumns{
    Column<Net>{"id", &Net::id, isId, "lower-case letters, digits and -, at most 64"},
    Column<Net>{"name", &Net::name, isWord, "1 to 200 bytes of text"},
    Column<Net>{"frequency_mhz", &Net::frequency, isMegahertz, "MHz from 0.03 to 75, like 3.940"},
    Column<Net>{"utc", &Net::utc, isTime, "a time like 17:00"},
    Column<Net>{"days", &Net::days, isDays, "daily, or days like Mon-Fri Sun"},
    Column<Net>{"mode", &Net::mode, isMode, "LSB, USB, CW, FT8 or FT4"},
    Column<Net>{"url", &Net::url, isWebPage, "empty, or an address that begins with https:// or http://"},
};

constexpr std::array stationColumns{
    Column<Station>{"call_sign", &Station::callSign, isWord, "1 to 200 bytes of text"},
    Column<Station>{"frequency_khz", &Station::frequency, isKilohertz, "kHz from 520 to 1720"},
    Column<Station>{"city", &Station::city, isWord, "1 to 200 bytes of text"},
    Column<Station>{"power_kw", &Station::power, isPower, "kW like 50"},
    Column<Station>{"url", &Station::url, isWebPage, "empty, or an address that begins with https:// or http://"},
};

// Escape sequences of terminals are not shown as they are, nor is a value of a megabyte.
std::string shown(std::string_view value) {
    constexpr qsizetype most = 80;
    const QString text = QString::fromUtf8(value.data(), static_cast<qsizetype>(value.size()));
    QString shown;
    for (const QChar c : text.first(std::min(most, text.size())))
        shown += c.isPrint() || c.isSurrogate() ? QString(c) : QString("\\u%1").arg(c.unicode(), 4, 16, QChar('0'));
    return (text.size() > most ? shown + "\u2026" : shown).toStdString();
}

std::string problem(int line, std::string_view what, std::string_view value, std::string_view wanted) {
    return "line " + std::to_string(line) + ": " + std::string(what) + " \"" + shown(value) +
           "\": " + std::string(wanted);
}

template <class Entry, std::size_t size>
std::vector<std::string> namesOf(const std::array<Column<Entry>, size>& columns) {
    std::vector<std::string> names;
    for (const auto& column : columns) names.emplace_back(column.name);
    return names;
}

template <class Entry, std::size_t size>
CatalogueFile<Entry> read(std::string_view text, const std::array<Column<Entry>, size>& columns,
                          std::string (*identity)(const Entry& entry)) {
    CatalogueFile<Entry> file;
    if (text.starts_with("\xef\xbb\xbf")) text.remove_prefix(3);  // the byte order mark of spreadsheets
    const CsvLines csv = readCsv(text);
    if (csv.lines.empty() || csv.lines.front().values != namesOf(columns)) {
        const std::string header = csvLine(namesOf(columns));
        file.problems.push_back("line 1: the columns must be " + header.substr(0, header.size() - 1));
    }
    std::set<std::string> seen;
    for (std::size_t i = 1; i < csv.lines.size(); ++i) {
        const auto& [number, values] = csv.lines[i];
        if (values.size() != size) {
            file.problems.push_back("line " + std::to_string(number) + ": " + std::to_string(values.size()) +
                                    " values, not " + std::to_string(size));
            continue;
        }
        Entry entry;
        for (std::size_t k = 0; k < size; ++k) {
            if (!columns[k].isGood(values[k]))
                file.problems.push_back(problem(number, columns[k].name, values[k], columns[k].wanted));
            entry.*columns[k].value = values[k];
        }
        if (!seen.insert(identity(entry)).second)
            file.problems.push_back(problem(number, columns[0].name, values[0], "comes twice"));
        file.entries.push_back(std::move(entry));
    }
    if (csv.badLine) file.problems.push_back("line " + std::to_string(*csv.badLine) + ": wrong double quotes");
    if (!file.problems.empty()) file.entries.clear();
    return file;
}

template <class Entry, std::size_t size>
std::string write(std::span<const Entry> entries, const std::array<Column<Entry>, size>& columns) {
    std::string text = csvLine(namesOf(columns));
    for (const Entry& entry : entries) {
        std::vector<std::string> values;
        for (const auto& column : columns) values.push_back(entry.*column.value);
        text += csvLine(values);
    }
    return text;
}

}  // namespace

CatalogueFile<Net> readNets(std::string_view text) {
    return read<Net>(text, netColumns, [](const Net& net) { return net.id; });
}

CatalogueFile<Station> readStations(std::string_view text) {
    return read<Station>(text, stationColumns,
                         [](const Station& station) { return station.callSign + ' ' + station.frequency; });
}

std::string writeNets(std::span<const Net> nets) { return write(nets, netColumns); }
std::string writeStations(std::span<const Station> stations) { return write(stations, stationColumns); }

}  // namespace corvane::directory

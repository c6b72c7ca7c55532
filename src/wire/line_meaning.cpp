#include "wire/line_meaning.h"

#include <fmt/core.h>

#include <optional>

#include "wire/line_phrases.h"
#include "wire/operating_modes.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

using Form = LinePhrase::Form;

constexpr std::string_view unreadable = "not readable";

bool isPrintable(char c) { return c >= ' ' && c <= '~'; }

// The row whose name begins the text, the longest of several; no name is longer than four characters.
const LinePhrase* phraseOf(std::string_view text) {
    for (std::size_t length = std::min<std::size_t>(4, text.size()); length > 0; --length) {
        const auto row = std::ranges::lower_bound(linePhrases, text.substr(0, length), {}, &LinePhrase::name);
        if (row != linePhrases.end() && row->name == text.substr(0, length)) return &*row;
    }
    return nullptr;
}

std::optional<int> digits(std::string_view text) {
    return text.find_first_not_of("0123456789") == std::string_view::npos ? decimal(text) : std::nullopt;
}

std::optional<std::string> entry(std::string_view entries, std::optional<int> number) {
    if (!number) return std::nullopt;
    for (int skipped = 0; skipped < *number; ++skipped) {
        const std::size_t end = entries.find('|');
        if (end == std::string_view::npos) return std::nullopt;
        entries.remove_prefix(end + 1);
    }
    return std::string(entries.substr(0, entries.find('|')));
}

// "014250000" gives "14.250.000 MHz".
std::optional<std::string> frequency(std::string_view nine) {
    const auto hertz = nine.size() == 9 ? digits(nine) : std::nullopt;
    if (!hertz) return std::nullopt;
    return fmt::format("{}.{}.{} MHz", decimalOrZero(nine.substr(0, 3)), nine.substr(3, 3), nine.substr(6, 3));
}

// "014155000+012010200000": frequency, clarifier (5), on for receiving, on for transmitting, mode ...
std::optional<std::string> tuning(std::string_view record) {
    const auto hertz = frequency(record.substr(0, 9));
    const auto mode = modeName(record[16]);
    return hertz && mode ? std::optional(*hertz + ", " + std::string(*mode)) : std::nullopt;
}

std::string quoted(std::string_view text) { return '"' + printable(text) + '"'; }

std::optional<std::string> withUnit(std::optional<std::string> value, std::string_view unit) {
    if (value && !unit.empty()) value->append(" ").append(unit);
    return value;
}

std::optional<std::string> valueOf(const LinePhrase& row, std::string_view value) {
    switch (row.form) {
        case Form::number:
            if (const auto number = digits(value)) return withUnit(std::to_string(*number), row.detail);
            return std::nullopt;
        case Form::signedText:
            return withUnit(std::string(value), row.detail);
        case Form::choice:
        case Form::state:
            return entry(row.detail, digits(value));
        case Form::first:
            return entry(row.detail, digits(value.substr(0, 1)));
        case Form::frequency:
            return frequency(value);
        case Form::mode:
            if (const auto mode = modeName(value[0])) return std::string(*mode);
            return std::nullopt;
        case Form::record:
            return tuning(lastOf(value, 22));
        case Form::text:
            return quoted(value);
        case Form::tag:
            return quoted(trimmed(value.substr(1)));
        case Form::code:
            return "code " + std::string(row.width == 5 ? value.substr(0, 1) : value);
        case Form::meter:
            if (const auto level = digits(value.substr(0, 3))) return std::to_string(*level);
            return std::nullopt;
        case Form::action:
            break;
    }
    return std::nullopt;
}

// "IF" and "OI" name a memory channel before the frequency, "000" for none.
std::string channelOfSide(const LinePhrase& row, std::string_view value) {
    if (row.form != Form::record || row.index > 0 || value.starts_with("000")) return {};
    return ", memory " + std::string(value.substr(0, 3));
}

std::string meaning(const LinePhrase& row, std::string_view rest, LineDirection direction) {
    if (row.form == Form::action) return std::string(rest.empty() ? row.detail : unreadable);
    if (rest.size() < row.index) return std::string(unreadable);
    std::string noun(row.noun);
    if (row.index > 0) {
        const auto number = digits(rest.substr(0, row.index));
        if (!number) return std::string(unreadable);
        noun += row.index == 6 ? fmt::format(" {:06}", *number) : fmt::format(" {}", *number);
    }
    const std::string_view value = rest.substr(row.index);
    if (value.empty() && direction == LineDirection::sent)
        return row.noun.empty() ? std::string(unreadable) : "asks for " + noun;
    const bool fits = row.width == 0 ? row.form == Form::text || !value.empty() : value.size() == row.width;
    // An empty channel has no mode either.
    if (fits && direction == LineDirection::sent && row.form == Form::record && value.starts_with("000000000"))
        return "empties " + noun;
    const auto shown = fits ? valueOf(row, value) : std::nullopt;
    if (!shown) return std::string(unreadable);
    if (row.form == Form::state) return *shown;
    return (direction == LineDirection::sent ? "sets " + noun + " to " : noun + " is ") + *shown +
           channelOfSide(row, value);
}

}  // namespace

std::string lineMeaning(std::string_view text, LineDirection direction) {
    if (!text.ends_with(';')) return "not ended";
    text.remove_suffix(1);
    if (!std::ranges::all_of(text, isPrintable)) return std::string(unreadable);
    const LinePhrase* row = phraseOf(text);
    return row ? meaning(*row, text.substr(row->name.size()), direction) : "unknown";
}

std::string printable(std::string_view bytes) {
    std::string shown;
    for (const char c : bytes) {
        if (isPrintable(c))
            shown += c;
        else
            shown += fmt::format("\\x{:02X}", static_cast<unsigned>(static_cast<unsigned char>(c)));
    }
    return shown;
}

}  // namespace corvane

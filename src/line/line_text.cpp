#include "line/line_text.h"

#include <fmt/core.h>

namespace corvane {

namespace {

struct Moment {
    std::chrono::year_month_day day;
    std::chrono::hh_mm_ss<std::chrono::milliseconds> time;

    explicit Moment(std::chrono::system_clock::time_point at)
        : day(std::chrono::floor<std::chrono::days>(at)),
          time(std::chrono::floor<std::chrono::milliseconds>(at - std::chrono::floor<std::chrono::days>(at))) {}

    std::string clock() const {
        return fmt::format("{:02}:{:02}:{:02}.{:03}", time.hours().count(), time.minutes().count(),
                           time.seconds().count(), time.subseconds().count());
    }
};

}  // namespace

LineText lineText(const RecordedLine& line) {
    LineText text{Moment(line.at).clock(),
                  line.direction == LineDirection::sent ? "sent" : "received",
                  printable(line.text()),
                  {}};
    if (line.whole()) {
        text.meaning = lineMeaning(line.text(), line.direction);
    } else {
        text.bytes += "\u2026";
        text.meaning = fmt::format("too long: {} bytes", line.size);
    }
    return text;
}

std::string fileLine(const RecordedLine& line) {
    const LineText text = lineText(line);
    return fmt::format("{}  {:8}  {}  {}\n", timeStamp(line.at), text.direction, text.bytes, text.meaning);
}

std::string timeStamp(std::chrono::system_clock::time_point at) {
    const Moment moment(at);
    return fmt::format("{:04}-{:02}-{:02}T{}Z", static_cast<int>(moment.day.year()),
                       static_cast<unsigned>(moment.day.month()), static_cast<unsigned>(moment.day.day()),
                       moment.clock());
}

}  // namespace corvane

// The part of the traffic that is looked at: filtered, perhaps paused. It costs nothing until it is asked to look.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "line/line_text.h"
#include "radio/line_record.h"

namespace corvane {

class LineView {
public:
    explicit LineView(LineRecord& record) : record_(record) {}

    // Shows only the lines that contain all these words in any of their columns, whatever their case.
    void setFilter(std::string_view words);
    void hideMeter(bool hidden);
    // While paused it shows what was there then, also once the record has forgotten it.
    void pause(bool paused);
    bool paused() const { return held_.has_value(); }
    // Forgets what has been recorded, also what is shown while paused.
    void clear();

    // Takes in what has been recorded since the last call. First `removed` rows go at the top, then `added` come at
    // the bottom. `anew`: all rows are others.
    struct Change {
        std::size_t removed = 0;
        std::size_t added = 0;
        bool anew = false;

        bool operator==(const Change&) const = default;
    };
    Change look();

    std::size_t rows() const { return shown_.size(); }
    const RecordedLine& row(std::size_t index) const { return source()[shown_[index]]; }
    std::size_t lines() const { return static_cast<std::size_t>(source().end() - source().begin()); }
    std::size_t newer() const;  // lines recorded since the pause began, at most as many as are kept

private:
    const LineRecord& source() const { return held_ ? *held_ : record_; }
    bool shows(const RecordedLine& line) const;
    void lookAnew() { anew_ = true; }

    LineRecord& record_;
    std::optional<LineRecord> held_;  // while paused
    std::vector<std::string> words_;  // in upper case
    bool meterHidden_ = false;
    bool anew_ = true;
    LineRecord::Number seen_ = 0;           // those before have been looked at
    std::deque<LineRecord::Number> shown_;  // as of the last look
};

}  // namespace corvane

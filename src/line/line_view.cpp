#include "line/line_view.h"

#include <algorithm>
#include <utility>

#include "wire/letter_case.h"

namespace corvane {

void LineView::setFilter(std::string_view words) {
    words_.clear();
    std::string word;
    for (const char c : upperCase(words) + ' ') {
        if (c != ' ')
            word += c;
        else if (!word.empty())
            words_.push_back(std::exchange(word, {}));
    }
    lookAnew();
}

void LineView::hideMeter(bool hidden) {
    meterHidden_ = hidden;
    lookAnew();
}

void LineView::pause(bool paused) {
    if (paused == held_.has_value()) return;
    if (paused)
        held_ = record_;
    else
        held_.reset();
}

void LineView::clear() {
    record_.clear();
    if (held_) held_->clear();
}

bool LineView::shows(const RecordedLine& line) const {
    if (meterHidden_ && line.text().starts_with("RM")) return false;
    if (words_.empty()) return true;
    const LineText text = lineText(line);
    const std::string all = upperCase(text.time + ' ' + text.direction + ' ' + text.bytes + ' ' + text.meaning);
    return std::ranges::all_of(words_, [&all](const std::string& word) { return all.find(word) != std::string::npos; });
}

LineView::Change LineView::look() {
    const LineRecord& lines = source();
    Change change;
    change.anew = std::exchange(anew_, false);
    if (change.anew) {
        shown_.clear();
        seen_ = lines.begin();
    }
    while (!shown_.empty() && shown_.front() < lines.begin()) {
        shown_.pop_front();
        ++change.removed;
    }
    for (seen_ = std::max(seen_, lines.begin()); seen_ < lines.end(); ++seen_) {
        if (!shows(lines[seen_])) continue;
        shown_.push_back(seen_);
        ++change.added;
    }
    return change;
}

std::size_t LineView::newer() const {
    if (!held_) return 0;
    return static_cast<std::size_t>(record_.end() - std::max(held_->end(), record_.begin()));
}

}  // namespace corvane

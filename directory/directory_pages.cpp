#include "directory_pages.h"

#include <algorithm>
#include <map>

namespace corvane::directory {

namespace {

constexpr std::string_view not_ = "no";
constexpr std::string_view has = "yes";

struct Meeting {
    Net net;
    Seconds starts;
};

std::vector<Meeting> meetings(std::vector<Net> nets, Seconds now) {
    std::vector<Meeting> meetings;
    for (Net& net : nets) {
        const auto schedule = scheduleOf(net.utc, net.days);
        if (schedule) meetings.push_back({std::move(net), nextSession(*schedule, now)});
    }
    std::ranges::stable_sort(meetings, {}, &Meeting::starts);
    return meetings;
}

}  // namespace

void appendTagged(std::string& line, std::string_view tag, std::string_view value) {
    line.append(1, '<').append(tag).append(1, '>');
    for (const char c : value) {
        if (c == '<')
            line += "\u2039";
        else if (c == '>')
            line += "\u203a";
        else
            line += static_cast<unsigned char>(c) < ' ' || c == '\x7f' ? ' ' : c;
    }
    line.append("</").append(tag).append(1, '>');
}

Page stationsPage(const std::vector<Station>& stations) {
    std::string text;
    for (const Station& station : stations) {
        appendTagged(text, "Station", station.callSign);
        appendTagged(text, "Frequency", station.frequency);
        appendTagged(text, "City", station.city);
        appendTagged(text, "Power", station.power);
        appendTagged(text, "URL", station.url);
        text += '\n';
    }
    return std::make_shared<const std::string>(std::move(text));
}

NetsPage::NetsPage(std::vector<Net> nets, const std::vector<SessionCount>& counts, Seconds now) {
    std::map<std::pair<std::string_view, Seconds>, int> confirmed;
    for (const SessionCount& count : counts) confirmed[{count.net, count.starts}] = count.confirmed;
    std::string text;
    for (const auto& [net, starts] : meetings(std::move(nets), now)) {
        const auto count = confirmed.find({net.id, starts});
        Row row{starts, count == confirmed.end() ? 0 : count->second, 0};
        appendTagged(text, "NetName", net.name);
        appendTagged(text, "Frequency", net.frequency);
        appendTagged(text, "UTC", net.days == "daily" ? net.utc : net.utc + ' ' + net.days);
        appendTagged(text, "Mode", net.mode);
        appendTagged(text, "URL", net.url);
        row.state = text.size() + std::string_view("<Confirmed>").size();
        appendTagged(text, "Confirmed", std::string(not_) + " (" + std::to_string(row.confirmed) + ')');
        appendTagged(text, "NetID", net.id);
        text += '\n';
        rowOfNet_.emplace(net.id, rows_.size());
        rows_.push_back(row);
        validUntil_ = std::min(validUntil_, starts + sessionLength);
    }
    text_ = std::make_shared<const std::string>(std::move(text));
}

Page NetsPage::with(const std::vector<Confirmation>& confirmations) const {
    std::vector<std::size_t> states;
    for (const Confirmation& confirmation : confirmations) {
        const auto found = rowOfNet_.find(confirmation.net);
        if (found == rowOfNet_.end() || rows_[found->second].starts != confirmation.starts) continue;
        states.push_back(rows_[found->second].state);
    }
    if (states.empty()) return text_;
    std::ranges::sort(states);
    std::string text;
    text.reserve(text_->size() + states.size());
    std::size_t from = 0;
    for (const std::size_t state : states) {
        text.append(*text_, from, state - from).append(has);
        from = state + not_.size();
    }
    text.append(*text_, from);
    return std::make_shared<const std::string>(std::move(text));
}

}  // namespace corvane::directory

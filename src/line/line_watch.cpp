#include "line/line_watch.h"

#include <fmt/core.h>

#include <utility>

#include "line/report.h"

namespace corvane {

namespace {

constexpr std::string_view kind = "Text files (*.txt)";

std::string counted(std::size_t lines) { return fmt::format("{} line{}", lines, lines == 1 ? "" : "s"); }

}  // namespace

LineWatch::LineWatch(Display& display, Link& link, const Surroundings& surroundings)
    : display_(display), link_(link), around_(surroundings), tasks_(surroundings.scheduler), view_(link.record()) {
    showCount();
}

LineView::Change LineWatch::look() {
    const LineView::Change change = view_.look();
    showCount();
    return change;
}

void LineWatch::showCount() {
    std::string text = view_.rows() == view_.lines() ? counted(view_.lines())
                                                     : fmt::format("{} of {}", view_.rows(), counted(view_.lines()));
    if (view_.paused()) text += fmt::format(", paused, {} newer", view_.newer());
    display_.lineCountField.setStringValue(text);
}

void LineWatch::filter(TextField& sender) {
    view_.setFilter(sender.stringValue());
    onChoice();
}

void LineWatch::hideMeter(MenuItem& sender) {
    sender.setChecked(!sender.checked());
    view_.hideMeter(sender.checked());
    onChoice();
}

void LineWatch::pause(Button& sender) {
    view_.pause(!view_.paused());
    sender.setTitle(view_.paused() ? "Go on" : "Pause");
    sender.setBezelColor(view_.paused() ? Color::blue : Color::none);
    display_.announcements.say(view_.paused() ? "Traffic paused" : "Traffic goes on");
    onChoice();
}

void LineWatch::clear(Button&) {
    view_.clear();
    display_.announcements.say("Traffic cleared");
    onChoice();
}

std::string LineWatch::shownLines() {
    onChoice();  // what is in the window is what is taken
    view_.look();
    std::string text;
    for (std::size_t row = 0; row < view_.rows(); ++row) text += fileLine(view_.row(row));
    return text;
}

void LineWatch::copy(Button&) {
    around_.clipboard.setText(shownLines());
    display_.announcements.say(counted(view_.rows()) + " copied");
}

void LineWatch::save(Button&) { saveText("The traffic", "corvane-traffic.txt", shownLines()); }

void LineWatch::saveReport(Button&) {
    const auto& port = link_.serialPort();
    const ReportedPort reported{port ? port->name() : std::string(), port ? port->details() : std::string(),
                                display_.linkStatusField.stringValue(), display_.linkMessageField.stringValue()};
    saveText("The report", "corvane-report.txt",
             reportText(facts(), reported, around_.settings, link_.record(), tasks_.now()));
}

// The file holds what there was when the key was pressed.
void LineWatch::saveText(std::string_view what, std::string_view name, std::string text) {
    const auto write = [this, subject = std::string(what), contents = std::move(text)](const std::string& path) {
        const SavedFile file = around_.files.write(path, contents);
        if (!file.error.empty())
            return around_.alerts.warn(subject + " was not saved\n\n" + file.path + ": " + file.error);
        display_.announcements.say("Saved to " + file.path);
    };
    around_.files.chooseNew("Save", kind, name, tasks_.guarded(write));
}

}  // namespace corvane

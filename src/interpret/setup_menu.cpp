#include "interpret/setup_menu.h"

#include "interpret/menu_groups.h"
#include "interpret/menu_values.h"
#include "interpret/menu_writes.h"
#include "wire/wire_text.h"

namespace corvane {

using namespace std::chrono_literals;

namespace {

constexpr auto patience = 2s;  // without a response

// Where a number that a run leaves out has its place among entries; nothing for one outside the run, or written in
// another way.
std::optional<int> placeOf(std::string_view value, const NumberRun& run, const EntryTitles& entries) {
    const auto number = decimal(value);
    if (!number || *number < run.first || *number > run.last) return {};
    if (NumberRun{*number, *number, 1, run.digits, run.sign}.at(0) != value) return {};
    int place = 0;
    while (place < entries.size() && decimal(entries.at(place)).value_or(*number) < *number) ++place;
    return place;
}

// The window shows what the transceiver holds, also a number between two entries. Gives whether the value is shown.
bool selectTitle(PopUpButton& popUp, const MenuItemRow& row, const std::string& value) {
    const auto run = numberRun(row.entries);
    if (!popUp.titles().indexOf(value) && run)
        if (const auto place = placeOf(value, *run, popUp.titles())) popUp.insertItem(*place, value);
    const auto index = popUp.titles().indexOf(value);
    if (index) popUp.selectItem(*index);
    return index.has_value();
}

bool selectIndex(PopUpButton& popUp, std::string_view value) {
    const auto index = decimal(value);
    if (!index || *index < 0 || *index >= popUp.titles().size()) return false;
    popUp.selectItem(*index);
    return true;
}

}  // namespace

SetupMenu::SetupMenu(Display& display, Link& link, SettingsStore& settings, Scheduler& scheduler)
    : display_(display), link_(link), settings_(settings), tasks_(scheduler) {}

void SetupMenu::fillMenuPopUp(int first, int last, int step, int tag, int digits, int page, int defaultNumber) {
    PopUpButton* popUp = display_.menu.popUp(page, tag);
    if (!popUp) return;
    const NumberRun numbers{first * step, last * step, step, digits};
    popUp->setEntries(numbers);
    popUp->setItemImage(defaultNumber - first, Image::NSImageNameStatusPartiallyAvailable);
    popUp->selectItemWithTitle(NumberRun{defaultNumber, defaultNumber, 1, digits}.at(0));
}

void SetupMenu::fillMenuPopUps() {
    const bool again = filled_;
    for (const MenuItemRow& row : menuItems) {
        if (!row.hasDefault()) continue;
        const NumberRun numbers = *numberRun(row.entries);
        PopUpButton* popUp = display_.menu.popUp(row.page(), row.tag());
        const std::string selected = popUp ? popUp->titleOfSelectedItem() : std::string{};
        fillMenuPopUp(numbers.first / numbers.step, numbers.last / numbers.step, numbers.step, row.tag(),
                      numbers.digits, row.page(), row.defaultNumber);
        if (again && popUp && !selectTitle(*popUp, row, selected)) popUp->selectItem(PopUpButton::noSelection);
    }
    filled_ = true;
}

void SetupMenu::takeMenuItem(std::string_view response) {
    const auto report = menuReport(response);
    if (!report) return;
    const auto& [row, value] = *report;
    if (row->take == MenuTake::text) takeCallSign(value);
    bool shown = row->take == MenuTake::text;
    if (PopUpButton* popUp = display_.menu.popUp(row->page(), row->tag())) {
        if (row->take == MenuTake::title) shown = selectTitle(*popUp, *row, std::string(value));
        if (row->take == MenuTake::index) shown = selectIndex(*popUp, value);
    }
    if (read_.takeAnswer(*row, shown)) showReadProgress();
}

bool SetupMenu::takeRefusal() {
    if (!read_.takeRefusal()) return false;
    showReadProgress();
    return true;
}

void SetupMenu::takeCallSign(std::string_view value) {
    vqCall_ = trimmed(value);
    settings_.setText("call", vqCall_);
    display_.callTextField.setStringValue(vqCall_);
}

std::string SetupMenu::readGroup(const MenuGroup& group) {
    startRead(group);
    link_.sendCommand(group.before);
    for (int subMenu = group.firstSubMenu(); subMenu < group.lastSubMenu(); ++subMenu)
        link_.sendCommand(subMenuRequest(subMenu));
    std::string last = subMenuRequest(group.lastSubMenu());
    if (!group.after.empty()) {
        link_.sendCommand(last);
        last = group.after;
    }
    if (group.lastTwice) link_.sendCommand(last);
    return last;
}

void SetupMenu::startRead(const MenuGroup& group) {
    if (!link_.isOpen()) return;
    const MenuGroupRead next(group, read_.number() + 1);
    if (next.page() != read_.page()) endRead(": stopped, another group is being read.");
    read_ = next;
    showReadProgress();
    watchRead();
}

void SetupMenu::endRead(std::string_view problem) {
    if (!read_.running()) return;
    read_.stop();
    showReadProgress(problem);
}

void SetupMenu::showReadProgress(std::string_view problem) {
    LevelIndicator& progress = display_.menu.readProgress(read_.page());
    progress.setVisible(read_.running());
    progress.setIntegerValue(read_.percent());
    display_.menu.readField(read_.page()).setStringValue(read_.text() + std::string(problem));
    if (!read_.running()) display_.announcements.say(read_.text() + std::string(problem));
}

// The read ends when no response has come for `patience`.
void SetupMenu::watchRead() {
    tasks_.after(patience, [this, handled = read_.handled(), number = read_.number()] {
        if (number != read_.number() || !read_.running()) return;
        if (handled == read_.handled()) return endRead(": no answer. Read again to ask once more.");
        watchRead();
    });
}

// A tag without an item must not send the previous command again.
void SetupMenu::writeMenuItem(PopUpButton& sender) {
    const MenuItemRow* row = menuItem(sender.tag() - menuTagBase);
    if (!row) return;
    link_.send(menuSetCommand(*row, sender.indexOfSelectedItem(), sender.titleOfSelectedItem()));
}

}  // namespace corvane

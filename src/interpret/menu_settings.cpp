// The transceiver's setup menu: filling its pop-ups, what the transceiver reports of it, and how far a read of a group
// is.
#include "controller/serial_port_demo_controller.h"
#include "interpret/menu_groups.h"
#include "interpret/menu_values.h"
#include "wire/wire_text.h"

namespace corvane {

using namespace std::chrono_literals;

namespace {

constexpr auto patience = 2s;  // without an answer

}  // namespace

void SerialPortDemoController::fillMenuPopUp(int first, int last, int step, int tag, int digits, int page,
                                             int defaultNumber) {
    PopUpButton* popUp = display.menu.popUp(page, tag);
    if (!popUp) return;
    const NumberRun numbers{first * step, last * step, step, digits};
    popUp->setEntries(numbers);
    popUp->setItemImage(defaultNumber - first, Image::NSImageNameStatusPartiallyAvailable);
    popUp->selectItemWithTitle(NumberRun{defaultNumber, defaultNumber, 1, digits}.at(0));
}

// What the transceiver reported, or the operator chose, outlasts another filling.
void SerialPortDemoController::fillMenuPopUps() {
    const bool again = menuRead.filled;
    for (const MenuItemRow& row : menuItems) {
        if (!row.hasDefault()) continue;
        const NumberRun numbers = *numberRun(row.entries);
        PopUpButton* popUp = display.menu.popUp(row.page(), row.tag());
        const int selected = popUp ? popUp->indexOfSelectedItem() : PopUpButton::noSelection;
        fillMenuPopUp(numbers.first / numbers.step, numbers.last / numbers.step, numbers.step, row.tag(),
                      numbers.digits, row.page(), row.defaultNumber);
        if (again && popUp) popUp->selectItem(selected);
    }
    menuRead.filled = true;
}

void SerialPortDemoController::readMenuItem(std::string_view response) {
    const auto report = menuReport(response);
    if (!report) return;
    const auto& [row, value] = *report;
    if (row->read == MenuRead::text) readCallSign(value);
    if (PopUpButton* popUp = display.menu.popUp(row->page(), row->tag())) {
        if (row->read == MenuRead::title) popUp->selectItemWithTitle(value);
        if (const auto index = decimal(value);
            row->read == MenuRead::index && index && *index >= 0 && *index < popUp->titles().size())
            popUp->selectItem(*index);
    }
    if (menuRead.takeAnswer(*row)) showMenuReadProgress();
}

void SerialPortDemoController::readCallSign(std::string_view value) {
    radio.vqCall = trimmed(value);
    userDefaults.setText("call", radio.vqCall);
    display.callTextField.setStringValue(radio.vqCall);
}

void SerialPortDemoController::startMenuRead(const MenuGroup& group) {
    if (!link.serialPort || !link.serialPort->isOpen()) return;
    const int before = menuRead.page;
    if (menuRead.running() && before != group.page) menuReadEnded(": stopped, another group is being read.");
    menuRead.start(group);
    showMenuReadProgress();
    watchMenuRead();
}

void SerialPortDemoController::showMenuReadProgress(std::string_view problem) {
    LevelIndicator& progress = display.menu.readProgress(menuRead.page);
    progress.setVisible(menuRead.running());
    progress.setIntegerValue(menuRead.percent());
    display.menu.readField(menuRead.page).setStringValue(menuRead.text() + std::string(problem));
}

void SerialPortDemoController::menuReadEnded(std::string_view problem) {
    if (!menuRead.running()) return;
    menuRead.stop();
    showMenuReadProgress(problem);
}

// Once the answers have stopped coming the read has ended.
void SerialPortDemoController::watchMenuRead() {
    later(patience, [this, handled = menuRead.handled(), number = menuRead.number] {
        if (number != menuRead.number || !menuRead.running()) return;
        if (handled == menuRead.handled()) return menuReadEnded(": no answer. Read again to ask once more.");
        watchMenuRead();
    });
}

}  // namespace corvane

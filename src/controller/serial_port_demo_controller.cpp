#include "controller/serial_port_demo_controller.h"

#include <utility>

namespace corvane {

SerialPortDemoController::SerialPortDemoController(const Platform& platform, ServiceHosts hosts)
    : serialPortManager(platform.serialPortManager),
      userDefaults(platform.settings),
      synth(platform.speech),
      platform_(platform),
      hosts_(std::move(hosts)) {
    bindControls();
    std::vector<std::string> memoryTitles;
    for (int row = 0; row < memoryChannels; ++row)
        memoryTitles.push_back(memoryPopUpTitle(row, memories.vqMemArray[static_cast<std::size_t>(row)]));
    display.memPopUpButton.setEntries(std::move(memoryTitles));
    display.readMemoriesButton.setEnabled(false);
    display.licenseClassButton.setVisible(false);
    disableTextMemoryControls();
    setActiveVfo(radio.vqAorB);
    showLinkStatus();
    serialPortManager.setObserver(this);
}

SerialPortDemoController::~SerialPortDemoController() {
    serialPortManager.setObserver(nullptr);
    // The window may have gone before: nobody is left to show what the port says of its closing.
    if (const auto port = std::exchange(link.serialPort, nullptr)) {
        port->setDelegate(nullptr);
        port->close();
    }
}

void SerialPortDemoController::awakeFromNib() {
    if (preferences.vqPortChecked == 1) return;
    fillPortPopUp();
    restoreSettings();
    const bool remembered = !userDefaults.text("defaultPort").value_or("").empty();
    if (!link.serialPort && !remembered) setSerialPort(serialPortManager.suggestedPort());
}

void SerialPortDemoController::bindControls() {
    for (const FrontPanelKey& row : frontPanelKeys) {
        Button& key = display.key(row.outlet.tag);
        key.action = [this](Button& sender) { go(sender); };
        // There is nothing yet that the keys of the on-line lists could refresh.
        if (row.panel == KeyPanel::lists) key.setEnabled(false);
    }
    display.sendButton.action = [this](Button& sender) { sendBox(sender); };
    display.sendTextField.action = [this](TextField& sender) { returnPressedInTextField(sender); };
    display.openCloseButton.action = [this](Button& sender) { openOrClosePort(sender); };
    display.PortPopUpButton.action = [this](PopUpButton& sender) { choosePort(sender); };
    display.BaudPopUpButton.action = [this](PopUpButton& sender) { chooseBaudRate(sender); };
    display.readMemoriesButton.action = [this](Button& sender) { getMemoriesFromRadio(sender); };
    for (const PreferenceSwitch& row : preferenceSwitches)
        (display.*row.item).action = [this](MenuItem& sender) { goMainMenu(sender); };
}

void SerialPortDemoController::later(Scheduler::Duration delay, std::function<void()> task) {
    platform_.scheduler.after(delay, [alive = std::weak_ptr(alive_), run = std::move(task)] {
        if (!alive.expired()) run();
    });
}

}  // namespace corvane

#include "controller/serial_port_demo_controller.h"

#include <array>
#include <utility>

#include "controls/text_messages.h"
#include "feeds/feed_table.h"

namespace corvane {

SerialPortDemoController::SerialPortDemoController(const Platform& platform, ServiceHosts hosts)
    : serialPortManager(platform.serialPortManager),
      userDefaults(platform.settings),
      synth(platform.speech),
      platform_(platform),
      hosts_(std::move(hosts)),
      afGainPacer_(makePacer(display.afGainSlider)),
      rfGainPacer_(makePacer(display.rfGainSlider)) {
    bindControls();
    bindPopUps();
    bindEntries();
    bindTables();
    bindLists();
    fillPresetPopUp();
    showMemoryChannels();
    setMemoryKeysEnabled(false);
    display.memoryReadField.setStringValue("Not read yet");
    showWhereChannelsAreSaved();
    display.licenseClassButton.setVisible(false);
    disableTextMemoryControls();
    setActiveVfo(radio.vqAorB);
    showLinkStatus();
    serialPortManager.setObserver(this);
    userDefaults.onProblem = [this] { showSettingsProblem(); };
}

CommandPacer SerialPortDemoController::makePacer(Slider& slider) {
    return {[this](std::string command) { sendBuilt(std::move(command)); },
            [this](Scheduler::Duration delay, std::function<void()> task) { later(delay, std::move(task)); },
            [&slider] { slider.endMove(); }};
}

SerialPortDemoController::~SerialPortDemoController() {
    serialPortManager.setObserver(nullptr);
    userDefaults.onProblem = nullptr;
    // The window may have gone before: nobody is left to show what the port says of its closing.
    if (const auto port = std::exchange(link.serialPort, nullptr)) {
        port->setDelegate(nullptr);
        port->close();
    }
}

void SerialPortDemoController::awakeFromNib() {
    if (preferences.vqPortChecked != 1) restoreFirstTime();
    // A port may have appeared, and the settings been restored, before the window was there.
    if (std::exchange(link.vqTimerStarted, 1) == 1) return;
    fetchBandConditions();
    autoMemorySample();
}

void SerialPortDemoController::restoreFirstTime() {
    fillPortPopUp();
    restoreSettings();
    const bool remembered = !userDefaults.text("defaultPort").value_or("").empty();
    if (!link.serialPort && !remembered) setSerialPort(serialPortManager.suggestedPort());
    showSettingsProblem();
}

void SerialPortDemoController::showSettingsProblem() {
    const std::string problem = userDefaults.problem();
    if (problem.empty()) return;
    platform_.log.line(problem);
    showLinkMessage(problem);
}

void SerialPortDemoController::bindControls() {
    for (const FrontPanelKey& row : frontPanelKeys)
        display.key(row.outlet.tag).action = [this](Button& sender) { go(sender); };
    display.sendButton.action = [this](Button& sender) { sendBox(sender); };
    display.sendTextField.action = [this](TextField& sender) { returnPressedInTextField(sender); };
    display.openCloseButton.action = [this](Button& sender) { openOrClosePort(sender); };
    display.PortPopUpButton.action = [this](PopUpButton& sender) { choosePort(sender); };
    display.BaudPopUpButton.action = [this](PopUpButton& sender) { chooseBaudRate(sender); };
    display.readMemoriesButton.action = [this](Button& sender) { getMemoriesFromRadio(sender); };
    display.writeMemoriesButton.action = [this](Button& sender) { askBeforeWriting(sender); };
    display.autoMemoryNowButton.action = [this](Button& sender) { autoMemoryNow(sender); };
    for (const PreferenceSwitch& row : preferenceSwitches)
        (display.*row.item).action = [this](MenuItem& sender) { goMainMenu(sender); };
}

void SerialPortDemoController::bindPopUps() {
    using Controller = SerialPortDemoController;
    struct Row {
        PopUpButton Display::*popUp;
        void (Controller::*action)(PopUpButton& sender);
    };
    static constexpr std::array rows{
        Row{&Display::presetPopUpButton, &Controller::goMacro},
        Row{&Display::modesPopUpButton, &Controller::goMode},
        Row{&Display::memPopUpButton, &Controller::goMemory},
        Row{&Display::colorPopUpButton, &Controller::goColor},
        Row{&Display::spectrumModePopUpButton, &Controller::goSpectrumMode},
        Row{&Display::smeterPopUpButton, &Controller::goSmeter},
        Row{&Display::ampPopUpButton, &Controller::goAmp},
        Row{&Display::AGCPopUpButton, &Controller::goAGC},
        Row{&Display::ATTPopUpButton, &Controller::goATT},
        Row{&Display::RFILPopUpButton, &Controller::goRFIL},
        Row{&Display::DNRPopupButton, &Controller::goDNR},
        Row{&Display::NBPopupButton, &Controller::goNB},
        Row{&Display::FuncKnobButton, &Controller::goFunctionKnob},
        Row{&Display::MPVDButton, &Controller::goMPVD},
        Row{&Display::scopeSpeedPopUpButton, &Controller::goSuperPopUp},
        Row{&Display::scopePeakPopUpButton, &Controller::goSuperPopUp},
        Row{&Display::scopeLevelPopUpButton, &Controller::goSuperPopUp},
        Row{&Display::scopeSpanPopUpButton, &Controller::goSuperPopUp},
        Row{&Display::APOPopUpButton, &Controller::goSuperPopUp},
        Row{&Display::powerPopUpButton, &Controller::goSuperPopUp},
    };
    for (const Row& row : rows)
        (display.*row.popUp).action = [this, act = row.action](PopUpButton& sender) { (this->*act)(sender); };
    display.menu.forEachPopUp([this](const MenuItemRow& row, PopUpButton& popUp) {
        if (row.write != MenuWrite::none) popUp.action = [this](PopUpButton& sender) { goSuperPopUp(sender); };
    });
    display.afGainSlider.action = [this](Slider& sender) { goAF(sender); };
    display.rfGainSlider.action = [this](Slider& sender) { goRF(sender); };
    display.autoMemSquelchSlider.action = [this](Slider& sender) { goAutoMemSquelch(sender); };
}

void SerialPortDemoController::bindEntries() {
    display.tuneButton.action = [this](Button& sender) { doTune(sender); };
    display.freqTextField.action = [this](TextField& sender) { returnPressedInFreqField(sender); };

    // A text that the transceiver cannot hold is refused while it is typed, and is not sent.
    const auto refuseIn = [this](TextField& typed, TextField& notice) {
        typed.onEdit = [this, &notice](TextField& field) { acceptsText(field, notice); };
    };
    refuseIn(display.callTextField, display.callNoticeField);
    display.callTextField.action = [this](TextField& sender) { returnPressedInCallField(sender); };
    display.saveCallButton.action = [this](Button& sender) {
        if (acceptsText(display.callTextField, display.callNoticeField)) doCall(sender);
    };
    refuseIn(display.textMemoryField, display.textMemoryNoticeField);
    display.textMemoryField.action = [this](TextField& sender) { returnPressedInTextMessageField(sender); };
    display.sendTextMemoryButton.action = [this](Button& sender) {
        if (acceptsText(display.textMemoryField, display.textMemoryNoticeField)) sendTextMessage(sender);
    };
    display.clearTextMemoryButton.action = [this](Button&) { clearTextMessage(); };
    for (const auto& [popUp, text] : {std::pair{&display.cwMemoryPopUpButton, &display.cwMemoryField},
                                      std::pair{&display.rttyMemoryPopUpButton, &display.rttyMemoryField},
                                      std::pair{&display.pskMemoryPopUpButton, &display.pskMemoryField}}) {
        refuseIn(*text, display.memoryTextNoticeField);
        text->setMaximumLength(static_cast<int>(textPieceLength));
        popUp->action = [this, text = text](PopUpButton& sender) {
            if (acceptsText(*text, display.memoryTextNoticeField)) goSuperPopUp(sender);
        };
    }
}

void SerialPortDemoController::bindLists() {
    for (std::size_t i = 0; i < feedCount; ++i)
        feedRefreshes_.emplace_back(platform_.http, [this](Scheduler::Duration delay, std::function<void()> task) {
            later(delay, std::move(task));
        });
}

void SerialPortDemoController::later(Scheduler::Duration delay, std::function<void()> task) {
    platform_.scheduler.after(delay, [alive = std::weak_ptr(alive_), run = std::move(task)] {
        if (!alive.expired()) run();
    });
}

}  // namespace corvane

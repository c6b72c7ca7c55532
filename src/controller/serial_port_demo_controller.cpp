#include "controller/serial_port_demo_controller.h"

#include <array>
#include <utility>

#include "controls/text_messages.h"
#include "display/table_columns.h"
#include "feeds/feed_table.h"
#include "memories/table_cells.h"

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
    display.autoMemsTableTuneButton.action = [this](Button& sender) { goAutoMemsTune(sender); };
    display.autoMemsTableClearButton.action = [this](Button& sender) { goAutoMemsClear(sender); };
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

void SerialPortDemoController::bindTables() {
    display.memoriesTable.rowCount = [] { return memoryChannels; };
    display.memoriesTable.text = [this](int row, int column) {
        return memoriesTableCell(memories.vqMemArray, row, column);
    };
    display.autoMemTable.rowCount = [this] { return static_cast<int>(autoMemories.vqAutoMemoryArray.size()); };
    display.autoMemTable.text = [this](int row, int column) { return autoMemTableCell(autoMemories, row, column); };
    display.autoMemTable.onPress = [this](int row, int column) {
        Button& cell =
            column == autoMemTableTuneColumn ? display.autoMemsTableTuneButton : display.autoMemsTableClearButton;
        cell.setTag(row);
        cell.performClick();
    };
}

void SerialPortDemoController::bindLists() {
    for (std::size_t i = 0; i < feedCount; ++i)
        feedRefreshes_.emplace_back(platform_.http, [this](Scheduler::Duration delay, std::function<void()> task) {
            later(delay, std::move(task));
        });
    for (const ListFeed& row : listFeeds) {
        TableView& table = display.*row.table;
        table.rowCount = [this, &row] { return static_cast<int>((feeds.*row.list).size()); };
        table.text = [this, &row, &table](int index, int column) {
            const TableColumn& shown = table.columns()[static_cast<std::size_t>(column)];
            if (shown.kind == TableColumn::Kind::button) return std::string(shown.title);
            return feedCell(row.cells, shown.identifier, (feeds.*row.list)[static_cast<std::size_t>(index)]);
        };
        table.onPress = [this, &row](int index, int column) {
            const bool directory = row.feed == Feed::nets;
            Button& button = directory && column == netsTableConfirmColumn     ? display.netsTableConfirmButton
                             : directory && column == netsTableUnconfirmColumn ? display.netsTableUnconfirmButton
                                                                               : display.*row.tuneButton;
            button.setTag(index);
            button.performClick();
        };
    }
    display.potaTableTuneButton.action = [this](Button& sender) { goPotaTune(sender); };
    display.sotaTableTuneButton.action = [this](Button& sender) { goSotaTune(sender); };
    display.netLoggerTableTuneButton.action = [this](Button& sender) { goNetLoggerTune(sender); };
    display.netsTableTuneButton.action = [this](Button& sender) { goNetsTune(sender); };
    display.netsTableConfirmButton.action = [this](Button& sender) { goNetsConfirm(sender); };
    display.netsTableUnconfirmButton.action = [this](Button& sender) { goNetsUnconfirm(sender); };
    display.mwTableTuneButton.action = [this](Button& sender) { goMWTune(sender); };
}

void SerialPortDemoController::later(Scheduler::Duration delay, std::function<void()> task) {
    platform_.scheduler.after(delay, [alive = std::weak_ptr(alive_), run = std::move(task)] {
        if (!alive.expired()) run();
    });
}

}  // namespace corvane

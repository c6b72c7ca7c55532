// What each control does.
#include <array>
#include <utility>

#include "controller/cell_views.h"
#include "controller/serial_port_demo_controller.h"
#include "controls/sendable_text.h"
#include "display/spoken_state.h"
#include "feeds/feed_table.h"

namespace corvane {

void SerialPortDemoController::bindControls() {
    for (const FrontPanelKey& row : frontPanelKeys)
        display.key(row.outlet.tag).action = [this](Button& sender) { go(sender); };
    display.sendButton.action = [this](Button& sender) { sendBox(sender); };
    display.sendTextField.action = [this](TextField& sender) { returnPressedInTextField(sender); };
    display.sayStateButton.action = [this](Button&) { speak(spokenState(display)); };
    display.openCloseButton.action = [this](Button& sender) { openOrClosePort(sender); };
    display.PortPopUpButton.action = [this](PopUpButton& sender) { link.choosePort(sender); };
    display.BaudPopUpButton.action = [this](PopUpButton& sender) { link.chooseBaudRate(sender); };
    display.readMemoriesButton.action = [this](Button& sender) { getMemoriesFromRadio(sender); };
    display.writeMemoriesButton.action = [this](Button&) { memories.askBeforeWriting(); };
    display.exportMemoriesButton.action = [this](Button& sender) { memories.exportMemories(sender); };
    display.importMemoriesButton.action = [this](Button& sender) { memories.importMemories(sender); };
    display.sharePortField.action = [this](TextField& sender) { rigctlServer.choosePort(sender); };
    display.virtualPortCopyButton.action = [this](Button&) { virtualPort.copyPath(); };
    display.lineFilterField.onEdit = [this](TextField& sender) { lineWatch.filter(sender); };
    display.lineMeterSwitch.action = [this](MenuItem& sender) { lineWatch.hideMeter(sender); };
    display.linePauseButton.action = [this](Button& sender) { lineWatch.pause(sender); };
    display.lineClearButton.action = [this](Button& sender) { lineWatch.clear(sender); };
    display.lineCopyButton.action = [this](Button& sender) { lineWatch.copy(sender); };
    display.lineSaveButton.action = [this](Button& sender) { lineWatch.save(sender); };
    display.lineReportButton.action = [this](Button& sender) { lineWatch.saveReport(sender); };
    display.autoMemoryNowButton.action = [this](Button& sender) { autoMemoryNow(sender); };
    display.ownClassPopUpButton.action = [this](PopUpButton& sender) {
        bandMap.chooseClass(sender);
        onAir.follow();
    };
    display.onAirTimeOutPopUpButton.action = [this](PopUpButton& sender) { onAir.chooseTimeOut(sender); };
    display.readOutBandButton.action = [this](Button& sender) { bandMap.readOutBand(sender); };
    for (const FilterChip& row : filterChips)
        display.chip(row.chip).action = [this, chip = row.chip](MenuItem&) { spotFilter.press(chip); };
    display.refreshEveryPopUpButton.action = [this](PopUpButton& sender) { standingRefresh.chooseInterval(sender); };
    display.watchField.action = [this](TextField& sender) { watch(sender); };
    display.watchAddButton.action = [this](Button&) { watch(display.watchField); };
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
    const auto refuseIn = [](TextField& typed, TextField& notice) {
        typed.onEdit = [&notice](TextField& field) { acceptsText(field, notice); };
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
    display.clearTextMemoryButton.action = [this](Button&) { keyer.clearTextMessage(); };
    for (const auto& [popUp, text] : {std::pair{&display.cwMemoryPopUpButton, &display.cwMemoryField},
                                      std::pair{&display.rttyMemoryPopUpButton, &display.rttyMemoryField},
                                      std::pair{&display.pskMemoryPopUpButton, &display.pskMemoryField}}) {
        refuseIn(*text, display.memoryTextNoticeField);
        popUp->action = [this, text = text](PopUpButton& sender) {
            if (!acceptsText(*text, display.memoryTextNoticeField)) return sender.takeBack();  // nothing was stored
            goSuperPopUp(sender);
        };
    }
}

void SerialPortDemoController::bindTables() {
    for (TableView* table : {&display.memoriesTable, &display.autoMemTable, &display.shareTable, &display.watchTable,
                             &display.watchListTable})
        table->setDataSource(*this);
    for (const ListFeed& row : listFeeds) (display.*row.table).setDataSource(*this);
    const auto bind = [this](const auto& cellViews) {
        for (const auto& row : cellViews) {
            auto& control = display.*row.control;
            (display.*row.table).setCellControl(row.column, control);
            control.action = [this, act = row.action](auto& sender) { (this->*act)(sender); };
        }
    };
    bind(buttonCellViews);
    bind(popUpCellViews);
    bind(textCellViews);
    // After each of these an operator who does not look waits for the frequency.
    const auto sayTuningAfter = [this](auto& control) {
        control.action = [this, act = std::move(control.action)](auto& sender) {
            act(sender);
            display.announcements.sayTuning();
        };
    };
    for (const auto& row : buttonCellViews)
        if (row.column.starts_with("tune")) sayTuningAfter(display.*row.control);
    sayTuningAfter(display.presetPopUpButton);
    sayTuningAfter(display.memPopUpButton);
}

}  // namespace corvane

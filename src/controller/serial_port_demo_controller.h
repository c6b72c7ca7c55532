// The face of Corvane: it owns the rooms and wires them, and has one operation under the established name of each
// action, call from a port or a table, and timer. The window and the tests use these names.
//
// This header is an index. The contract of an operation is in the header of its room. The controller itself does this:
//   the action of each control           controller/bindings.cpp
//   the room that takes a response       controller/response_table.cpp
//   the room of a front-panel key        controller/go.cpp
//   start, restoring, and the tables     controller/serial_port_demo_controller.cpp
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "activity/list_order.h"
#include "activity/spot_filter.h"
#include "activity/standing_refresh.h"
#include "activity/watching.h"
#include "app/preferences.h"
#include "app/service_hosts.h"
#include "app/voice.h"
#include "band_map/band_map.h"
#include "controls/entry_fields.h"
#include "controls/front_panel.h"
#include "controls/function_pop_ups.h"
#include "controls/keyer.h"
#include "controls/operator_class_button.h"
#include "controls/power_off.h"
#include "controls/preset_pop_up.h"
#include "display/display.h"
#include "feeds/check_ins.h"
#include "feeds/conditions.h"
#include "feeds/lists.h"
#include "interpret/mirror.h"
#include "interpret/setup_menu.h"
#include "line/line_watch.h"
#include "memories/auto_memories.h"
#include "memories/memory_channels.h"
#include "on_air/on_air.h"
#include "platform/platform.h"
#include "radio/link.h"
#include "share/rigctl_server.h"
#include "share/shared_transceiver.h"
#include "share/virtual_port.h"

namespace corvane {

class SerialPortDemoController final : public ORSSerialPortDelegate,
                                       public SerialPortsObserver,
                                       public TableViewDataSource {
public:
    SerialPortDemoController(const Platform& platform, ServiceHosts serviceHosts);
    ~SerialPortDemoController() override;
    void awakeFromNib();     // the window is made: restores the settings, the first time only
    void restoreSettings();  // restores what is kept between runs
    void goMainMenu(MenuItem& sender);
    // Kept between runs. False for what is no address of a web server, see ServiceHosts.
    bool setDirectoryServer(std::string_view server);
    void showHelp() { platform_.browser.open(hosts.helpPage()); }

    // --- app: what is heard
    void speak(std::string_view text) { voice.speak(text); }
    void playSound(std::string_view name) { voice.playSound(name); }
    void playSystemSound(std::string_view name) { voice.playSystemSound(name); }

    // --- radio: the link
    void sendCommand(std::string_view commands) { link.sendCommand(commands); }
    void writeString(std::string_view commands) { link.writeString(commands); }
    void sendBox(Button& sender) { link.sendBox(sender); }
    void returnPressedInTextField(TextField& sender) { link.returnPressedInTextField(sender); }
    void setSerialPort(std::shared_ptr<ORSSerialPort> port) { link.setSerialPort(std::move(port)); }
    void openOrClosePort(Button& sender) { link.openOrClosePort(sender); }
    void serialPortWasOpened(ORSSerialPort& port) override { link.serialPortWasOpened(port); }
    void serialPortWasClosed(ORSSerialPort& port) override { link.serialPortWasClosed(port); }
    void serialPortWasRemovedFromSystem(ORSSerialPort& port) override { link.serialPortWasRemovedFromSystem(port); }
    void serialPortDidEncounterError(ORSSerialPort& port, const SerialPortError& error) override {
        link.serialPortDidEncounterError(port, error);
    }
    void serialPortDidStall(ORSSerialPort& port, bool stalled) override { link.serialPortDidStall(port, stalled); }
    void serialPortsWereConnected(const SerialPorts& ports) override;  // also restores the settings again
    void serialPortsWereDisconnected(const SerialPorts& ports) override { link.serialPortsWereDisconnected(ports); }
    void serialPortDidReceiveData(ORSSerialPort& port, std::string_view bytes) override;
    void interpretResponses(std::string_view text);  // every response in one chunk

    // --- interpret: the mirror, the setup menu
    void highlightBand(int frequency) { mirror.highlightBand(frequency); }  // hertz
    void clearBandButtons() { mirror.clearBandButtons(); }
    void enableTextMemoryControls() { mirror.enableTextMemoryControls(); }
    void disableTextMemoryControls() { mirror.disableTextMemoryControls(); }
    void fillMenuPopUp(int first, int last, int step, int tag, int digits, int page, int defaultNumber) {
        setupMenu.fillMenuPopUp(first, last, step, tag, digits, page, defaultNumber);
    }

    // --- controls
    void go(Button& sender);                 // a key of the front panel
    void goSuperPopUp(PopUpButton& sender);  // setup menu, scope, power, power-off, memory editors, by the tag
    void stepFrequency(std::string_view direction, int step) { frontPanel.stepFrequency(direction, step); }
    void showOperatorClass(std::string_view megahertz) { operatorClassButton.showOperatorClass(megahertz); }
    void doTune(Button& sender) { entryFields.doTune(sender); }
    void doCall(Button& sender) { entryFields.doCall(sender); }
    void returnPressedInFreqField(TextField& sender) { entryFields.returnPressedInFreqField(sender); }
    void returnPressedInCallField(TextField& sender) { entryFields.returnPressedInCallField(sender); }
    void goMacro(PopUpButton& sender) { presetPopUp.goMacro(sender); }
    void goMode(PopUpButton& sender) { functionPopUps.goMode(sender); }
    void goMemory(PopUpButton& sender) { functionPopUps.goMemory(sender); }
    void goColor(PopUpButton& sender) { functionPopUps.goColor(sender); }
    void goSpectrumMode(PopUpButton& sender) { functionPopUps.goSpectrumMode(sender); }
    void goSmeter(PopUpButton& sender) { functionPopUps.goSmeter(sender); }
    void goAmp(PopUpButton& sender) { functionPopUps.goAmp(sender); }
    void goAGC(PopUpButton& sender) { functionPopUps.goAGC(sender); }
    void goATT(PopUpButton& sender) { functionPopUps.goATT(sender); }
    void goRFIL(PopUpButton& sender) { functionPopUps.goRFIL(sender); }
    void goDNR(PopUpButton& sender) { functionPopUps.goDNR(sender); }
    void goNB(PopUpButton& sender) { functionPopUps.goNB(sender); }
    void goFunctionKnob(PopUpButton& sender) { functionPopUps.goFunctionKnob(sender); }
    void goMPVD(PopUpButton& sender) { functionPopUps.goMPVD(sender); }
    void goAF(Slider& sender) { functionPopUps.goAF(sender); }
    void goRF(Slider& sender) { functionPopUps.goRF(sender); }
    void autoPowerOff() { powerOff.autoPowerOff(); }
    void sendTextMessage(Button& sender) { keyer.sendTextMessage(sender); }
    void returnPressedInTextMessageField(TextField& sender) { keyer.returnPressedInTextMessageField(sender); }

    // --- memories
    void getMemoriesFromRadio(Button&) { memories.startMemoryRead(); }
    void writeMemoriesToRadio(Button&) { memories.writeMemoriesToRadio(); }
    void textEdited(TextField& sender) { memories.textEdited(sender); }
    void modeEdited(PopUpButton& sender) { memories.modeEdited(sender); }
    void autoMemorySample() { autoMemories.autoMemorySample(); }
    void autoMemoryNow(Button& sender) { autoMemories.autoMemoryNow(sender); }
    void goAutoMemsTune(Button& sender) { autoMemories.goAutoMemsTune(sender); }
    void goAutoMemsClear(Button& sender) { autoMemories.goAutoMemsClear(sender); }
    void autoNoteEdited(TextField& sender) { autoMemories.autoNoteEdited(sender); }
    void goAutoMemSquelch(Slider& sender) { autoMemories.goAutoMemSquelch(sender); }
    void applyAutoMemSquelch(int index) { autoMemories.applyAutoMemSquelch(index); }

    // --- feeds
    void fetchPotaSpots() { lists.fetch(Feed::pota); }
    void fetchSotaSpots() { lists.fetch(Feed::sota); }
    void fetchNetLoggerNets() { lists.fetch(Feed::netLogger); }
    void fetchNets() { lists.fetch(Feed::nets); }
    void fetchMWStations() { lists.fetch(Feed::mediumWave); }
    void fetchBandConditions() { conditions.fetch(); }
    void goPotaTune(Button& sender) { lists.goPotaTune(sender); }
    void goSotaTune(Button& sender) { lists.goSotaTune(sender); }
    void goNetLoggerTune(Button& sender) { lists.goNetLoggerTune(sender); }
    void goNetsTune(Button& sender) { lists.goNetsTune(sender); }
    void goMWTune(Button& sender) { lists.goMWTune(sender); }
    void goNetsConfirm(Button& sender) { checkIns.goNetsConfirm(sender); }
    void goNetsUnconfirm(Button& sender) { checkIns.goNetsUnconfirm(sender); }

    // --- share: other programs
    void goWatchTune(Button& sender) { watching.goWatchTune(sender); }
    void goWatchRemove(Button& sender);
    void goShareDisconnect(Button& sender) { rigctlServer.disconnect(sender); }

    // --- tables: their data source
    int numberOfRows(const TableView& table) const override;
    TableCell viewFor(const TableView& table, int row, int column) const override;
    void openLink(std::string_view address) override { platform_.browser.open(address); }
    std::optional<int> acceptDrop(TableView& table, std::string_view plainText, int row) override;
    bool mouseDownInHeader(TableView& table, int column) override;
    std::vector<int> rowOrder(const TableView& table) const override;

private:
    void wire();  // connects the callbacks of the rooms
    void bindControls();
    void bindPopUps();
    void bindEntries();
    void bindTables();
    void showSettingsProblem();
    void applyPreferences();  // tells the rooms
    void watch(TextField& sender);
    bool isWatchTable(const TableView& table) const;

    Platform platform_;

public:
    ORSSerialPortManager& serialPortManager = platform_.serialPortManager;
    SettingsStore& userDefaults = platform_.settings;
    ServiceHosts hosts;

    // The rooms; each may use only those above it in this list.
    Display display;
    Preferences preferences;
    Voice voice;
    Link link;
    LineWatch lineWatch;
    Mirror mirror;
    SetupMenu setupMenu;
    OperatorClassButton operatorClassButton;
    FrontPanel frontPanel;
    FunctionPopUps functionPopUps;
    PresetPopUp presetPopUp;
    EntryFields entryFields;
    Keyer keyer;
    PowerOff powerOff;
    MemoryChannels memories;
    AutoMemories autoMemories;
    Lists lists;
    SpotFilter spotFilter;
    ListOrder listOrder;
    StandingRefresh standingRefresh;
    Watching watching;
    CheckIns checkIns;
    Conditions conditions;
    SharedTransceiver sharedTransceiver;
    OnAir onAir;
    RigctlServer rigctlServer;
    VirtualPort virtualPort;
    BandMap bandMap;

private:
    int vqPortChecked = 0;   // 1 once the settings have been restored
    int vqTimerStarted = 0;  // 1 once the sampler of auto memories has been started
};

}  // namespace corvane

// The face of Corvane: every operation of the program, and the state that they share.
//
// This header is an index; the bodies are in the rooms:
//   controller           making it, and what each control does    controller/serial_port_demo_controller.cpp
//   sending              what leaves for the transceiver          radio/send_path.cpp
//   receiving            what comes from it, and who gets it      radio/receive_path.cpp
//   ports                choosing, opening, coming and going      radio/serial_ports.cpp
//   session              the steps after a port opened            radio/session_start.cpp
//   frequency and mode   FA FB MC IF OI MD VS                     interpret/frequency_responses.cpp
//   operating state      meters, gains, switches, texts           interpret/operating_state_responses.cpp
//   menu settings        EX: the transceiver's setup menu         interpret/menu_settings.cpp
//   front panel          the keys                                 controls/front_panel.cpp
//   entry fields         a typed frequency, the call sign         controls/entry_fields.cpp
//   presets              frequencies in one step                  controls/preset_pop_up.cpp
//   functions            the function pop-ups and sliders         controls/function_pop_ups.cpp, menu_writes.cpp
//   power-off            switching off after a while              controls/automatic_power_off.cpp
//   keyer                texts on the air                         controls/keyer.cpp
//   operator class       what may be done on a frequency          controls/operator_class.cpp
//   memories             the memory channels                      memories/memory_{read,write,import}.cpp
//   memory table         editing, moving and sorting its rows     memories/memory_table.cpp
//   auto memories        frequencies where a signal was heard     memories/auto_memories.cpp
//   tables               what the seven tables show               controller/tables.cpp
//   on-line lists        fetching them                            feeds/feed_refreshes.cpp
//   listed stations      tuning to a row, check-ins               feeds/tune_actions.cpp
//   settings             what is kept between runs                app/settings_restore.cpp
//   voice and sounds     what is heard, and the help page         app/voice_and_sounds.cpp
#pragma once

#include <array>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "app/preferences.h"
#include "app/service_hosts.h"
#include "controls/command_pacer.h"
#include "controls/power_off_state.h"
#include "display/display.h"
#include "feeds/feed_refresh.h"
#include "feeds/feed_state.h"
#include "interpret/menu_read_state.h"
#include "interpret/radio_state.h"
#include "memories/auto_memory_state.h"
#include "memories/memory_state.h"
#include "platform/platform.h"
#include "radio/link_state.h"

namespace corvane {

enum class Feed : int;
struct BandConditions;
struct ImportedChannel;
struct MemoryReply;
struct MenuGroup;
struct ModeGroup;

class SerialPortDemoController final : public ORSSerialPortDelegate,
                                       public SerialPortsObserver,
                                       public TableViewDataSource {
public:
    // --- controller: controller/serial_port_demo_controller.cpp
    SerialPortDemoController(const Platform& platform, ServiceHosts hosts);
    ~SerialPortDemoController() override;
    void awakeFromNib();  // the window is there: restores the settings, the first time only

    // --- sending: radio/send_path.cpp
    void sendCommand(std::string_view commands);       // one write for each command in the text
    void writeString(std::string_view commands);       // the whole text in one write
    void sendBox(Button& sender);                      // what is typed in the raw-command box
    void returnPressedInTextField(TextField& sender);  // Return in the raw-command box

    // --- receiving: radio/receive_path.cpp
    void serialPortDidReceiveData(ORSSerialPort& port, std::string_view bytes) override;
    void interpretResponses(std::string_view text);  // every response in one chunk

    // --- ports: radio/serial_ports.cpp
    void setSerialPort(std::shared_ptr<ORSSerialPort> port);  // makes it, or none, the current port
    void choosePort(PopUpButton& sender);
    void chooseBaudRate(PopUpButton& sender);
    void openOrClosePort(Button& sender);
    void serialPortWasOpened(ORSSerialPort& port) override;
    void serialPortWasClosed(ORSSerialPort& port) override;
    void serialPortWasRemovedFromSystem(ORSSerialPort& port) override;
    void serialPortDidEncounterError(ORSSerialPort& port, const SerialPortError& error) override;
    void serialPortsWereConnected(const SerialPorts& ports) override;
    void serialPortsWereDisconnected(const SerialPorts& ports) override;
    bool userNotificationCenterShouldPresentNotification() const;  // notices show while the program is in front, too
    void userNotificationCenterDidDeliverNotification(NotificationId id);

    // --- session: radio/session_start.cpp
    void startSession();

    // --- frequency and mode: interpret/frequency_responses.cpp
    void readFrequencyA(std::string_view response);           // "FA014250000"
    void readFrequencyB(std::string_view response);           // "FB007074000"
    void readMemoryChannel(std::string_view response);        // "MC006"
    void readInformation(std::string_view response);          // "IF000014155000+012010200000", side A
    void readOppositeInformation(std::string_view response);  // the same with "OI", side B
    void readMode(std::string_view response);                 // "MD02"
    void readVfoASelected(std::string_view response);         // "VS0"
    void readVfoBSelected(std::string_view response);         // "VS1"
    void highlightBand(int frequency);                        // hertz
    void clearBandButtons();
    void enableTextMemoryControls();
    void disableTextMemoryControls();
    void setActiveVfo(std::string_view vfo);  // "A" or "B"

    // --- operating state: interpret/operating_state_responses.cpp
    void readKeyerMemory(std::string_view response);           // "KM2CQ CQ DE N0CALL"
    void readTextMemory(std::string_view response);            // "EM15TEXT"
    void readPreAmplifier(std::string_view response);          // "PA01"
    void readNoiseBlankerLevel(std::string_view response);     // "NL0005"
    void readNoiseReductionLevel(std::string_view response);   // "RL012"
    void readAgc(std::string_view response);                   // "GT04"
    void readAttenuator(std::string_view response);            // "RA00"
    void readMeter(std::string_view response);                 // "RM1100000"
    void readAFGain(std::string_view response);                // "AG0128"
    void readRFGain(std::string_view response);                // "RG0255"
    void readMeterSelection(std::string_view response);        // "MS50"
    void readPower(std::string_view response);                 // "PC050"
    void readMultiKnob(std::string_view response);             // "SF03"
    void readFunctionKnob(std::string_view response);          // "SF1H"
    void readScopeSpeed(std::string_view response);            // "SS0010000"
    void readScopePeak(std::string_view response);             // "SS0120000"
    void readScopeColor(std::string_view response);            // "SS03A0000"
    void readScopeLevel(std::string_view response);            // "SS04+10.5"
    void readScopeSpan(std::string_view response);             // "SS0570000"
    void readSpectrumMode(std::string_view response);          // "SS06B0000"
    void readSwitchedOff(std::string_view response);           // "PS0"
    void readNoiseReductionSwitch(std::string_view response);  // "NR01"
    void readNoiseBlankerSwitch(std::string_view response);    // "NB01"
    void readSwitch(std::string_view response);                // "BC01", "CO000001", "BP00001", "BI1"

    // --- menu settings: interpret/menu_settings.cpp
    // Fills a pop-up of the setup menu with the numbers index * step, e.g. (0, 100, 1, 2010115, 3, 0, 50) "000" to
    // "100".
    void fillMenuPopUp(int first, int last, int step, int tag, int digits, int page, int defaultNumber);
    void readMenuItem(std::string_view response);  // "EX0101040250"

    // --- front panel: controls/front_panel.cpp
    void go(Button& sender);                                   // dispatches on the sender's tag
    void stepFrequency(std::string_view direction, int step);  // "up" or "down", hertz

    // --- entry fields: controls/entry_fields.cpp
    void doTune(Button& sender);  // tunes the active VFO to the typed frequency
    void doCall(Button& sender);  // writes the typed call sign into the transceiver's menu
    void returnPressedInFreqField(TextField& sender);
    void returnPressedInCallField(TextField& sender);

    // --- presets: controls/preset_pop_up.cpp
    void goMacro(PopUpButton& sender);

    // --- functions: controls/function_pop_ups.cpp
    void goMode(PopUpButton& sender);
    void goMemory(PopUpButton& sender);
    void goColor(PopUpButton& sender);
    void goSpectrumMode(PopUpButton& sender);
    void goSmeter(PopUpButton& sender);
    void goAmp(PopUpButton& sender);
    void goAGC(PopUpButton& sender);
    void goATT(PopUpButton& sender);
    void goRFIL(PopUpButton& sender);
    void goDNR(PopUpButton& sender);
    void goNB(PopUpButton& sender);
    void goFunctionKnob(PopUpButton& sender);
    void goMPVD(PopUpButton& sender);
    void goAF(Slider& sender);
    void goRF(Slider& sender);
    void goSuperPopUp(PopUpButton& sender);  // setup menu, scope, power, power-off, memory editors, by the tag

    // --- power-off: controls/automatic_power_off.cpp
    void autoPowerOff();

    // --- keyer: controls/keyer.cpp
    void sendTextMessage(Button& sender);  // transmits the typed text through memory 5
    void returnPressedInTextMessageField(TextField& sender);

    // --- operator class: controls/operator_class.cpp
    void showOperatorClass(std::string_view megahertz);  // "14.250000"

    // --- memories: memories/memory_read.cpp, memories/memory_write.cpp, memories/memory_import.cpp
    void getMemoriesFromRadio(Button& sender);
    void startMemoryRead();
    void readMemoryReply(std::string_view response);  // "MR001014250000+000000210000"
    void readTagReply(std::string_view response);     // "MT0011CALLING     "
    void askBeforeWriting(Button& sender);
    void writeMemoriesToRadio(Button& sender);
    bool canTakeChannels() const;
    void takeImportedChannels(const MemoryTable& shown, std::span<const ImportedChannel> channels);

    // --- memory table: memories/memory_table.cpp
    void textEdited(TextField& sender);  // in the cell where the sender is
    void modeEdited(PopUpButton& sender);
    std::optional<int> acceptDrop(TableView& table, std::string_view plainText, int row) override;
    bool mouseDownInHeader(TableView& table, int column) override;

    // --- auto memories: memories/auto_memories.cpp
    void autoMemorySample();
    void autoMemoryNow(Button& sender);
    void goAutoMemsTune(Button& sender);     // the sender's tag is the row
    void goAutoMemsClear(Button& sender);    // the sender's tag is the row
    void autoNoteEdited(TextField& sender);  // in the cell where the sender is
    void goAutoMemSquelch(Slider& sender);
    void applyAutoMemSquelch(int index);

    // --- tables: controller/tables.cpp
    int numberOfRows(const TableView& table) const override;
    TableCell viewFor(const TableView& table, int row, int column) const override;
    void openLink(std::string_view address) override;

    // --- on-line lists: feeds/feed_refreshes.cpp
    void fetchPotaSpots();
    void fetchSotaSpots();
    void fetchNetLoggerNets();
    void fetchNets();
    void fetchMWStations();
    void fetchBandConditions();
    void fetchLists();  // the five lists, in the order of the start

    // --- listed stations: feeds/tune_actions.cpp; the sender's tag is the row
    void goPotaTune(Button& sender);
    void goSotaTune(Button& sender);
    void goNetLoggerTune(Button& sender);
    void goNetsTune(Button& sender);
    void goMWTune(Button& sender);
    void goNetsConfirm(Button& sender);
    void goNetsUnconfirm(Button& sender);

    // --- settings: app/settings_restore.cpp
    void restoreSettings();
    void goMainMenu(MenuItem& sender);

    // --- voice and sounds: app/voice_and_sounds.cpp
    void speak(std::string_view text);
    void playSound(std::string_view name);
    void playSystemSound(std::string_view name);
    void showHelp();

    // What the program uses of its surroundings.
    ORSSerialPortManager& serialPortManager;
    SettingsStore& userDefaults;
    SpeechSynthesizer& synth;
    std::string synthVoice;  // empty: the default voice of the user's language

    // The shared state, each part with its room.
    Display display;
    LinkState link;
    RadioState radio;
    MenuReadState menuRead;
    MemoryState memories;
    AutoMemoryState autoMemories;
    PowerOffState powerOff;
    FeedState feeds;
    Preferences preferences;

private:
    void restoreFirstTime();
    void showSettingsProblem();
    void bindControls();
    void bindPopUps();
    void bindEntries();
    void bindTables();
    void later(Scheduler::Duration delay, std::function<void()> task);  // unless the controller has gone by then

    void fillPortPopUp();
    void showLinkStatus();
    void showLinkMessage(std::string_view message);
    void deliverNotice(std::string_view title, std::string_view portName, std::string_view what);
    void listPortsInLog(std::string_view what, const SerialPorts& ports);
    void afterOpening(Scheduler::Duration delay, std::function<void()> step);
    void setUpMemorySlots();
    void synchronise();

    struct Side;  // the fields and controls of VFO A or B
    Side side(char vfo);
    void readFrequency(std::string_view response, char vfo);
    void readSideInformation(std::string_view response, char vfo);
    void showMemoryText(int slot, std::string_view text, std::deque<Button>& familyButtons);

    void fillMenuPopUps();
    void readCallSign(std::string_view value);
    void startMenuRead(const MenuGroup& group);
    void showMenuReadProgress(std::string_view problem = {});
    void menuReadEnded(std::string_view problem);
    void watchMenuRead();

    CommandPacer makePacer(Slider& slider);
    void sendBuilt(std::string command);  // nothing for an empty one
    void fillPresetPopUp();
    void planPowerOff(int entry);
    void showActiveFrequency();
    bool acceptsText(const TextField& typed, TextField& notice);
    void showWarning(std::string_view message, std::string_view detail);

    struct MemoryEditor;
    static const MemoryEditor* memoryEditor(int tag);
    void writeMemoryText(PopUpButton& sender);
    void writeMenuItem(PopUpButton& sender);
    void rememberScratchMemory(const ModeGroup& family);
    void clearTextMessage();

    void requestMemory(std::string_view name, int channel);
    void takeChannel(const MemoryReply& reply);
    bool takeLateChannel(const MemoryReply& reply);
    void finishMemoryRead();
    void readMemoryInUse(std::string_view response);
    void showMemoryChannels();
    void showMemoryReadProgress(std::string_view problem = {});
    void watchMemoryRead();
    void memoryReadLostLink();
    void endMemoryRead();
    void endHaltedRead();
    bool saveMemoriesAsRead();
    void showWhereChannelsAreSaved();
    void setMemoryKeysEnabled(bool enabled);
    bool recordAutoMemory();
    void clearAutoMemories();
    void setAutoMemSquelch(int index);

    void bindLists();
    FeedRefresh& refreshOf(Feed feed);
    void fetchList(Feed feed, std::function<void()> then = {});
    void fetchConditions(std::function<void()> then = {});
    void showBandConditions(const BandConditions& conditions);
    void endRefresh(Feed feed);
    void tuneTo(std::string command, const std::string& name);
    void postConfirmation(const std::string& net, int action, std::function<void()> then);
    std::string operatorKey();

    // The kinds of keys; each says whether it built a command, which the common tail then sends.
    bool pressBandKey(Button& sender);
    bool pressModeKey(Button& sender);
    bool pressToggleKey(Button& sender);
    bool pressMuteKey(Button& sender);
    bool pressCommandKey(Button& sender);
    bool pressScopeColorKey(Button& sender);
    bool pressStepKey(Button& sender);
    bool pressSwapKey(Button& sender);
    bool pressPowerOnKey(Button& sender);
    bool pressPowerOffKey(Button& sender);
    bool pressVfoKey(Button& sender);
    bool pressMemoryKey(Button& sender);
    bool pressMemoryBKey(Button& sender);
    bool pressTextMemoryKey(Button& sender);
    bool pressClearLogKey(Button& sender);
    bool pressProductPageKey(Button& sender);
    bool pressReadMenuKey(Button& sender);
    bool pressClearAutoMemoriesKey(Button& sender);
    bool pressRefreshKey(Button& sender);
    void finishGo();  // the tail of every key: break-in on, then send what the key built

    Platform platform_;
    ServiceHosts hosts_;
    std::shared_ptr<const int> alive_ = std::make_shared<const int>(0);  // delayed tasks hold it weakly
    CommandPacer afGainPacer_;
    CommandPacer rfGainPacer_;
    std::deque<FeedRefresh> feedRefreshes_;  // by Feed
    // What is to be done when the refresh under way has ended, or the one that replaces it; by Feed.
    std::array<std::vector<std::function<void()>>, 6> feedEnds_;
};

}  // namespace corvane

// Every control of the window by its name: the interface file. Texts and entries stand here and in the tables beside
// it; where a control lies in the window is the shell's business.
#pragma once

#include <array>
#include <deque>
#include <span>
#include <string_view>

#include "display/announcements.h"
#include "display/box.h"
#include "display/button.h"
#include "display/control_list.h"
#include "display/filter_chips.h"
#include "display/front_panel_keys.h"
#include "display/level_indicator.h"
#include "display/menu_controls.h"
#include "display/menu_item.h"
#include "display/pop_up_button.h"
#include "display/slider.h"
#include "display/tab_view.h"
#include "display/table_view.h"
#include "display/text_field.h"

namespace corvane {

struct Display {
    static constexpr int stationPage = 0;
    static constexpr int radioPage = 1;
    static constexpr int keyerPage = 2;
    static constexpr int memoriesPage = 3;
    static constexpr int listsPage = 4;
    static constexpr int settingsPage = 5;
    static constexpr int bandMapPage = 7;                      // after the help page
    static constexpr int listsPages = 7;                       // five lists, the band conditions, what is watched
    static constexpr int watchPage = 6;                        // of the lists page
    static constexpr int settingsPages = MenuControls::pages;  // of the settings tab, one a menu group
    static constexpr int memories = 5;                         // of each mode group

    Display();

    // The key that had this tag at first, e.g. key(20) is m20Button; there must be one.
    Button& key(int firstTag) { return keys.at(frontPanelKeyIndex(firstTag)); }
    MenuItem& chip(Chip chip) { return chips.at(static_cast<std::size_t>(chip)); }
    // All controls. A new member need not be named elsewhere: it enters itself.
    std::span<Control* const> controls() const { return made.controls(); }
    // While the result lives, what the controls are set to is a report of the transceiver.
    [[nodiscard]] ControlList::Reporting report() { return ControlList::Reporting(made); }
    // The transceiver is out of reach: what it has reported is shown as last known until it is reported again.
    void keepAsLastKnown() { made.keepAsLastKnown(); }

    Announcements announcements;  // no control: it is not among the controls

private:
    ControlList made;            // before any control
    std::deque<Button> keys;     // in the order of frontPanelKeys
    std::deque<MenuItem> chips;  // in the order of filterChips

public:
    // --- pages
    TabView mainTab{{"mainTab", 0, "", "Pages"}};
    TabView settingsTab{{"settingsTab", 0, "", "Menu groups"}};

    // --- always in sight
    Button& vqFreqAButton = key(500);
    Button& vqFreqBButton = key(501);
    Button& vqMemAButton = key(502);
    // The frequency that side A or B receives on its memory channel, "14.250.000"; empty while the side is on its VFO.
    TextField channelFrequencyAField{
        {"channelFrequencyAField", 0, "Channel", "Memory channel of side A", "What the memory channel receives."}};
    TextField channelFrequencyBField{
        {"channelFrequencyBField", 0, "Channel", "Memory channel of side B", "What the memory channel receives."}};
    TextField activeVfoField{{"activeVfoField", 0, "", "Active VFO", "The VFO that receives and transmits."}};
    TextField modeField{{"modeField", 0, "", "Mode", "Operating mode, as the transceiver reports it."}};
    LevelIndicator sMeter{{"sMeter", 0, "S", "S-meter", "Strength of the received signal in S units."}, 10};
    TextField onAirField{{"onAirField", 0, "", "Transmitter", "Whether the transceiver transmits."}};
    TextField segmentField{{"segmentField", 0, "", "Transmit frequency",
                            "Whether the frequency to transmit on is in a segment of your operator class."}};
    Button licenseClassButton{
        {"licenseClassButton", 0, "", "Operator class", "Operator class allowed on this frequency."}};
    TextField linkStatusField{{"linkStatusField", 0, "", "Link", "Whether the transceiver is connected."}};
    Button sayStateButton{
        {"sayStateButton", 0, "Say the state", "Say the state",
         "Tell a screen reader the active VFO, its frequency, the mode, the meter and the operator class.", "Ctrl+I"}};
    TextField linkMessageField{{"linkMessageField", 0, "", "Message", "What went wrong, and what to do about it."}};

    // --- station page
    PopUpButton PortPopUpButton{{"PortPopUpButton", 0, "Port", "Serial port", "The serial port of the transceiver."}};
    PopUpButton BaudPopUpButton{
        {"BaudPopUpButton", 0, "Speed", "Speed in baud", "Speed of the serial port, in bits a second."}};
    TextField portDetailsField{{"portDetailsField", 0, "", "Port details", "The device on the chosen port."}};
    Button openCloseButton{
        {"openCloseButton", 0, "Connect", "Connect or disconnect", "Open the chosen port, or close it.", "Ctrl+O"}};
    TextField callTextField{{"callTextField", menuTagBase + callSignItem, "Call sign", "Call sign",
                             "Your call sign, up to 12 characters \u2014 Return saves it."}};
    Button saveCallButton{
        {"saveCallButton", 0, "Save", "Save the call sign", "Write the call sign into the transceiver's menu."}};
    TextField callNoticeField{{"callNoticeField", 0, "", "Call sign refused", "Why the call sign cannot be sent."}};
    TextField sendTextField{{"sendTextField", 0, "Command", "Command to send",
                             "CAT commands, for example FA; or MD02;FA014250000; \u2014 Return sends them.", "Ctrl+R"}};
    Button sendButton{{"sendButton", 0, "Send", "Send the command", "Send the typed commands to the transceiver."}};

    // --- station page: other programs
    MenuItem shareSwitch{{"shareSwitch", 910, "Share the transceiver with other programs", "Share the transceiver",
                          "Lets loggers, digital-mode programs and others on this computer use the transceiver."}};
    MenuItem shareTransmitSwitch{{"shareTransmitSwitch", 911, "Other programs may transmit",
                                  "Other programs may transmit",
                                  "Lets them key the transceiver, send Morse code and switch it off."}};
    TextField sharePortField{{"sharePortField", 0, "Port", "Port for other programs",
                              "TCP port, 1024 to 65535 \u2014 Return takes it. Others expect 4532."}};
    TextField shareAddressField{
        {"shareAddressField", 0, "", "Address for other programs", "What to type into the other program."}};
    TextField shareNoticeField{
        {"shareNoticeField", 0, "", "Other programs", "What other programs were refused, and what to do about it."}};
    TextField shareKeyedField{{"shareKeyedField", 0, "", "On the air", "Which program has keyed the transceiver."}};
    MenuItem shareStoreSwitch{{"shareStoreSwitch", 912, "Other programs may change memories and menus",
                               "Other programs may change memories and menus",
                               "Lets programs at the virtual port write memory channels, stored texts and the setup "
                               "menu."}};
    MenuItem virtualPortSwitch{{"virtualPortSwitch", 913, "Offer a virtual serial port", "Offer a virtual serial port",
                                "For programs that know only serial ports: they speak to the transceiver in its own "
                                "commands."}};
    TextField virtualPortField{
        {"virtualPortField", 0, "", "Virtual port", "The serial port to choose in the other program."}};
    Button virtualPortCopyButton{{"virtualPortCopyButton", 0, "Copy the path", "Copy the path of the virtual port",
                                  "Puts the path of the virtual port on the clipboard."}};
    TextField virtualPortStateField{{"virtualPortStateField", 0, "", "Use of the virtual port",
                                     "Whether a program has opened the virtual port, and transmits."}};
    TextField virtualPortNoticeField{{"virtualPortNoticeField", 0, "", "Virtual port refused",
                                      "What the program at the virtual port was refused, and what to do about it."}};
    TableView shareTable;
    Button shareTableDisconnectButton{
        {"shareTableDisconnectButton", 0, "Disconnect", "Disconnect this program",
         "Ends the connection. If the program has keyed the transceiver, that ends, too."}};

    // --- station page: the traffic on the line
    TextField lineFilterField{{"lineFilterField", 0, "Filter", "Filter of the traffic",
                               "Show only the lines that contain all these words, in bytes or meaning."}};
    MenuItem lineMeterSwitch{{"lineMeterSwitch", 0, "Hide the meter", "Hide the meter in the traffic",
                              "Leave out the reports of the S-meter, which come all the time."}};
    TextField lineCountField{{"lineCountField", 0, "", "Traffic", "How many lines are shown, of the last 10,000."}};
    Button linePauseButton{{"linePauseButton", 0, "Pause", "Pause the traffic",
                            "Hold what is shown, or go on. The traffic itself goes on in any case."}};
    Button lineClearButton{{"lineClearButton", 0, "Clear", "Clear the traffic", "Forget all lines of the traffic."}};
    Button lineCopyButton{
        {"lineCopyButton", 0, "Copy", "Copy the traffic", "Put the lines that are shown on the clipboard."}};
    Button lineSaveButton{
        {"lineSaveButton", 0, "Save\u2026", "Save the traffic", "Save the lines that are shown as a text file."}};
    Button lineReportButton{
        {"lineReportButton", 0, "Save a report\u2026", "Save a report",
         "Save versions, port, settings and the last traffic as one text file, to attach to a question. No key and no "
         "call sign of the settings stand in it."}};

    // --- radio page: bands and functions
    Button& m6Button = key(6);
    Button& m10Button = key(10);
    Button& m12Button = key(12);
    Button& m15Button = key(15);
    Button& m17Button = key(17);
    Button& m20Button = key(20);
    Button& m30Button = key(30);
    Button& m40Button = key(40);
    Button& m60Button = key(60);
    Button& m80Button = key(80);
    Button& m160Button = key(160);
    Button& mgenButton = key(161);
    Button& mmwButton = key(162);
    Button& dnfButton = key(228);
    Button& bkinButton = key(229);
    Button& notchButton = key(233);
    Button& contButton = key(234);
    Button& muteButton = key(610);
    TextField freqTextField{{"freqTextField", 0, "MHz", "Frequency in megahertz",
                             "Frequency of the active VFO in MHz, 0.03 to 75 \u2014 Return tunes to it.", "Ctrl+F"}};
    Button tuneButton{{"tuneButton", 0, "Tune", "Tune to the frequency",
                       "Tune the active VFO to the typed frequency, in USB from 10 MHz on and in LSB below."}};
    PopUpButton presetPopUpButton{
        {"presetPopUpButton", 0, "Presets", "Preset", "Go to a preset frequency with its mode and scope settings."}};

    // --- radio page: pop-ups and sliders
    PopUpButton modesPopUpButton{{"modesPopUpButton", 0, "Mode", "Mode", "Operating mode.", "Alt+M"}};
    PopUpButton memPopUpButton{{"memPopUpButton", 0, "Memory", "Memory channel", "Memory channel in use.", "Alt+N"}};
    PopUpButton AGCPopUpButton{{"AGCPopUpButton", 0, "AGC", "Automatic gain control",
                                "Automatic gain control: how fast it recovers.", "Alt+G"}};
    PopUpButton ATTPopUpButton{{"ATTPopUpButton", 0, "ATT", "Attenuator", "Attenuator before the receiver."}};
    PopUpButton ampPopUpButton{{"ampPopUpButton", 0, "IPO / AMP", "Pre-amplifier", "Pre-amplifier; IPO is none."}};
    PopUpButton RFILPopUpButton{
        {"RFILPopUpButton", 0, "Roofing", "Roofing filter", "Roofing filter before the receiver."}};
    PopUpButton DNRPopupButton{
        {"DNRPopupButton", 0, "DNR", "Noise reduction level", "Digital noise reduction, OFF or level 1 to 15."}};
    PopUpButton NBPopupButton{
        {"NBPopupButton", 0, "NB", "Noise blanker level", "Noise blanker, OFF or level 1 to 10."}};
    PopUpButton smeterPopUpButton{
        {"smeterPopUpButton", 0, "Meter", "Transmit meter", "What the meter shows while transmitting."}};
    PopUpButton MPVDButton{{"MPVDButton", 0, "MPVD", "Multi-purpose knob", "What the multi-purpose knob does."}};
    PopUpButton FuncKnobButton{{"FuncKnobButton", 0, "FUNC", "Function knob", "What the function knob does."}};
    PopUpButton powerPopUpButton{{"", 2007, "Power", "Transmit power", "Transmit power in watts."}};
    PopUpButton APOPopUpButton{
        {"APOPopUpButton", 2006, "Auto off", "Automatic power-off",
         "Switches the transceiver off after this time. A later choice does not put off an earlier one."}};
    PopUpButton colorPopUpButton{{"colorPopUpButton", 0, "Color", "Scope color", "Color of the scope display."}};
    PopUpButton spectrumModePopUpButton{
        {"spectrumModePopUpButton", 0, "Display", "Scope display", "Kind of the scope display."}};
    PopUpButton scopeSpeedPopUpButton{{"", 2000, "Speed", "Scope speed", "How fast the scope sweeps."}};
    PopUpButton scopePeakPopUpButton{{"", 2001, "Peak", "Scope peak", "How strongly the scope shows peaks."}};
    PopUpButton scopeLevelPopUpButton{
        {"", 2004, "Level", "Scope level in decibels", "Reference level of the scope in dB."}};
    PopUpButton scopeSpanPopUpButton{{"", 2005, "Span", "Scope span", "Width of the band that the scope shows."}};
    Slider afGainSlider{{"afGainSlider", 0, "AF gain", "AF gain", "Volume, 0 to 255.", "Alt+A"}, 0, 255};
    Slider rfGainSlider{{"rfGainSlider", 0, "RF gain", "RF gain", "Receiver gain, 0 to 255.", "Alt+F"}, 0, 255};

    // --- keyer page
    Box sendBox{{"sendBox", 0, "Keyer / Encoder", "Keyer"}};
    std::array<Button*, memories> textMemoryButtons{&key(601), &key(602), &key(603), &key(604), &key(605)};
    TextField textMemoryField{{"textMemoryField", 0, "Text", "Text to send",
                               "Text to transmit in the present mode \u2014 Return sends it.", "Ctrl+T"}};
    TextField textMemoryNoticeField{{"textMemoryNoticeField", 0, "", "Text refused", "Why the text cannot be sent."}};
    Button sendTextMemoryButton{{"sendTextMemoryButton", 0, "Send", "Send the text", "Transmit the typed text."}};
    Button clearTextMemoryButton{{"clearTextMemoryButton", 0, "Clear", "Clear the text", "Empty the text to send."}};
    TextField sentTextMemoryField{
        {"sentTextMemoryField", 0, "Sent", "Log of sent texts", "What was sent, newest first."}};
    std::deque<Button> cwMemoryButtons;    // cwMemory1Button to cwMemory5Button
    std::deque<Button> rttyMemoryButtons;  // rttyMemory1Button to rttyMemory5Button
    std::deque<Button> pskMemoryButtons;   // pskMemory1Button to pskMemory5Button
    TextField cwMemoryField{{"cwMemoryField", 0, "New text", "New CW memory text",
                             "Text for a CW memory, up to 49 characters; then choose the memory."}};
    TextField rttyMemoryField{{"rttyMemoryField", 0, "New text", "New RTTY memory text",
                               "Text for an RTTY memory, up to 49 characters; then choose the memory."}};
    TextField pskMemoryField{{"pskMemoryField", 0, "New text", "New PSK memory text",
                              "Text for a PSK memory, up to 49 characters; then choose the memory."}};
    PopUpButton cwMemoryPopUpButton{
        {"", 3001, "into", "CW memory to write", "Writes the text into this CW memory of the transceiver."}};
    PopUpButton rttyMemoryPopUpButton{
        {"", 3002, "into", "RTTY memory to write", "Writes the text into this RTTY memory of the transceiver."}};
    PopUpButton pskMemoryPopUpButton{
        {"", 3003, "into", "PSK memory to write", "Writes the text into this PSK memory of the transceiver."}};
    TextField memoryTextNoticeField{
        {"memoryTextNoticeField", 0, "", "Memory text refused", "Why the text cannot be stored."}};

    // --- memories page
    TableView memoriesTable;
    Button readMemoriesButton{{"readMemoriesButton", 0, "Read memories", "Read the memory channels",
                               "Read the 99 memory channels and their tags from the transceiver."}};
    Button writeMemoriesButton{{"writeMemoriesButton", 0, "Write memories\u2026", "Write the memory channels",
                                "Write all 99 memory channels into the transceiver; empty rows erase theirs."}};
    Button exportMemoriesButton{{"exportMemoriesButton", 0, "Export\u2026", "Export the memory channels",
                                 "Save the channels in the table as a CSV file for memory programming tools."}};
    Button importMemoriesButton{{"importMemoriesButton", 0, "Import\u2026", "Import memory channels",
                                 "Take channels from a CSV file into the table, after a look at what would change."}};
    TextField memoryReadField{{"memoryReadField", 0, "", "Memory channels", "How far reading the channels has come."}};
    LevelIndicator memoryReadProgress;
    TextField memoryBackupField{{"memoryBackupField", 0, "", "Saved channels",
                                 "Where the channels as last read are saved before they are written over."}};
    TableView autoMemTable;
    Button autoMemoryNowButton{{"autoMemoryNowButton", 0, "Keep frequency", "Keep the frequency",
                                "Record the present frequency and mode as an auto memory.", "Ctrl+Shift+M"}};
    Slider autoMemSquelchSlider{{"autoMemSquelchSlider", 0, "Squelch", "Auto-memory squelch",
                                 "How strong a signal must be for its frequency to be recorded.", "Alt+S"},
                                0,
                                15};
    TextField autoMemSquelchTextField{
        {"autoMemSquelchTextField", 0, "", "Squelch level", "The squelch as the S-meter reads."}};
    // The controls in cells. One control serves all rows of its column; the tag of a button becomes the index of the
    // row before it is pressed.
    PopUpButton memsTableModePopUpButton{{"memsTableModePopUpButton", 0, "Mode", "Mode of the memory channel",
                                          "Mode that this memory channel is written with."}};
    TextField memsTableFrequencyField{{"memsTableFrequencyField", 0, "MHz", "Frequency of the memory channel",
                                       "Frequency in MHz, 0.03 to 75; nothing empties the channel."}};
    TextField memsTableTagField{
        {"memsTableTagField", 0, "Name", "Name of the memory channel", "Name, up to 12 unaccented characters."}};
    TextField autoMemsTableNoteField{
        {"autoMemsTableNoteField", 0, "Note", "Note of the auto memory", "A note of your own."}};
    Button autoMemsTableTuneButton{
        {"autoMemsTableTuneButton", 0, "Tune", "Tune to this frequency", "Tune to this auto memory."}};
    Button autoMemsTableClearButton{
        {"autoMemsTableClearButton", 0, "Clear", "Clear this auto memory", "Remove this auto memory."}};

    // --- lists page
    TabView listsTab{{"listsTab", 0, "", "On-line lists"}};
    TableView potaTable;
    TableView sotaTable;
    TableView netLoggerTable;
    TableView netsTable;
    TableView mwTable;
    TextField potaStatusField{{"potaStatusField", 0, "", "POTA spots", "When the list was fetched, and what came."}};
    TextField sotaStatusField{{"sotaStatusField", 0, "", "SOTA spots", "When the list was fetched, and what came."}};
    TextField netLoggerStatusField{
        {"netLoggerStatusField", 0, "", "Active nets", "When the list was fetched, and what came."}};
    TextField netsStatusField{
        {"netsStatusField", 0, "", "Nets directory", "When the list was fetched, and what came."}};
    TextField mwStatusField{
        {"mwStatusField", 0, "", "Medium-wave stations", "When the list was fetched, and what came."}};
    Button potaTableTuneButton{{"potaTableTuneButton", 0, "Tune", "Tune to this spot", "Tune to this spot."}};
    Button sotaTableTuneButton{{"sotaTableTuneButton", 0, "Tune", "Tune to this spot", "Tune to this spot."}};
    Button netLoggerTableTuneButton{{"netLoggerTableTuneButton", 0, "Tune", "Tune to this net", "Tune to this net."}};
    Button netsTableTuneButton{{"netsTableTuneButton", 0, "Tune", "Tune to this net", "Tune to this net."}};
    Button netsTableConfirmButton{
        {"netsTableConfirmButton", 0, "Confirm", "Confirm check-in", "Tell the net that you will check in."}};
    Button netsTableUnconfirmButton{
        {"netsTableUnconfirmButton", 0, "Retract", "Retract check-in", "Take your confirmation back."}};
    Button mwTableTuneButton{{"mwTableTuneButton", 0, "Tune", "Tune to this station", "Tune to this station in AM."}};

    PopUpButton refreshEveryPopUpButton{
        {"refreshEveryPopUpButton", 0, "Refresh lists every", "Refresh lists every",
         "Fetches again the lists that you look at, and the spots if you watch for stations."}};
    TableView watchTable;
    Button watchTableTuneButton{{"watchTableTuneButton", 0, "Tune", "Tune to this spot", "Tune to this spot."}};
    TableView watchListTable;
    Button watchListTableRemoveButton{
        {"watchListTableRemoveButton", 0, "Remove", "Stop watching", "Take the entry off the list."}};
    TextField watchField{{"watchField", 0, "Watch for", "Call or reference to watch for",
                          "A call, or the reference of a park or summit, perhaps with * at its end \u2014 Return adds "
                          "it."}};
    Button watchAddButton{{"watchAddButton", 0, "Add", "Watch for this", "Put it on the list."}};
    TextField watchNoticeField{{"watchNoticeField", 0, "", "Not taken", "Why the entry was not taken."}};

    // --- band conditions
    Box bandBox{{"bandBox", 0, "Band Conditions", "Band conditions"}};
    TextField solarFluxField{{"solarFluxField", 0, "Solar flux", "Solar flux", "Solar flux index."}};
    TextField day8040Field{{"day8040Field", 0, "80\u201340 m", "80 to 40 meters by day", "By day."}};
    TextField day3020Field{{"day3020Field", 0, "30\u201320 m", "30 to 20 meters by day", "By day."}};
    TextField day1715Field{{"day1715Field", 0, "17\u201315 m", "17 to 15 meters by day", "By day."}};
    TextField day1210Field{{"day1210Field", 0, "12\u201310 m", "12 to 10 meters by day", "By day."}};
    TextField night8040Field{{"night8040Field", 0, "80\u201340 m", "80 to 40 meters by night", "By night."}};
    TextField night3020Field{{"night3020Field", 0, "30\u201320 m", "30 to 20 meters by night", "By night."}};
    TextField night1715Field{{"night1715Field", 0, "17\u201315 m", "17 to 15 meters by night", "By night."}};
    TextField night1210Field{{"night1210Field", 0, "12\u201310 m", "12 to 10 meters by night", "By night."}};
    TextField magicBandField{{"magicBandField", 0, "6 m", "Magic band, 6 meters", "Whether the magic band is open."}};
    TextField signalNoiseField{{"signalNoiseField", 0, "Noise", "Noise level", "Expected noise level."}};
    TextField bandStatusField{
        {"bandStatusField", 0, "", "Band conditions fetched", "When the conditions were fetched, and what came."}};

    // --- band map
    TextField bandMapField{
        {"bandMapField", 0, "", "On the band map", "What you point at on the band map, and what a press does."}};
    PopUpButton ownClassPopUpButton{{"ownClassPopUpButton", 0, "Your class", "Your operator class",
                                     "The map shows brightly where this class may transmit."}};
    Button readOutBandButton{{"readOutBandButton", 0, "Read out", "What is on this band",
                              "The voice guide speaks what is newest on the band of the active VFO.", "Ctrl+B"}};

    // --- menu bar, Preferences
    PopUpButton onAirTimeOutPopUpButton{{"onAirTimeOutPopUpButton", 0, "Time-out when on air", "Time-out when on air",
                                         "Tells you when the transceiver has transmitted this long without a pause."}};

    // --- settings page: the transceiver's setup menu
    MenuControls menu;

    // --- menu bar
    MenuItem menuItemPreferencesVoice{{"menuItemPreferencesVoice", 900, "Voice guide", "Voice guide",
                                       "Speak bands, frequencies and power as they are chosen."}};
    MenuItem menuItemPreferencesSounds{
        {"menuItemPreferencesSounds", 901, "Sounds", "Sounds", "Play Corvane's own sounds."}};
    MenuItem menuItemPreferencesIPO{{"menuItemPreferencesIPO", 902, "Memory IPO", "Memory IPO",
                                     "Recalling a memory channel also switches the pre-amplifier off."}};
    MenuItem menuItemPreferencesBandMap{{"menuItemPreferencesBandMap", 903, "Band map on the Radio page",
                                         "Band map on the Radio page",
                                         "Show the active band's part of the band map at the foot of the Radio page."}};
    MenuItem menuItemPreferencesReopen{{"menuItemPreferencesReopen", 907, "Open a lost port again",
                                        "Open a lost port again",
                                        "A port that was unplugged while it was open is opened when it returns."}};

    std::array<Button*, 13> bandButtons{&m6Button,   &m10Button,  &m12Button, &m15Button, &m17Button,
                                        &m20Button,  &m30Button,  &m40Button, &m60Button, &m80Button,
                                        &m160Button, &mgenButton, &mmwButton};
};

}  // namespace corvane

#include "display/display.h"

#include "display/pop_up_entries.h"
#include "display/table_columns.h"
#include "wire/memory_fields.h"

namespace corvane {

namespace {

using MemoryOutlets = std::array<Outlet, Display::memories>;

constexpr std::string_view memoryHelp = "What the transceiver holds in this memory.";
constexpr MemoryOutlets cwMemories{{{"cwMemory1Button", 0, "", "CW memory 1", memoryHelp},
                                    {"cwMemory2Button", 0, "", "CW memory 2", memoryHelp},
                                    {"cwMemory3Button", 0, "", "CW memory 3", memoryHelp},
                                    {"cwMemory4Button", 0, "", "CW memory 4", memoryHelp},
                                    {"cwMemory5Button", 0, "", "CW memory 5", memoryHelp}}};
constexpr MemoryOutlets rttyMemories{{{"rttyMemory1Button", 0, "", "RTTY memory 1", memoryHelp},
                                      {"rttyMemory2Button", 0, "", "RTTY memory 2", memoryHelp},
                                      {"rttyMemory3Button", 0, "", "RTTY memory 3", memoryHelp},
                                      {"rttyMemory4Button", 0, "", "RTTY memory 4", memoryHelp},
                                      {"rttyMemory5Button", 0, "", "RTTY memory 5", memoryHelp}}};
constexpr MemoryOutlets pskMemories{{{"pskMemory1Button", 0, "", "PSK memory 1", memoryHelp},
                                     {"pskMemory2Button", 0, "", "PSK memory 2", memoryHelp},
                                     {"pskMemory3Button", 0, "", "PSK memory 3", memoryHelp},
                                     {"pskMemory4Button", 0, "", "PSK memory 4", memoryHelp},
                                     {"pskMemory5Button", 0, "", "PSK memory 5", memoryHelp}}};

constexpr Outlet memoriesTableOutlet{
    "memoriesTable", 0, "", "Memory channels",
    "The 99 memory channels. Drag a row, or press Alt+Up and Alt+Down, to give it another "
    "channel; Enter edits a cell."};
constexpr Outlet autoMemTableOutlet{"autoMemTable", 0, "", "Auto memories",
                                    "Frequencies at which a signal was heard, newest first."};
constexpr Outlet shareTableOutlet{"shareTable", 0, "", "Connected programs",
                                  "The programs that use the transceiver now, and what they asked or set last."};
constexpr Outlet potaTableOutlet{"potaTable", 0, "", "POTA spots", "Parks on the air, youngest spot first."};
constexpr Outlet sotaTableOutlet{"sotaTable", 0, "", "SOTA spots", "Summits on the air."};
constexpr Outlet netLoggerTableOutlet{"netLoggerTable", 0, "", "Active nets", "SSB nets on NetLogger, busiest first."};
constexpr Outlet netsTableOutlet{"netsTable", 0, "", "Nets directory", "Nets, with their times and your check-ins."};
constexpr Outlet mwTableOutlet{"mwTable", 0, "", "Medium-wave stations", "Broadcast stations on medium wave."};
constexpr Outlet watchTableOutlet{"watchTable", 0, "", "Watched stations on the air",
                                  "The stations on the air that you watch for, newest first."};
constexpr Outlet watchListTableOutlet{"watchListTable", 0, "", "Watched calls and references",
                                      "What you watch for. A * at the end stands for anything."};
constexpr Outlet memoryReadProgressOutlet{"memoryReadProgress", 0, "", "Reading memory channels",
                                          "How much of the memory channels has been read."};

constexpr std::string_view editorMemories = "|1|2|3|4|5";  // a blank one, then their numbers

// A pop-up that shows the program's own state stands on its first entry.
void fill(PopUpButton& popUp, std::vector<std::string> entries) {
    popUp.setEntries(std::move(entries));
    popUp.selectItem(0);
}

std::deque<Button> makeKeys() {
    std::deque<Button> keys;
    for (const FrontPanelKey& key : frontPanelKeys) keys.emplace_back(key.outlet);
    return keys;
}

std::deque<MenuItem> makeChips() {
    std::deque<MenuItem> chips;
    for (const FilterChip& chip : filterChips) chips.emplace_back(chip.outlet);
    return chips;
}

}  // namespace

Display::Display()
    : keys(makeKeys()),
      chips(makeChips()),
      shareTable(shareTableOutlet, shareTableColumns),
      cwMemoryButtons(cwMemories.begin(), cwMemories.end()),
      rttyMemoryButtons(rttyMemories.begin(), rttyMemories.end()),
      pskMemoryButtons(pskMemories.begin(), pskMemories.end()),
      memoriesTable(memoriesTableOutlet, memoriesTableColumns),
      memoryReadProgress(memoryReadProgressOutlet, memoryReadSteps),
      autoMemTable(autoMemTableOutlet, autoMemTableColumns),
      potaTable(potaTableOutlet, potaTableColumns),
      sotaTable(sotaTableOutlet, sotaTableColumns),
      netLoggerTable(netLoggerTableOutlet, netLoggerTableColumns),
      netsTable(netsTableOutlet, netsTableColumns),
      mwTable(mwTableOutlet, mwTableColumns),
      watchTable(watchTableOutlet, watchTableColumns),
      watchListTable(watchListTableOutlet, watchListTableColumns) {
    for (PopUpButton* popUp : {&cwMemoryPopUpButton, &rttyMemoryPopUpButton, &pskMemoryPopUpButton})
        fill(*popUp, entryList(editorMemories));
    memsTableModePopUpButton.setEntries(memoryModeEntries());
    fill(refreshEveryPopUpButton, entryList(refreshEntries));
    memoryReadProgress.setVisible(false);
    // The synchronisation does not ask for it, and a nudge from 0 would make the receiver deaf.
    rfGainSlider.setIntegerValue(rfGainSlider.maximum());
    modesPopUpButton.setEntries(modeEntries());
    AGCPopUpButton.setEntries(entryList(agcEntries));
    ATTPopUpButton.setEntries(entryList(attenuatorEntries));
    ampPopUpButton.setEntries(entryList(preAmplifierEntries));
    RFILPopUpButton.setEntries(entryList(roofingFilterEntries));
    DNRPopupButton.setEntries(noiseReductionEntries());
    NBPopupButton.setEntries(noiseBlankerEntries());
    smeterPopUpButton.setEntries(entryList(meterEntries));
    MPVDButton.setEntries(entryList(multiKnobEntries));
    FuncKnobButton.setEntries(entryList(functionKnobEntries));
    fill(APOPopUpButton, powerOffEntries());
    colorPopUpButton.setEntries(scopeColorEntries());
    spectrumModePopUpButton.setEntries(entryList(spectrumModeEntries));
    scopeSpeedPopUpButton.setEntries(entryList(scopeSpeedEntries));
    scopePeakPopUpButton.setEntries(entryList(scopePeakEntries));
    scopeLevelPopUpButton.setEntries(scopeLevelEntries());
    scopeSpanPopUpButton.setEntries(entryList(scopeSpanEntries));
    for (TableView* spots : {&potaTable, &sotaTable}) spots->setEmptyText("No spots: press Refresh.");
    for (TableView* nets : {&netLoggerTable, &netsTable}) nets->setEmptyText("No nets: press Refresh.");
    mwTable.setEmptyText("No stations: they are fetched when Corvane starts.");
    shareTable.setEmptyText("No program is connected.");
    autoMemTable.setEmptyText("Nothing heard above the squelch yet; Keep frequency records the present one.");
    watchTable.setEmptyText("Nobody that you watch for is on the lists.");
    watchListTable.setEmptyText("Type a call or a reference above.");
    made.close();
}

}  // namespace corvane

#include "controller/serial_port_demo_controller.h"

#include <utility>

#include "display/pop_up_entries.h"
#include "memories/table_cells.h"

namespace corvane {

namespace {

constexpr int powerOnTag = 300;
constexpr std::string_view directoryKey = "directoryServer";

ServiceHosts withSetting(ServiceHosts hosts, const SettingsStore& settings) {
    const std::string server = settings.text(directoryKey).value_or("");
    if (!hosts.directoryIsGiven && !server.empty()) hosts.setDirectory(server);
    return hosts;
}

}  // namespace

SerialPortDemoController::SerialPortDemoController(const Platform& platform, ServiceHosts serviceHosts)
    : platform_(platform),
      hosts(withSetting(std::move(serviceHosts), platform.settings)),
      preferences(display, platform.settings),
      voice(preferences, platform.speech, platform.sounds, platform.alerts),
      link(display, voice,
           {platform.serialPortManager, platform.settings, platform.notificationCenter, platform.log,
            platform.scheduler, *this}),
      lineWatch(display, link,
                {platform.clipboard, platform.files, platform.alerts, platform.settings, platform.scheduler}),
      mirror(display, link, voice),
      setupMenu(display, link, platform.settings, platform.scheduler),
      operatorClassButton(display),
      frontPanel(display, link, mirror, voice, platform.scheduler),
      functionPopUps(display, link, mirror, preferences, voice, platform.scheduler),
      presetPopUp(display, link, mirror, voice),
      entryFields(display, link, mirror, voice),
      keyer(display, link, mirror),
      powerOff(display, link, voice, platform.scheduler),
      memories(display, link, mirror, voice,
               {platform.scheduler, platform.alerts, platform.dataFolder, platform.files}),
      autoMemories(display, link, mirror, voice, platform.settings, platform.scheduler),
      lists(display, link, mirror, voice, {platform.http, platform.scheduler, platform.settings, platform.log, hosts}),
      spotFilter(display, platform.settings),
      listOrder(display, lists, spotFilter),
      standingRefresh(display, lists, platform.settings, platform.scheduler),
      watching(display, lists, voice, platform.notificationCenter, platform.settings, platform.scheduler),
      checkIns(lists, voice, platform.http, platform.settings, platform.scheduler, hosts),
      conditions(display, platform.http, platform.scheduler, hosts),
      sharedTransceiver(link, platform.scheduler),
      onAir(display, sharedTransceiver, voice, platform.settings, platform.notificationCenter, platform.scheduler),
      rigctlServer(display, preferences, sharedTransceiver, {platform.loopback, platform.settings, platform.scheduler}),
      virtualPort(display, preferences, link, sharedTransceiver,
                  {platform.terminal, platform.clipboard, platform.scheduler}),
      bandMap(display, link, mirror, frontPanel, {lists, memories, autoMemories, spotFilter, watching}, voice,
              platform.settings, platform.scheduler) {
    wire();
    bindControls();
    bindPopUps();
    bindEntries();
    bindTables();
    serialPortManager.setObserver(this);
    userDefaults.onProblem = [this] { showSettingsProblem(); };
}

SerialPortDemoController::~SerialPortDemoController() {
    serialPortManager.setObserver(nullptr);
    userDefaults.onProblem = nullptr;
}

bool SerialPortDemoController::setDirectoryServer(std::string_view server) {
    if (!hosts.setDirectory(server)) return false;
    userDefaults.setText(directoryKey, server.empty() ? server : hosts.directory);
    fetchNets();
    fetchMWStations();
    return true;
}

void SerialPortDemoController::wire() {
    voice.onSilence = [this](std::string_view written) { display.announcements.say(written); };
    link.onReady = [this](bool ready) {
        memories.setKeysEnabled(ready);
        if (ready) sharedTransceiver.portOpened();
    };
    link.onClosing = [this] { sharedTransceiver.portClosing(); };
    link.onClosed = [this] {
        display.keepAsLastKnown();
        sharedTransceiver.portClosed();
        onAir.follow();
        virtualPort.portClosed();
        memories.linkClosed();
        setupMenu.endRead(": stopped, the link is closed.");
    };
    link.onSent = [this](std::string_view command) {
        functionPopUps.noteSent(command);
        sharedTransceiver.noteSent(command);
        if (command.starts_with("AI")) onAir.follow();  // the reports may end
        virtualPort.noteSent(command);
    };
    link.onSwitchedOff = [this] { display.keepAsLastKnown(); };
    link.onMemoryReadDue = [this] { memories.startMemoryRead(); };
    mirror.onFrequency = [this](std::string_view megahertz) { showOperatorClass(megahertz); };
    mirror.tagOfChannel = [this](int row) { return memories.tagOf(row); };
    lists.onFetched = [this](Feed list, bool arrived) {
        standingRefresh.noteFetched(list, arrived);
        if (arrived) watching.look(list);
    };
    lists.onAges = [this] { watching.showRows(); };
    spotFilter.onChange = [this] { listOrder.showAgain(); };
    standingRefresh.isWatched = [this](Feed list) { return watching.watches(list); };
    rigctlServer.permissions.sendText = [this](std::string_view text) { return keyer.transmit(std::string(text)); };
    rigctlServer.permissions.switchOn = [this] { display.key(powerOnTag).performClick(); };
    virtualPort.lineTaken = [this] { return memories.read().repliesAreComing() || setupMenu.reads(); };
}

void SerialPortDemoController::goMainMenu(MenuItem& sender) {
    preferences.goMainMenu(sender);
    applyPreferences();
    standingRefresh.lookAgain();  // the band map may have come in sight
}

void SerialPortDemoController::watch(TextField& sender) {
    watching.add(sender);
    standingRefresh.lookAgain();
}

void SerialPortDemoController::goWatchRemove(Button& sender) {
    watching.remove(sender);
    standingRefresh.lookAgain();
}

void SerialPortDemoController::applyPreferences() {
    link.setReopensLostPort(preferences.reopenPort());
    rigctlServer.applyPreferences();
    virtualPort.applyPreferences();
}

void SerialPortDemoController::awakeFromNib() {
    if (vqPortChecked != 1) {
        link.fillPopUps();
        restoreSettings();
        link.suggestPort();
        showSettingsProblem();
    }
    // A flag of its own: if a port appears before the window is made, the settings are restored then.
    if (std::exchange(vqTimerStarted, 1) == 1) return;
    fetchBandConditions();
    autoMemorySample();
}

void SerialPortDemoController::restoreSettings() {
    link.restorePort();
    preferences.restore();
    applyPreferences();
    bandMap.restore();
    spotFilter.restore();
    watching.restore();
    standingRefresh.restore();
    onAir.restoreTimeOut();
    autoMemories.restoreSquelch();
    vqPortChecked = 1;
    display.vqMemAButton.setTitle("  M-01");
    const int power = display.powerPopUpButton.indexOfSelectedItem();
    display.powerPopUpButton.setEntries(powerEntries());
    for (int entry = 0; entry < display.powerPopUpButton.titles().size(); ++entry)
        display.powerPopUpButton.setItemImage(entry, Image::NSImageNameStatusAvailable);
    display.powerPopUpButton.selectItem(power);
    setupMenu.fillMenuPopUps();
    lists.fetchAll();
}

void SerialPortDemoController::showSettingsProblem() {
    const std::string problem = userDefaults.problem();
    if (problem.empty()) return;
    platform_.log.line(problem);
    link.showMessage(problem);
}

void SerialPortDemoController::serialPortsWereConnected(const SerialPorts& ports) {
    link.serialPortsWereConnected(ports);
    restoreSettings();
}

int SerialPortDemoController::numberOfRows(const TableView& table) const {
    if (&table == &display.memoriesTable) return memoryChannels;
    if (&table == &display.shareTable) return rigctlServer.rows();
    if (isWatchTable(table)) return watching.numberOfRows(table);
    if (&table == &display.autoMemTable) return static_cast<int>(autoMemories.state().vqAutoMemoryArray.size());
    return lists.numberOfRows(table);
}

TableCell SerialPortDemoController::viewFor(const TableView& table, int row, int column) const {
    if (&table == &display.memoriesTable)
        return memoriesTableCell(memories.vqMemArray(), display.memsTableModePopUpButton.titles(), row, column);
    if (&table == &display.shareTable) return rigctlServer.cell(row, column);
    if (isWatchTable(table)) return watching.viewFor(table, row, column);
    if (&table == &display.autoMemTable) return autoMemTableCell(autoMemories.state(), row, column);
    return lists.viewFor(table, row, column);
}

std::optional<int> SerialPortDemoController::acceptDrop(TableView& table, std::string_view plainText, int row) {
    return &table == &display.memoriesTable ? memories.acceptDrop(plainText, row) : std::nullopt;
}

bool SerialPortDemoController::mouseDownInHeader(TableView& table, int column) {
    if (&table == &display.memoriesTable) return memories.mouseDownInHeader(column);
    return listOrder.mouseDownInHeader(table, column);
}

std::vector<int> SerialPortDemoController::rowOrder(const TableView& table) const {
    return feedOf(display, table) ? listOrder.rowOrder(table) : TableViewDataSource::rowOrder(table);
}

bool SerialPortDemoController::isWatchTable(const TableView& table) const {
    return &table == &display.watchTable || &table == &display.watchListTable;
}

}  // namespace corvane

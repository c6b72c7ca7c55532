#include "qt/platform/qt_serial_port_manager.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <filesystem>
#include <fstream>
#include <memory>

#include "event_loop.h"
#include "qt/platform/polling_serial_port_watcher.h"
#include "qt/platform/udev_serial_port_watcher.h"
#include "recording_delegate.h"
#include "simulator/pseudo_terminal.h"

namespace corvane {
namespace {

using Names = std::vector<std::string>;

struct FakeWatcher : SerialPortWatcher {
    std::function<void()> changed;
    void watch(std::function<void()> call) override { changed = std::move(call); }
};

struct LastPort final : ListedPort {
    LastPort() : ListedPort("Simulated transceiver", "") {}
    bool isOpen() const override { return false; }
    void open() override {}
    void close() override {}
    void sendData(std::string_view) override {}
    void deviceLeft() override {}
};

Names namesOf(const SerialPorts& ports) {
    Names names;
    for (const auto& port : ports) names.push_back(port->name());
    return names;
}

struct ManagerTest : testing::Test, SerialPortsObserver {
    std::vector<SerialDevice> devices{
        {"ttyUSB0", "/dev/ttyUSB0", "Adapter, /dev/ttyUSB0", true, 0, {"10c4:ea70:00", "01A2", "1-1.2"}}};
    FakeWatcher* watcher = nullptr;
    std::vector<Names> connected;
    std::vector<Names> disconnected;
    std::unique_ptr<QtSerialPortManager> manager;

    void make(std::vector<std::string> extraPaths = {}) {
        SerialPortSources sources;
        sources.devices = [this] { return devices; };
        sources.extraPaths = std::move(extraPaths);
        auto fake = std::make_unique<FakeWatcher>();
        watcher = fake.get();
        sources.watcher = std::move(fake);
        sources.lastPort = std::make_shared<LastPort>();
        sources.settle = std::chrono::milliseconds(20);
        sources.extraInterval = std::chrono::milliseconds(10);
        manager = std::make_unique<QtSerialPortManager>(std::move(sources));
        manager->availablePorts();
        manager->setObserver(this);
    }

    void serialPortsWereConnected(const SerialPorts& ports) override { connected.push_back(namesOf(ports)); }
    void serialPortsWereDisconnected(const SerialPorts& ports) override { disconnected.push_back(namesOf(ports)); }

    Names names() { return namesOf(manager->availablePorts()); }
};

TEST_F(ManagerTest, ListsDevicesThenExtraPathsThenTheLastPort) {
    const simulator::PseudoTerminal line;
    devices.push_back({"pts", line.path(), ""});
    const simulator::PseudoTerminal other;
    make({"/dev/no-such-device", line.path(), other.path()});
    EXPECT_EQ(names(), (Names{"ttyUSB0", "pts", other.path(), "Simulated transceiver"}));
    EXPECT_EQ(manager->availablePorts()[0]->details(), "Adapter, /dev/ttyUSB0");
    EXPECT_EQ(manager->availablePorts()[0]->description(), "ttyUSB0");
    EXPECT_EQ(manager->availablePorts()[0]->usb(), devices[0].usbDevice);
    EXPECT_TRUE(connected.empty());
}

TEST_F(ManagerTest, ABurstGivesOneNoticeAndPortsKeepTheirObjects) {
    make();
    const auto kept = manager->availablePorts()[0];
    devices[0].details = "Adapter by Somebody, /dev/ttyUSB0";
    for (const char* name : {"ttyUSB1", "ttyUSB2"}) {
        devices.push_back({name, std::string("/dev/") + name, ""});
        watcher->changed();
    }
    ASSERT_TRUE(eventually([&] { return !connected.empty(); }));
    EXPECT_EQ(connected, (std::vector<Names>{{"ttyUSB1", "ttyUSB2"}}));
    EXPECT_EQ(names(), (Names{"ttyUSB0", "ttyUSB1", "ttyUSB2", "Simulated transceiver"}));
    EXPECT_EQ(manager->availablePorts()[0], kept);

    devices.erase(devices.begin());
    watcher->changed();
    ASSERT_TRUE(eventually([&] { return !disconnected.empty(); }));
    EXPECT_EQ(disconnected, (std::vector<Names>{{"ttyUSB0"}}));
    EXPECT_EQ(connected.size(), 1U);
}

TEST_F(ManagerTest, AnOpenPortThatLeavesTheListIsRemovedOnce) {
    const simulator::PseudoTerminal line;
    devices = {{"radio", line.path(), ""}};
    make();
    const auto port = manager->availablePorts()[0];
    RecordingDelegate delegate;
    port->setDelegate(&delegate);
    port->open();
    ASSERT_TRUE(port->isOpen());
    Names listedAtRemoval;
    delegate.onReport = [&](ORSSerialPort&, const std::string&) { listedAtRemoval = names(); };
    devices.clear();
    watcher->changed();
    ASSERT_TRUE(eventually([&] { return !disconnected.empty(); }));
    EXPECT_EQ(delegate.reports, (std::vector<std::string>{"opened", "removed"}));
    EXPECT_EQ(listedAtRemoval, Names{"Simulated transceiver"});
}

TEST_F(ManagerTest, ADeviceThatLeftAndCameBackBetweenTwoLooksIsAnotherPort) {
    const simulator::PseudoTerminal line;
    devices = {{"radio", line.path(), "", true, 1}};
    make();
    const auto port = manager->availablePorts()[0];
    RecordingDelegate delegate;
    port->setDelegate(&delegate);
    port->open();
    devices[0].instance = 2;
    watcher->changed();
    ASSERT_TRUE(eventually([&] { return !connected.empty(); }));
    EXPECT_EQ(disconnected, (std::vector<Names>{{"radio"}}));
    EXPECT_EQ(connected, (std::vector<Names>{{"radio"}}));
    EXPECT_EQ(delegate.reports, (std::vector<std::string>{"opened", "removed"}));
    EXPECT_NE(manager->availablePorts()[0], port);
}

TEST_F(ManagerTest, AnotherFileUnderTheSamePathIsAnotherInstance) {
    const QTemporaryDir folder;
    const std::string link = folder.filePath("radio").toStdString();
    EXPECT_EQ(instanceOf(link), 0U);
    const simulator::PseudoTerminal first;
    const simulator::PseudoTerminal second;
    ASSERT_TRUE(QFile::link(QString::fromStdString(first.path()), QString::fromStdString(link)));
    const std::uint64_t before = instanceOf(link);
    EXPECT_EQ(instanceOf(link), before);
    ASSERT_TRUE(QFile::remove(QString::fromStdString(link)));
    ASSERT_TRUE(QFile::link(QString::fromStdString(second.path()), QString::fromStdString(link)));
    EXPECT_NE(instanceOf(link), before);
}

TEST_F(ManagerTest, ExtraPathsComeAndGo) {
    const QTemporaryDir folder;
    const std::string link = folder.filePath("radio").toStdString();
    auto line = std::make_unique<simulator::PseudoTerminal>();
    devices.clear();
    make({link});
    EXPECT_EQ(names(), Names{"Simulated transceiver"});

    ASSERT_TRUE(QFile::link(QString::fromStdString(line->path()), QString::fromStdString(link)));
    ASSERT_TRUE(eventually([&] { return !connected.empty(); }));
    EXPECT_EQ(connected, (std::vector<Names>{{link}}));
    RecordingDelegate delegate;
    const auto port = manager->availablePorts()[0];
    port->setDelegate(&delegate);
    port->open();
    line.reset();  // the link dangles
    ASSERT_TRUE(eventually([&] { return !disconnected.empty(); }));
    EXPECT_EQ(disconnected, (std::vector<Names>{{link}}));
    EXPECT_EQ(delegate.reports, (std::vector<std::string>{"opened", "removed"}));
}

TEST(SplitPathsTest, LeavesOutEmptyPiecesAndRepetitions) {
    EXPECT_EQ(splitPaths(""), Names{});
    EXPECT_EQ(splitPaths("/dev/a"), Names{"/dev/a"});
    EXPECT_EQ(splitPaths(":/dev/a::/dev/b:/dev/a:"), (Names{"/dev/a", "/dev/b"}));
}

// A serial adapter has its terminal below the interface, a modem directly there.
TEST(UsbDeviceTest, IsReadFromTheTerminalUpwards) {
    namespace fs = std::filesystem;
    const QTemporaryDir folder;
    const fs::path root = folder.path().toStdString();
    const fs::path socket = root / "devices/pci0/usb1/1-1/1-1.2";
    for (const auto& [terminal, below] : {std::pair{"ttyUSB1", "1-1.2:1.1/ttyUSB1"}, {"ttyACM0", "1-1.2:1.1"}}) {
        fs::create_directories(socket / below);
        fs::create_directories(root / "class/tty" / terminal);
        fs::create_directory_symlink(socket / below, root / "class/tty" / terminal / "device");
    }
    for (const auto& [file, text] : {std::pair{"../idVendor", "1d6b"},
                                     {"idVendor", "10c4"},
                                     {"idProduct", "ea70"},
                                     {"1-1.2:1.1/bInterfaceNumber", "01"}})
        std::ofstream(socket / file) << text << '\n';
    EXPECT_EQ(usbDeviceOf("ttyACM0", root), (UsbDevice{"10c4:ea70:01", "", "1-1.2"}));
    std::ofstream(socket / "serial") << "01A2\n";
    EXPECT_EQ(usbDeviceOf("ttyUSB1", root), (UsbDevice{"10c4:ea70:01", "01A2", "1-1.2"}));
    EXPECT_EQ(usbDeviceOf("ttyS0", root), UsbDevice{});
}

TEST(SerialPortWatcherTest, PollingTellsOfChangesOnlyAndTheMonitorOpens) {
    Names attached{"ttyUSB0"};
    int looks = 0;
    PollingSerialPortWatcher polling(std::chrono::milliseconds(5), [&] {
        ++looks;
        return attached;
    });
    int calls = 0;
    polling.watch([&] { ++calls; });
    EXPECT_TRUE(eventually([&] { return looks >= 3; }));
    EXPECT_EQ(calls, 0);
    attached.clear();
    EXPECT_TRUE(eventually([&] { return calls == 1 && looks >= 6; }));
    EXPECT_TRUE(UdevSerialPortWatcher(UdevSerialPortWatcher::Source::udev).works());
}

}  // namespace
}  // namespace corvane

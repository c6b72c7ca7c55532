#include <gmock/gmock.h>

#include "radio/link_messages.h"
#include "tests/support/test_bench.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Texts = std::vector<std::string>;

using LinkButtons = std::tuple<std::string, Color, bool>;  // title and color of Connect, whether memories can be read

LinkButtons linkButtons(const Display& display) {
    return {display.openCloseButton.title(), display.openCloseButton.bezelColor(),
            display.readMemoriesButton.enabled()};
}

// A program with several closed ports and a journal of their calls.
struct SerialPortsTest : testing::Test {
    Texts calls;
    const std::shared_ptr<FakeSerialPort> first = std::make_shared<FakeSerialPort>("ttyUSB0", &calls);
    const std::shared_ptr<FakeSerialPort> second = std::make_shared<FakeSerialPort>("ttyUSB1", &calls);
    Surroundings around;
    SerialPortDemoController controller{around.platform(), {}};
    Display& display = controller.display;

    void start(const SerialPorts& ports) {
        around.portManager.ports = ports;
        controller.awakeFromNib();
    }
    void startOn(const SerialPorts& ports, int chosen) {
        start(ports);
        display.PortPopUpButton.choose(chosen);
        display.openCloseButton.performClick();
        calls.clear();
        around.sounds.played.clear();
    }
    Texts takeCalls() { return std::exchange(calls, {}); }
};

TEST_F(SerialPortsTest, OpeningSetsTheLineAndRemembersThePort) {
    start({first, second});
    EXPECT_EQ(linkButtons(display), (LinkButtons{"Connect", Color::none, false}));
    EXPECT_EQ(display.linkStatusField.stringValue(), "Not connected");
    display.PortPopUpButton.choose(1);
    EXPECT_FALSE(second->isOpen());
    EXPECT_EQ(display.portDetailsField.stringValue(), "USB serial adapter, /dev/ttyUSB1");
    EXPECT_THAT(around.settings.values, IsEmpty());

    display.openCloseButton.performClick();

    EXPECT_EQ(takeCalls(), (Texts{"ttyUSB1 attach", "ttyUSB1 open"}));
    EXPECT_EQ(second->line, (FakeSerialPort::Line{38400, Parity::none, 1, true}));
    EXPECT_EQ(linkButtons(display), (LinkButtons{"Connected", Color::green, true}));
    EXPECT_EQ(around.settings.values, (MapSettingsStore::Values{{"defaultBaud", "38400"}, {"defaultPort", "ttyUSB1"}}));
    EXPECT_THAT(around.sounds.played, ElementsAre("file Seatbelts"));
}

TEST_F(SerialPortsTest, ClosingEndsTheReportsFirst) {
    startOn({first, second}, 0);
    display.openCloseButton.performClick();
    EXPECT_EQ(takeCalls(), (Texts{"ttyUSB0 AI0;", "ttyUSB0 close"}));
    EXPECT_EQ(linkButtons(display), (LinkButtons{"Connect", Color::red, false}));
    EXPECT_THAT(around.sounds.played, ElementsAre("alert Bottle"));

    display.openCloseButton.performClick();
    EXPECT_EQ(linkButtons(display), (LinkButtons{"Connected", Color::green, true}));
}

TEST_F(SerialPortsTest, WithoutAPortTheButtonDoesNothing) {
    start({});
    display.openCloseButton.performClick();
    EXPECT_EQ(linkButtons(display), (LinkButtons{"Connect", Color::none, false}));
    EXPECT_THAT(around.sounds.played, IsEmpty());
    EXPECT_THAT(display.PortPopUpButton.entries(), IsEmpty());
}

TEST_F(SerialPortsTest, BeginsWithTheSuggestedPortUnlessOneIsRemembered) {
    start({first, second});
    EXPECT_EQ(display.PortPopUpButton.indexOfSelectedItem(), PopUpButton::noSelection);
    EXPECT_EQ(controller.link.serialPort(), nullptr);
    // A remembered port that is missing is not replaced by another one.
    for (const auto& [remembered, chosen] : {std::pair{"", second}, {"ttyUSB9", nullptr}, {"ttyUSB0", first}}) {
        Surroundings other;
        other.portManager.ports = {first, second};
        other.portManager.suggested = second;
        other.settings.setText("defaultPort", remembered);
        other.settings.setText("defaultBaud", "9600");
        SerialPortDemoController begun(other.platform(), {});
        begun.awakeFromNib();
        EXPECT_EQ(begun.link.serialPort(), chosen);
        EXPECT_EQ(begun.display.PortPopUpButton.titleOfSelectedItem(), chosen ? chosen->name() : "");
        EXPECT_EQ(begun.display.BaudPopUpButton.titleOfSelectedItem(), "38400");
        EXPECT_FALSE(chosen && chosen->isOpen());
    }
}

TEST_F(SerialPortsTest, ChoosingAnotherPortClosesAndDetachesTheOldOneFirst) {
    startOn({first, second}, 0);
    display.PortPopUpButton.choose(1);
    EXPECT_EQ(takeCalls(), (Texts{"ttyUSB0 close", "ttyUSB0 detach", "ttyUSB1 attach"}));
    EXPECT_EQ(linkButtons(display), (LinkButtons{"Connect", Color::red, false}));
    EXPECT_EQ(display.PortPopUpButton.titleOfSelectedItem(), "ttyUSB1");
    EXPECT_FALSE(second->isOpen());

    display.PortPopUpButton.choose(1);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(SerialPortsTest, APortThatDoesNotOpenSaysWhyAndWhatToDo) {
    using enum SerialPortErrorKind;
    const std::string device = "/dev/ttyUSB0";
    const std::pair<SerialPortError, Texts> cases[] = {
        {{busy, "Device busy", device, ""}, {device, "in use"}},
        {{staleLock, "Device busy", device, "", "root", "/run/lock/LCK..ttyUSB0"},
         {device, "has ended", "sudo rm /run/lock/LCK..ttyUSB0"}},
        {{permission, "Permission denied", device, "dialout"}, {device, "usermod -aG dialout"}},
        {{permission, "Permission denied", device, "", "root"}, {"may not open " + device, "the user \"root\""}},
        {{notFound, "No such file", device, ""}, {device, "not exist", "Plug"}},
        {{gone, "No such device", device, ""}, {"ttyUSB0", "unplugged"}},
        {{other, "Input/output error", "", ""}, {"ttyUSB0", "Input/output"}}};
    start({first, second});
    display.PortPopUpButton.choose(0);
    for (const auto& [error, hints] : cases) {
        display.mainTab.selectItem(Display::radioPage);
        around.sounds.played.clear();
        around.log.lines.clear();
        first->openFailure = error;
        display.openCloseButton.performClick();
        EXPECT_EQ(around.log.lines, Texts{"SerialPort ttyUSB0 encountered an error: " + error.text});
        EXPECT_EQ(around.sounds.played, Texts{"alert Frog"});
        EXPECT_EQ(display.mainTab.indexOfSelectedItem(), Display::stationPage);
        EXPECT_EQ(linkButtons(display), (LinkButtons{"Connect", Color::none, false}));
        EXPECT_THAT(display.linkMessageField.stringValue(), HasSubstr("press Connect."));
        for (const std::string& hint : hints) EXPECT_THAT(display.linkMessageField.stringValue(), HasSubstr(hint));
    }
    EXPECT_THAT(around.settings.values, IsEmpty());

    first->openFailure.reset();
    display.openCloseButton.performClick();
    EXPECT_EQ(linkButtons(display), (LinkButtons{"Connected", Color::green, true}));
    EXPECT_EQ(display.linkMessageField.stringValue(), "");
}

TEST_F(SerialPortsTest, ADeviceThatTakesNoDataIsToldUntilItDoes) {
    startOn({first, second}, 0);
    first->stall(true);
    EXPECT_THAT(display.linkMessageField.stringValue(), HasSubstr("ttyUSB0 takes no data."));
    EXPECT_THAT(display.linkMessageField.stringValue(), HasSubstr("Press Connected to close the port"));
    first->stall(false);
    EXPECT_EQ(display.linkMessageField.stringValue(), "");
    first->stall(true);
    display.openCloseButton.performClick();
    EXPECT_EQ(display.linkMessageField.stringValue(), "");
}

TEST_F(SerialPortsTest, AnErrorOnAnOpenPortLeavesItAsItIs) {
    startOn({first, second}, 0);
    around.settings.setText("sounds", "0");
    controller.preferences.restore();
    display.mainTab.selectItem(Display::radioPage);
    first->fail({SerialPortErrorKind::other, "Framing error", "/dev/ttyUSB0", ""});
    EXPECT_EQ(display.mainTab.indexOfSelectedItem(), Display::stationPage);
    EXPECT_EQ(linkButtons(display), (LinkButtons{"Connected", Color::green, true}));
    EXPECT_THAT(around.sounds.played, ElementsAre("alert Frog"));
    controller.sendCommand("FA;");
    EXPECT_EQ(takeCalls(), Texts{"ttyUSB0 FA;"});
}

TEST_F(SerialPortsTest, AnOpenPortThatIsUnpluggedLeavesNoPort) {
    startOn({first, second}, 0);
    first->unplug();
    around.portManager.disconnect({first});
    EXPECT_EQ(takeCalls(), Texts{"ttyUSB0 detach"});
    EXPECT_EQ(controller.link.serialPort(), nullptr);
    EXPECT_EQ(linkButtons(display), (LinkButtons{"Connect", Color::green, false}));
    EXPECT_EQ(display.linkStatusField.stringValue(), "Not connected");
    EXPECT_THAT(display.linkMessageField.stringValue(), HasSubstr("ttyUSB0 was unplugged"));
    EXPECT_EQ(display.PortPopUpButton.entries(), Texts{"ttyUSB1"});
    EXPECT_EQ(display.PortPopUpButton.indexOfSelectedItem(), PopUpButton::noSelection);
    controller.sendCommand("FA;");
    display.openCloseButton.performClick();
    EXPECT_THAT(takeCalls(), IsEmpty());

    around.portManager.connect({first});
    EXPECT_EQ(display.PortPopUpButton.titleOfSelectedItem(), "ttyUSB0");
    EXPECT_EQ(takeCalls(), Texts{"ttyUSB0 attach"});
    around.scheduler.advance(60s);
    EXPECT_FALSE(first->isOpen());
}

// A port that was lost while open, with the order to open it again.
struct LostPortTest : SerialPortsTest {
    void lose() {
        around.settings.setText("reopen", "1");
        first->device = was;
        startOn({first, second}, 0);
        leave();
    }
    void leave() {
        first->unplug();
        around.portManager.disconnect({first});
    }
    bool opensWithin(Scheduler::Duration time) {
        calls.clear();
        around.scheduler.advance(time);
        return std::ranges::count(calls, "ttyUSB0 open") == 1;
    }
    std::string status() const { return display.linkStatusField.stringValue(); }
    std::string message() const { return display.linkMessageField.stringValue(); }

    const UsbDevice was{"10c4:ea70:00", "S1", "1-1"};
};

TEST_F(LostPortTest, IsOpenedOnceWhenItReturnsAndSendsWhatEveryOpeningSends) {
    lose();
    EXPECT_EQ(status(), "Waiting for ttyUSB0 to return");
    EXPECT_THAT(message(), HasSubstr("Press Connect to stop waiting"));
    EXPECT_THAT(around.speech.spoken, ElementsAre("Waiting for ttyUSB0 to return"));
    around.scheduler.advance(1h);
    for (int turn = 0; turn < 4; ++turn) {
        around.portManager.connect({first});
        EXPECT_EQ(status(), "Opening ttyUSB0 again");
        around.scheduler.advance(250ms);
        if (turn == 3) break;
        around.portManager.disconnect({first});
        EXPECT_EQ(status(), "Waiting for ttyUSB0 to return");
    }
    EXPECT_FALSE(first->isOpen());
    EXPECT_TRUE(opensWithin(250ms));
    EXPECT_EQ(linkButtons(display), (LinkButtons{"Connected", Color::green, true}));
    EXPECT_EQ(message(), "");
    EXPECT_EQ(around.speech.spoken.back(), "ttyUSB0 is open again");
    EXPECT_EQ(around.notices.shown.back(),
              (UserNotification{"Serial Port Opened Again", "Serial Port ttyUSB0 was opened again."}));
    around.scheduler.advance(4999ms);
    EXPECT_THAT(first->written, IsEmpty());
    around.scheduler.advance(1h);
    EXPECT_EQ(first->written, (Texts{"MR001;", std::string(memorySlotString), std::string(synchronisationString)}));
    // The order stands.
    leave();
    around.portManager.connect({first});
    EXPECT_TRUE(opensWithin(1h));
}

TEST_F(LostPortTest, IsKnownByItsNameAndItsDevice) {
    const struct {
        std::string name;
        UsbDevice before, after;
        bool opens;
    } cases[] = {{"ttyUSB0", {}, {}, true},
                 {"ttyUSB0", was, {}, true},
                 {"ttyUSB0", {"10c4:ea70:00", "", "1-1"}, {"10c4:ea70:00", "", "1-2"}, true},
                 {"ttyUSB0", was, {"0403:6001:00", "S1", "1-1"}, false},
                 {"ttyUSB0", was, {"10c4:ea70:00", "S2", "1-1"}, false},
                 {"ttyUSB4", {}, {}, false},
                 {"ttyUSB4", was, {"10c4:ea70:00", "S1", "1-2"}, true},
                 {"ttyUSB4", was, {"10c4:ea70:01", "S1", "1-1"}, false},
                 {"ttyUSB4", {"10c4:ea70:00", "", "1-1"}, {"10c4:ea70:00", "", "1-1"}, true},
                 {"ttyUSB4", {"10c4:ea70:00", "", "1-1"}, {"10c4:ea70:00", "", "1-2"}, false}};
    for (const auto& [name, before, after, opens] : cases) {
        FakeSerialPort listed(name);
        listed.device = after;
        EXPECT_EQ(isSamePort({"ttyUSB0", before}, listed), opens) << name << ' ' << after.model << ' ' << after.serial;
    }
    lose();
    const auto moved = std::make_shared<FakeSerialPort>("ttyUSB4");
    moved->device = was;
    around.portManager.connect({moved});
    around.scheduler.advance(500ms);
    EXPECT_TRUE(moved->isOpen());
    EXPECT_EQ(around.settings.text("defaultPort"), "ttyUSB4");
}

TEST_F(LostPortTest, IsLeftAloneOnceTheOperatorActs) {
    const auto connect = [](LostPortTest& test) { test.display.openCloseButton.performClick(); };
    const auto another = [](LostPortTest& test) { test.display.PortPopUpButton.choose(0); };
    const auto forbid = [](LostPortTest& test) { test.display.menuItemPreferencesReopen.performClick(); };
    lose();
    for (const std::function<void(LostPortTest&)>& act :
         {std::function<void(LostPortTest&)>(connect), {another}, {connect}, {forbid}}) {
        ASSERT_EQ(status(), "Waiting for ttyUSB0 to return");
        act(*this);
        EXPECT_EQ(status(), "Not connected");
        EXPECT_EQ(message(), "");
        around.portManager.connect({first});
        EXPECT_FALSE(opensWithin(1h));
        // Pressed while the port is back, Connect opens it, and nothing opens it a second time.
        display.PortPopUpButton.choose(1);
        display.openCloseButton.performClick();
        leave();
        if (act.target_type() == typeid(forbid)) return;
        around.portManager.connect({first});
        display.openCloseButton.performClick();
        EXPECT_TRUE(first->isOpen());
        EXPECT_FALSE(opensWithin(1h));
        // What the operator closes stays closed.
        display.openCloseButton.performClick();
        around.portManager.disconnect({first});
        around.portManager.connect({first});
        EXPECT_FALSE(opensWithin(1h));
        display.openCloseButton.performClick();
        leave();
    }
}

TEST_F(LostPortTest, IsLeftAloneOnceTheProgramHasEnded) {
    Surroundings other;
    other.settings.values = {{"reopen", "1"}, {"defaultPort", "ttyUSB0"}};
    other.portManager.ports = {first};
    auto ended = std::make_unique<SerialPortDemoController>(other.platform(), ServiceHosts{});
    ended->awakeFromNib();
    ended->display.openCloseButton.performClick();
    first->unplug();
    other.portManager.disconnect({first});
    other.portManager.connect({first});
    ended.reset();
    other.scheduler.advance(1h);
    EXPECT_FALSE(first->isOpen());
}

TEST_F(LostPortTest, ThatDoesNotOpenYetIsTriedFiveTimes) {
    lose();
    first->openFailure =
        SerialPortError{SerialPortErrorKind::permission, "Permission denied", "/dev/ttyUSB0", "dialout"};
    around.sounds.played.clear();
    display.mainTab.selectItem(Display::radioPage);
    for (const int tries : {3, 5}) {
        around.portManager.connect({first});
        auto wait = 500ms;
        for (int attempt = 1; attempt <= tries; ++attempt, wait *= 2) {
            EXPECT_FALSE(opensWithin(wait - 1ms));
            EXPECT_TRUE(opensWithin(1ms)) << attempt;
            if (attempt == 5) break;
            EXPECT_EQ(status(), "Opening ttyUSB0 again");
            EXPECT_THAT(message(), HasSubstr("does not open yet: Permission denied."));
            EXPECT_THAT(around.sounds.played, IsEmpty());
        }
        if (tries == 3) around.portManager.disconnect({first});
    }
    EXPECT_EQ(around.sounds.played, Texts{"alert Frog"});
    EXPECT_EQ(status(), "Not connected");
    EXPECT_THAT(message(), HasSubstr("usermod -aG dialout"));
    EXPECT_FALSE(opensWithin(1h));

    first->openFailure.reset();
    display.openCloseButton.performClick();
    leave();
    first->openFailure = SerialPortError{SerialPortErrorKind::busy, "Device busy", "/dev/ttyUSB0", ""};
    around.portManager.connect({first});
    EXPECT_TRUE(opensWithin(500ms));
    first->openFailure.reset();
    EXPECT_TRUE(opensWithin(1h));
    EXPECT_EQ(linkButtons(display), (LinkButtons{"Connected", Color::green, true}));
}

TEST_F(SerialPortsTest, AChosenPortThatLeavesWhileClosedIsNotUsedAnyMore) {
    start({first, second});
    display.PortPopUpButton.choose(0);
    around.portManager.disconnect({first});
    EXPECT_EQ(controller.link.serialPort(), nullptr);
    EXPECT_EQ(display.portDetailsField.stringValue(), "");
    EXPECT_EQ(display.PortPopUpButton.indexOfSelectedItem(), PopUpButton::noSelection);
}

TEST_F(SerialPortsTest, PortsThatComeAndGoDoNotTouchAnOpenOne) {
    startOn({first}, 0);
    const auto third = std::make_shared<FakeSerialPort>("ttyACM0");
    around.settings.setText("defaultPort", "ttyUSB1");
    around.portManager.connect({second, third});
    EXPECT_EQ(display.PortPopUpButton.entries(), (Texts{"ttyUSB0", "ttyUSB1", "ttyACM0"}));
    EXPECT_EQ(display.PortPopUpButton.titleOfSelectedItem(), "ttyUSB0");
    around.portManager.disconnect({second});
    EXPECT_EQ(display.PortPopUpButton.entries(), (Texts{"ttyUSB0", "ttyACM0"}));
    EXPECT_EQ(display.PortPopUpButton.titleOfSelectedItem(), "ttyUSB0");
    EXPECT_TRUE(first->isOpen());
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(SerialPortsTest, AChosenPortStaysChosenWhenAnotherOneComes) {
    around.settings.setText("defaultPort", "ttyUSB0");
    start({second});
    display.PortPopUpButton.choose(0);
    around.portManager.connect({first});
    EXPECT_EQ(controller.link.serialPort(), second);
    EXPECT_EQ(display.PortPopUpButton.titleOfSelectedItem(), "ttyUSB1");
    // The remembered port serves while the chosen one is away.
    around.portManager.disconnect({second});
    around.portManager.connect({std::make_shared<FakeSerialPort>("ttyACM0")});
    EXPECT_EQ(controller.link.serialPort(), first);
    around.portManager.connect({second});
    EXPECT_EQ(controller.link.serialPort(), second);
}

TEST_F(SerialPortsTest, EveryPortThatComesOrGoesGetsANoticeForThreeSeconds) {
    start({});
    around.portManager.connect({first, second});
    around.scheduler.advance(2999ms);
    EXPECT_THAT(around.notices.removed, IsEmpty());
    around.scheduler.advance(1ms);
    EXPECT_THAT(around.notices.removed, ElementsAre(1U, 2U));
    around.portManager.disconnect({first});
    EXPECT_EQ(around.notices.shown,
              (std::vector<UserNotification>{
                  {"Serial Port Connected", "Serial Port ttyUSB0 was connected to your Mac."},
                  {"Serial Port Connected", "Serial Port ttyUSB1 was connected to your Mac."},
                  {"Serial Port Disconnected", "Serial Port ttyUSB0 was disconnected from your Mac."}}));
    EXPECT_EQ(around.log.lines, (Texts{"Ports were connected: ttyUSB0, ttyUSB1", "Ports were disconnected: ttyUSB0"}));
}

}  // namespace
}  // namespace corvane

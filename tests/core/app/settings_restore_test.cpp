#include <gmock/gmock.h>

#include "tests/support/test_bench.h"

namespace corvane {
namespace {

using testing::Contains;
using testing::Pair;

using Values = MapSettingsStore::Values;

using Switch = std::tuple<std::string, bool, int>;  // as it is held, checked in the menu, and tagged

std::vector<Switch> switches(const SerialPortDemoController& controller) {
    const Switches& values = controller.preferences.switches();
    const MenuItem& voice = controller.display.menuItemPreferencesVoice;
    const MenuItem& sounds = controller.display.menuItemPreferencesSounds;
    const MenuItem& ipo = controller.display.menuItemPreferencesIPO;
    return {{values.vqVoiceGuide, voice.checked(), voice.tag()},
            {values.vqSounds, sounds.checked(), sounds.tag()},
            {values.vqMemoryIPO, ipo.checked(), ipo.tag()}};
}

// A program whose window has been made, without a port.
struct Launched {
    explicit Launched(Values stored) {
        around.settings.values = std::move(stored);
        controller.awakeFromNib();
    }
    Surroundings around;
    SerialPortDemoController controller{around.platform(), {}};
    Display& display = controller.display;
};

TEST(SettingsRestore, SwitchesComeBackAsTheyWereStored) {
    const struct {
        Values stored;
        std::vector<Switch> shown;
    } cases[] = {
        {{}, {{"1", true, 900}, {"1", true, 901}, {"0", false, 1902}}},
        {{{"voice", "0"}, {"sounds", "0"}, {"ipo", "1"}}, {{"0", false, 1900}, {"0", false, 1901}, {"1", true, 902}}},
        {{{"voice", ""}, {"sounds", "yes"}, {"ipo", "11"}},
         {{"", false, 1900}, {"yes", false, 1901}, {"11", false, 1902}}}};
    for (const auto& [stored, shown] : cases) {
        Launched program(stored);
        EXPECT_EQ(switches(program.controller), shown);
        EXPECT_EQ(program.around.settings.values, stored) << "reading writes nothing";
    }
}

TEST(SettingsRestore, ASwitchIsTurnedAndStoredAtOnce) {
    Launched program({});
    const struct {
        MenuItem Display::*item;
        std::string_view key;
        std::size_t row;
        std::vector<Switch> turns;
    } cases[] = {{&Display::menuItemPreferencesVoice, "voice", 0, {{"0", false, 1900}, {"1", true, 900}}},
                 {&Display::menuItemPreferencesSounds, "sounds", 1, {{"0", false, 1901}, {"1", true, 901}}},
                 {&Display::menuItemPreferencesIPO, "ipo", 2, {{"1", true, 902}, {"0", false, 1902}}}};
    for (const auto& row : cases) {
        for (const Switch& turned : row.turns) {
            std::vector<Switch> expected = switches(program.controller);
            expected[row.row] = turned;
            (program.display.*row.item).performClick();
            EXPECT_EQ(switches(program.controller), expected);
            EXPECT_THAT(program.around.settings.values, Contains(Pair(row.key, std::get<0>(turned))));
        }
    }
    const auto before = switches(program.controller);
    MenuItem other{{"", 903}};
    program.controller.goMainMenu(other);
    EXPECT_EQ(switches(program.controller), before);
    EXPECT_EQ(other.tag(), 903);
}

TEST(SettingsRestore, RunsOnceForTheWindowAndAgainWhenPortsAppear) {
    Launched program({{"voice", "0"}, {"defaultPort", "ttyUSB1"}});
    program.around.settings.setText("voice", "1");
    program.display.vqMemAButton.setTitle("changed");
    program.controller.awakeFromNib();
    EXPECT_EQ(program.controller.preferences.switches().vqVoiceGuide, "0");
    EXPECT_EQ(program.display.vqMemAButton.title(), "changed");

    program.display.powerPopUpButton.selectItem(45);
    program.around.portManager.connect({std::make_shared<FakeSerialPort>("ttyUSB1")});
    EXPECT_EQ(program.controller.preferences.switches().vqVoiceGuide, "1");
    EXPECT_EQ(program.display.menuItemPreferencesVoice.tag(), 900);
    EXPECT_EQ(program.display.vqMemAButton.title(), "  M-01");
    EXPECT_EQ(program.display.PortPopUpButton.titleOfSelectedItem(), "ttyUSB1");

    const auto& power = program.display.powerPopUpButton;
    EXPECT_EQ(power.entries().size(), 96U);
    EXPECT_EQ(power.entries().front(), "5w");
    EXPECT_EQ(power.entries().back(), "100w");
    EXPECT_EQ(power.titleOfSelectedItem(), "50w") << "what the transceiver reported stays";
}

}  // namespace
}  // namespace corvane

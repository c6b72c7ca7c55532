// Every preset and every entry of every pop-up, chosen by the operator, puts the transceiver into the state that its
// title names.
#include <gmock/gmock.h>

#include <array>
#include <map>
#include <set>

#include "simulator/operating_mode.h"
#include "tests/support/radio_bench.h"
#include "wire/cat_command.h"

namespace corvane {
namespace {

// The transceiver's answer after an entry was chosen: after "OFF", "NR0;" is answered "NR00;".
struct Choice {
    std::string title;
    std::string request;
    std::string answer;
};
using Choices = std::vector<Choice>;

// The titles of a pop-up in order, each with its digit of `codes` and `tail` behind the command's name in the answer.
Choices choices(const std::string& command, std::string_view codes, std::initializer_list<const char*> titles,
                const std::string& tail = "") {
    EXPECT_EQ(codes.size(), titles.size()) << command;
    Choices list;
    for (const char* title : titles) list.push_back({title, command + ';', command + codes[list.size()] + tail + ';'});
    return list;
}

// Entries numbered from `from`, each with `first` and what follows it in so many digits: "5w" is "PC005;".
Choices numbered(const std::string& command, int width, int from, int to, const std::string& unit = "") {
    Choices list;
    for (int number = from; number <= to; ++number)
        list.push_back({std::to_string(number) + unit, command + ';', command + zeroPadded(number, width) + ';'});
    return list;
}

Choices operator+(Choices list, const Choices& more) {
    list.insert(list.end(), more.begin(), more.end());
    return list;
}

Choices scopeLevels() {
    Choices list;
    for (int halves = -60; halves <= 60; ++halves) {
        char level[16];
        std::snprintf(level, sizeof level, "%+05.1f", halves / 2.0);
        list.push_back({level, "SS04;", std::string("SS04") + level + ";"});
    }
    return list;
}

Choices modes() {
    Choices list;
    for (const auto& mode : simulator::operatingModes)
        list.push_back({std::string(mode.name), "MD0;", std::string("MD0") + mode.code + ";"});
    return list;
}

struct PopUpRow {
    PopUpButton Display::*popUp;
    Choices choices;
};

std::vector<PopUpRow> popUps() {
    using D = Display;
    return {
        {&D::modesPopUpButton, modes()},
        // Automatic is slow in the mode that the transceiver starts in.
        {&D::AGCPopUpButton, choices("GT0", "01236", {"OFF", "FAST", "MID", "SLOW", "AUTO"})},
        {&D::ATTPopUpButton, choices("RA0", "0123", {"OFF", "6 dB", "12 dB", "18 dB"})},
        {&D::ampPopUpButton, choices("PA0", "012", {"IPO", "AMP 1", "AMP 2"})},
        {&D::DNRPopupButton, choices("NR0", "0", {"OFF"}) + numbered("RL0", 2, 1, 15)},
        {&D::NBPopupButton, choices("NB0", "0", {"OFF"}) + numbered("NL0", 3, 1, 10)},
        {&D::smeterPopUpButton, choices("MS", "012345", {"PO", "COMP", "ALC", "VDD", "ID", "SWR"}, "0")},
        {&D::MPVDButton,
         choices("SF0", "13489", {"Clarifier", "Memory channel", "Memory group", "Step dial", "Roofing filter"})},
        {&D::FuncKnobButton, choices("SF1", "014569CDEFGHIJKMN",
                                     {"Scope level", "Scope peak", "Scope color", "Contrast", "Dimmer", "Mic gain",
                                      "Processor level", "AMC level", "RF power", "VOX gain", "VOX delay", "CW speed",
                                      "CW pitch", "Break-in delay", "Monitor level", "Memory group", "Anti VOX"})},
        {&D::spectrumModePopUpButton,
         choices("SS06", "0123456789AB",
                 {"3D center", "3D cursor", "3D fix", "Waterfall center (expanded)", "Waterfall center",
                  "Waterfall center (large)", "Waterfall cursor (expanded)", "Waterfall cursor",
                  "Waterfall cursor (large)", "Waterfall fix (expanded)", "Waterfall fix", "Waterfall fix (large)"},
                 "0000")},
        // The first color asks for nothing: the transceiver stays on the one it has, number 2.
        {&D::colorPopUpButton, choices("SS03", "1123456789A",
                                       {"Color 1", "Color 2", "Color 3", "Color 4", "Color 5", "Color 6", "Color 7",
                                        "Color 8", "Color 9", "Color 10", "Color 11"},
                                       "0000")},
        {&D::scopeSpeedPopUpButton,
         choices("SS00", "012345", {"Slow 1", "Slow 2", "Fast 1", "Fast 2", "Fast 3", "Stop"}, "0000")},
        {&D::scopePeakPopUpButton,
         choices("SS01", "01234", {"Level 1", "Level 2", "Level 3", "Level 4", "Level 5"}, "0000")},
        {&D::scopeLevelPopUpButton, scopeLevels()},
        {&D::scopeSpanPopUpButton,
         choices("SS05", "0123456789",
                 {"1 kHz", "2 kHz", "5 kHz", "10 kHz", "20 kHz", "50 kHz", "100 kHz", "200 kHz", "500 kHz", "1 MHz"},
                 "0000")},
        {&D::powerPopUpButton, numbered("PC", 3, 5, 100, "w")},
    };
}

TEST(EveryChoice, OfAPopUpReachesTheTransceiverAndComesBack) {
    for (PopUpRow& row : popUps()) {
        RadioBench bench;
        PopUpButton& popUp = bench.display.*row.popUp;
        ASSERT_EQ(popUp.entries().size(), row.choices.size()) << popUp.objectName();
        for (int index = 0; const Choice& choice : row.choices) {
            EXPECT_EQ(popUp.entries()[static_cast<std::size_t>(index)], choice.title);
            popUp.choose(index);
            bench.settle();
            EXPECT_EQ(bench.transceiver.ask(choice.request), choice.answer)
                << popUp.objectName() << ' ' << choice.title;
            // What it shows next is what the transceiver says.
            popUp.selectItem(PopUpButton::noSelection);
            bench.controller.sendCommand(choice.request);
            bench.settle();
            // The mode pop-up knows only the modes whose code is a digit; the first color asks for nothing.
            const int shown = row.popUp == &Display::modesPopUpButton && index >= 9   ? 0
                              : row.popUp == &Display::colorPopUpButton && index == 0 ? 1
                                                                                      : index;
            EXPECT_EQ(popUp.indexOfSelectedItem(), shown) << popUp.objectName() << ' ' << choice.title;
            ++index;
        }
        for (const auto& [level, request, on] : {std::tuple{&Display::DNRPopupButton, "NR0;", "NR01;"},
                                                 std::tuple{&Display::NBPopupButton, "NB0;", "NB01;"}}) {
            if (row.popUp == level) {
                EXPECT_EQ(bench.transceiver.ask(request), on);
            }
        }
    }
}

TEST(EveryChoice, OfTheRoofingFilterReachesTheTransceiver) {
    RadioBench bench;
    const std::pair<std::string_view, char> filters[] = {
        {"12 kHz", '1'}, {"3 kHz", '2'}, {"500 Hz", '4'}, {"300 Hz", '5'}};
    ASSERT_EQ(bench.display.RFILPopUpButton.entries().size(), std::size(filters));
    for (int index = 0; const auto& [title, code] : filters) {
        EXPECT_EQ(bench.display.RFILPopUpButton.entries()[static_cast<std::size_t>(index)], title);
        bench.display.RFILPopUpButton.choose(index++);
        EXPECT_EQ(bench.transceiver.state().roofingFilter, code) << title;
    }
}

TEST(EveryChoice, OfAMemoryChannelRecallsIt) {
    RadioBench bench;
    for (int channel = 1; channel <= memoryChannels; ++channel)
        ASSERT_TRUE(bench.transceiver.programChannel(channel, {{7'000'000 + channel * 1000, '1'}, "TAG"}));
    for (int index = 0; index < memoryChannels; ++index) {
        bench.display.memPopUpButton.choose(index);
        bench.settle();
        const std::string title = bench.display.memPopUpButton.entries()[static_cast<std::size_t>(index)];
        EXPECT_EQ(std::stoi(title.substr(2, 2)), bench.transceiver.state().sides[0].channel) << title;
        EXPECT_EQ(bench.transceiver.state().activeTuning().frequency, 7'001'000 + index * 1000) << title;
    }
}

// The tuning that the title of a preset names: "Phone - 40m", "60m - Chan 3", "Shortwave - 49m".
struct Promise {
    int lowest;  // hertz
    int highest;
    std::vector<std::string_view> modes;
};

Promise promiseOf(const std::string& title) {
    const std::string kind = title.substr(0, title.find(" - "));
    const std::string_view sideBand = title.ends_with("40m") || title.ends_with("80m") ? "LSB" : "USB";
    const std::size_t dash = title.find(" - ");
    const int metres = dash == std::string::npos ? 0 : std::atoi(title.c_str() + dash + 3);
    if (kind == "60m") {
        constexpr std::array channels{5'330'500, 5'346'500, 5'357'000, 5'371'500, 5'403'500};
        const int hertz = channels[static_cast<std::size_t>(title.back() - '1')];
        return {hertz, hertz, {"USB"}};
    }
    if (title == "Medium Wave") return {531'000, 1'700'000, {"AM"}};
    if (title == "Citizens Band") return {26'965'000, 27'405'000, {"AM"}};
    const std::map<int, std::pair<int, int>> broadcastBands{
        {11, {25'670'000, 26'100'000}}, {13, {21'450'000, 21'850'000}}, {15, {18'900'000, 19'020'000}},
        {16, {17'480'000, 17'900'000}}, {19, {15'100'000, 15'830'000}}, {22, {13'570'000, 13'870'000}},
        {25, {11'600'000, 12'100'000}}, {31, {9'400'000, 9'900'000}},   {41, {7'200'000, 7'450'000}},
        {49, {5'900'000, 6'200'000}},   {60, {4'750'000, 5'060'000}},   {90, {3'200'000, 3'400'000}},
        {120, {2'300'000, 2'495'000}}};
    const std::map<int, std::pair<int, int>> bands{{6, {50'000'000, 54'000'000}},  {10, {28'000'000, 29'700'000}},
                                                   {12, {24'890'000, 24'990'000}}, {15, {21'000'000, 21'450'000}},
                                                   {17, {18'068'000, 18'168'000}}, {20, {14'000'000, 14'350'000}},
                                                   {40, {7'000'000, 7'300'000}},   {80, {3'500'000, 4'000'000}}};
    const auto [lowest, highest] = (kind == "Shortwave" ? broadcastBands : bands).at(metres);
    if (kind == "Shortwave") return {lowest, highest, {"AM"}};
    if (kind == "Phone") return {lowest, highest, {sideBand}};
    if (kind == "CW") return {lowest, highest, {"CW-U", "CW-L"}};
    if (kind == "RTTY") return {lowest, highest, {"RTTY-U", "RTTY-L"}};
    if (kind == "PSK31") return {lowest, highest, {"PSK"}};
    EXPECT_EQ(title, "FT8 - 40m");
    return {7'074'000, 7'074'000, {"USB"}};
}

TEST(EveryChoice, OfAPresetTunesToWhatItsTitleSays) {
    RadioBench bench;
    PopUpButton& presets = bench.display.presetPopUpButton;
    ASSERT_EQ(presets.entries().size(), 39U);
    std::set<int> frequencies;
    for (const char* vfo : {"VS0;", "VS1;"}) {
        bench.transceiver.operate(vfo);
        bench.settle();
        for (int index = 0; index < static_cast<int>(presets.entries().size()); ++index) {
            const std::string title = presets.entries()[static_cast<std::size_t>(index)];
            const Promise promise = promiseOf(title);
            presets.choose(index);
            bench.settle();
            const simulator::Tuning tuned = bench.transceiver.state().activeTuning();
            frequencies.insert(tuned.frequency);
            EXPECT_GE(tuned.frequency, promise.lowest) << title;
            EXPECT_LE(tuned.frequency, promise.highest) << title;
            EXPECT_THAT(promise.modes, testing::Contains(simulator::modeOfCode(tuned.mode)->name)) << title;
            EXPECT_EQ(bench.display.modeField.stringValue(), simulator::modeOfCode(tuned.mode)->name) << title;
            EXPECT_EQ(bench.transceiver.ask("SF1;"), title.starts_with("CW") ? "SF1H;" : "SF1E;") << title;
        }
    }
    EXPECT_EQ(frequencies.size(), presets.entries().size()) << "no two presets are the same";
}

TEST(EveryChoice, OfThePresetsStandsInOneGroup) {
    TestBench bench;
    const PopUpButton& presets = bench.display.presetPopUpButton;
    std::vector<std::string> titles;
    for (const auto& group : presets.groups()) titles.push_back(group.title);
    EXPECT_THAT(titles, testing::ElementsAre("Phone", "CW", "RTTY", "PSK31 and FT8", "60 m channels",
                                             "Shortwave broadcast", "Medium wave and citizens band"));
    EXPECT_EQ(presets.groups().front().first, 0);
}

}  // namespace
}  // namespace corvane

#include <gmock/gmock.h>

#include "tests/support/test_bench.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

struct AutoBench : TestBench {
    explicit AutoBench(const std::string& squelch = "0")
        : TestBench(MapSettingsStore::Values{{"autosquelch", squelch}}) {
        receive("FB021200000;MD02;FA014250000;");
        forgetWhatHappened();
    }
    void keep(std::string_view frequency) { keepAutoMemory(controller, frequency); }
    const AutoMemoryState& kept = controller.autoMemories.state();
};

TEST(AutoMemories, ASignalAtTheSquelchIsRecordedEveryTwentySeconds) {
    AutoBench bench("9");
    bench.receive("RM1089999;");
    bench.advance(20s);
    EXPECT_THAT(bench.kept.vqAutoMemoryArray, IsEmpty());
    bench.receive("RM1090000;");
    bench.advance(19s);
    EXPECT_THAT(bench.kept.vqAutoMemoryArray, IsEmpty());
    bench.advance(1s);
    EXPECT_THAT(bench.kept.vqAutoMemoryArray, ElementsAre("014250000"));
    EXPECT_THAT(bench.kept.vqAutoModeArray, ElementsAre("USB"));
    EXPECT_THAT(bench.kept.vqAutoNotesArray, ElementsAre("   "));
    bench.receive("MD03;");
    bench.advance(1min);
    EXPECT_THAT(bench.kept.vqAutoModeArray, ElementsAre("USB")) << "once, in its first mode";
    bench.receive("VS1;");
    bench.advance(20s);
    EXPECT_THAT(bench.kept.vqAutoMemoryArray, ElementsAre("021200000", "014250000"));
    EXPECT_THAT(bench.kept.vqAutoModeArray, ElementsAre("CW-U", "USB"));
    EXPECT_THAT(bench.takeSounds(), IsEmpty());
    EXPECT_THAT(bench.takeWrites(), testing::Not(testing::Contains("RM1;"))) << "nothing is polled";
}

TEST(AutoMemories, OnRequestTheSquelchDoesNotCount) {
    AutoBench bench("15");
    bench.keep("FA007074000;");
    bench.keep("FA014074000;");
    EXPECT_THAT(bench.takeSounds(), ElementsAre("alert Tink", "alert Tink"));
    bench.keep("FA007074000;");
    EXPECT_THAT(bench.takeSounds(), IsEmpty());
    EXPECT_THAT(bench.kept.vqAutoMemoryArray, ElementsAre("014074000", "007074000"));
}

TEST(AutoMemories, BeforeTheFirstReportNothingStays) {
    TestBench bench;
    bench.display.autoMemoryNowButton.performClick();
    bench.receive("FA014250000;");
    bench.display.autoMemoryNowButton.performClick();
    EXPECT_THAT(bench.controller.autoMemories.state().vqAutoMemoryArray, IsEmpty());
    EXPECT_THAT(bench.controller.autoMemories.state().vqAutoModeArray, IsEmpty());
    EXPECT_THAT(bench.controller.autoMemories.state().vqAutoNotesArray, IsEmpty());
}

TEST(AutoMemories, RowsAreTunedToAndClearedByTheirButtons) {
    AutoBench bench;
    for (const char* frequency : {"FA007074000;", "FA014074000;", "FA028074000;"}) bench.keep(frequency);
    for (const auto& [row, note] : {std::pair{0, "ten"}, {1, "twenty"}, {2, "forty"}})
        bench.display.autoMemTable.editCell(row, 4, note);
    bench.forgetWhatHappened();
    TableView& table = bench.display.autoMemTable;
    ASSERT_EQ(table.rows(), 3);
    table.pressCell(1, 0);
    EXPECT_THAT(bench.takeWrites(), ElementsAre("MD02;FA014074000;"));
    EXPECT_THAT(bench.takeSounds(), ElementsAre("alert Frog"));
    bench.receive("VS1;");
    table.pressCell(2, 0);
    EXPECT_THAT(bench.takeWrites(), ElementsAre("MD02;FB007074000;"));
    bench.takeSounds();
    table.pressCell(0, 3);
    EXPECT_THAT(bench.takeSounds(), ElementsAre("alert Basso"));
    const auto row = [&](int index) {
        Writes cells;
        for (int column = 0; column < 5; ++column) cells.push_back(table.cell(index, column));
        return cells;
    };
    ASSERT_EQ(table.rows(), 2);
    EXPECT_THAT(row(0), ElementsAre("Tune", "014074000", "USB", "Clear", "twenty"));
    EXPECT_THAT(row(1), ElementsAre("Tune", "007074000", "USB", "Clear", "forty"));

    for (const int tag : {2, -1, 99}) {
        Button button{{"", tag}};
        bench.controller.goAutoMemsTune(button);
        bench.controller.goAutoMemsClear(button);
    }
    EXPECT_EQ(table.rows(), 2);
    EXPECT_THAT(bench.takeWrites(), IsEmpty());
    EXPECT_THAT(bench.takeSounds(), IsEmpty());
}

TEST(AutoMemories, TheClearKeyEmptiesTheListAndSendsNothing) {
    AutoBench bench;
    bench.keep("FA007074000;");
    bench.forgetWhatHappened();
    bench.controller.link.build("KY6;");
    bench.press(815);
    EXPECT_EQ(bench.display.autoMemTable.rows(), 0);
    EXPECT_EQ(bench.takeChanges().count("autoMemTable"), 0U) << "shown once the action has returned";
    bench.advance(0s);
    EXPECT_EQ(bench.takeChanges().count("autoMemTable"), 1U);
    EXPECT_THAT(bench.takeSounds(), ElementsAre("alert Basso"));
    EXPECT_THAT(bench.takeWrites(), IsEmpty());
    EXPECT_EQ(bench.controller.link.cmd(), "KY6;");
}

TEST(AutoMemorySquelch, IsRestoredShownAndKept) {
    const struct {
        const char* stored;
        const char* label;
        long long threshold;
        int slider;
    } cases[] = {
        {"0", "S0", 0, 0},           {"9", "S9", 90000, 9},    {"10", "S9+10", 100000, 10}, {"11", "S9+20", 125000, 11},
        {"15", "S9+60", 225000, 15}, {"16", "S1", 160000, 15}, {"-1", "S1", -10000, 0},     {"x", "S0", 0, 0}};
    for (const auto& squelch : cases) {
        AutoBench bench(squelch.stored);
        EXPECT_EQ(bench.display.autoMemSquelchTextField.stringValue(), squelch.label) << squelch.stored;
        EXPECT_EQ(bench.kept.vqAutoMemSquelch, squelch.threshold);
        EXPECT_EQ(bench.display.autoMemSquelchSlider.integerValue(), squelch.slider);
    }
    AutoBench bench;
    bench.display.autoMemSquelchSlider.drag(12);
    EXPECT_EQ(bench.display.autoMemSquelchTextField.stringValue(), "S9+30");
    EXPECT_EQ(bench.kept.vqAutoMemSquelch, 150000);
    EXPECT_EQ(bench.around.settings.values["autosquelch"], "12");
    EXPECT_THAT(bench.takeWrites(), IsEmpty());
}

}  // namespace
}  // namespace corvane

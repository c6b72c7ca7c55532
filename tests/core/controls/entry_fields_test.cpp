#include <gmock/gmock.h>

#include "tests/support/test_bench.h"
#include "wire/cat_command.h"

namespace corvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string tooLow = "Frequency must be in MHz and greater than 0.03\n\nExample: 0.860";
const std::string tooHigh = "Frequency must be in MHz and less than 75.0\n\nExample: 14.235";

// Both VFOs have been reported; `active` is the active one.
struct TunedBench : TestBench {
    explicit TunedBench(char active = 'A') {
        receive(active == 'A' ? "FB007100500;FA014250000;" : "FA014250000;FB007100500;");
        forgetWhatHappened();
    }
    void typeAndReturn(TextField& field, std::string_view text) {
        field.edit(text);
        field.performReturn();
    }
};

TEST(FrequencyEntry, ATypedFrequencyIsSentInOneWrite) {
    const struct {
        std::string_view typed;
        char vfo;
        std::string_view sent;
    } cases[] = {
        {"14.235", 'A', "MD02;FA014235000;SS0670000;"},    {"7.074", 'B', "MD01;FB007074000;SS0670000;"},
        {"0.860", 'A', "MD01;FA000860000;SS0670000;"},     {"0.03", 'A', "MD01;FA000030000;SS0670000;"},
        {"75", 'A', "MD02;FA075000000;SS0670000;"},        {"010.5", 'A', "MD02;FA010500000;SS0670000;"},
        {"9.9999", 'A', "MD01;FA009999900;SS0670000;"},    {"10", 'B', "MD02;FB010000000;SS0670000;"},
        {" +14.2 ", 'A', "MD02;FA014200000;SS0670000;"},   {"00014.07015", 'A', "MD02;FA014070150;SS0670000;"},
        {"7.0741509", 'A', "MD01;FA007074150;SS0670000;"}, {"50.313001", 'A', "MD02;FA050313001;SS0670000;"},
    };
    for (const auto& entry : cases) {
        TunedBench bench(entry.vfo);
        bench.typeAndReturn(bench.display.freqTextField, entry.typed);
        EXPECT_THAT(bench.takeWrites(), ElementsAre(entry.sent)) << entry.typed;
        EXPECT_EQ(bench.controller.link.cmd(), entry.sent);
        EXPECT_EQ(bench.display.freqTextField.stringValue(), entry.vfo == 'A' ? "14.250" : "7.100");
        EXPECT_FALSE(bench.display.freqTextField.editing());
        EXPECT_GT(bench.display.freqTextField.resignations(), 0);
        EXPECT_THAT(bench.around.alerts.shown, IsEmpty());
    }
}

// Six decimals are sent exactly, for every hertz.
TEST(FrequencyEntry, NoTypedHertzIsLost) {
    TunedBench bench;
    for (int hertz = 30'000; hertz <= 75'000'000; hertz += 99'991) {
        const std::string typed = std::to_string(hertz / 1'000'000) + '.' + zeroPadded(hertz % 1'000'000, 6);
        bench.typeAndReturn(bench.display.freqTextField, typed);
        ASSERT_THAT(bench.takeWrites().front(), testing::HasSubstr("FA" + zeroPadded(hertz, 9) + ';')) << typed;
    }
}

TEST(FrequencyEntry, WhatIsNoFrequencyIsWarnedOfAndNotSent) {
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"0.0299", tooLow}, {"abc", tooLow},     {"", tooLow},       {"0", tooLow},    {"-14", tooLow},
        {"14,2", tooLow},   {"75.001", tooHigh}, {"14235", tooHigh}, {"1e9", tooHigh},
    };
    for (const auto& [typed, warning] : cases) {
        TunedBench bench('B');
        bench.typeAndReturn(bench.display.freqTextField, typed);
        EXPECT_THAT(bench.around.alerts.shown, ElementsAre(warning)) << typed;
        EXPECT_THAT(bench.takeSounds(), ElementsAre("alert Glass"));
        EXPECT_THAT(bench.takeWrites(), IsEmpty()) << typed;
        EXPECT_EQ(bench.display.freqTextField.stringValue(), "7.100");
    }
}

TEST(FrequencyEntry, ReportsDoNotOverwriteWhatIsBeingTyped) {
    TunedBench bench;
    TextField& field = bench.display.freqTextField;
    field.edit("14.0");
    bench.receive("FA014260000;");
    EXPECT_EQ(field.stringValue(), "14.0");
    field.cancelEditing();
    EXPECT_EQ(field.stringValue(), "14.260") << "the report that came while it was typed";
    field.edit("7");
    bench.display.tuneButton.performClick();
    EXPECT_EQ(bench.takeWrites().back(), "MD01;FA007000000;SS0670000;");
    bench.receive("FA007000000;");
    EXPECT_EQ(field.stringValue(), "7.000");
}

TEST(CallSign, IsSentInTwelveUpperCaseCharacters) {
    const struct {
        std::string_view typed, sent, shown;
    } cases[] = {
        {" n0call ", "EX040101N0CALL      ;", " N0CALL "},
        {"ABCDEFGHIJKLMN", "EX040101ABCDEFGHIJKL;", "ABCDEFGHIJKLMN"},
        {"", "EX040101            ;", ""},
        {"oe/n0call/p", "EX040101OE/N0CALL/P ;", "OE/N0CALL/P"},
    };
    for (const auto& entry : cases) {
        TunedBench bench;
        EXPECT_EQ(bench.display.saveCallButton.title(), "Save");
        bench.typeAndReturn(bench.display.callTextField, entry.typed);
        EXPECT_THAT(bench.takeWrites(), ElementsAre(entry.sent));
        EXPECT_EQ(bench.display.callTextField.stringValue(), entry.shown);
        EXPECT_EQ(bench.display.saveCallButton.title(), "Saved");
        EXPECT_EQ(bench.display.saveCallButton.bezelColor(), Color::green);
    }
}

TEST(CallSign, WhatWouldEndTheCommandIsRefused) {
    TunedBench bench;
    for (const std::string_view typed : {"N0CALL;PS0", "N\u00d8CALL", "N0\tCALL"}) {
        bench.typeAndReturn(bench.display.callTextField, typed);
        EXPECT_THAT(bench.takeWrites(), IsEmpty()) << typed;
        EXPECT_NE(bench.display.callNoticeField.stringValue(), "");
        EXPECT_EQ(bench.display.callTextField.stringValue(), typed);
    }
    bench.typeAndReturn(bench.display.callTextField, "N0CALL");
    EXPECT_EQ(bench.display.callNoticeField.stringValue(), "");
}

}  // namespace
}  // namespace corvane

#include <gmock/gmock.h>

#include "tests/support/test_bench.h"

namespace corvane {
namespace {

using testing::IsEmpty;

struct KeyerBench : TestBench {
    explicit KeyerBench(std::string_view mode, std::string_view reports = "") {
        receive(std::string(mode).append(reports));
        forgetWhatHappened();
    }
    Writes send(std::string_view text) {
        display.textMemoryField.edit(text);
        display.textMemoryField.performReturn();
        return takeWrites();
    }
};

TEST(Keyer, ATypedTextGoesThroughMemoryFiveInPieces) {
    const std::string first(49, 'A');
    const struct {
        std::string_view mode, reports;
        std::string text;
        Writes written;
    } cases[] = {
        {"MD06;",
         "EM05CQ CQ;",
         first + "BCDEFGHIJKL",
         {"EM05" + first + "};", "EN05;", "EM05BCDEFGHIJKL};", "EN05;", "EM05CQ CQ};"}},
        {"MD07;", "KM5TEST;", first, {"KM5" + first + "};", "KYA;", "KM5};", "KYA;", "KM5TEST};"}},
        {"MD0E;", "", "73", {"EM1573};", "EN15;", "EM15};"}},
        {"MD03;", "KM5TEST;", "", {"KM5};", "KYA;", "KM5TEST};"}},
        // All memories have been read: memory 5 of another mode group was reported last.
        {"MD09;", "KM5CW;EM05RTTY;EM15PSK;", "RYRY", {"EM05RYRY};", "EN05;", "EM05RTTY};"}},
    };
    for (const auto& message : cases) {
        KeyerBench bench(message.mode, message.reports);
        bench.display.sentTextMemoryField.setStringValue("before");
        EXPECT_EQ(bench.send(message.text), message.written) << message.text;
        EXPECT_EQ(bench.display.sentTextMemoryField.stringValue(), message.text + "\nbefore");
        EXPECT_EQ(bench.display.textMemoryField.stringValue(), "");
    }
}

TEST(Keyer, TextThatTheTransceiverCannotHoldIsRefusedAndKept) {
    for (const std::string_view text : {"CQ;PS0", "GR\u00dcSSE", "CQ\nTEST", "\x7f", "\t"}) {
        KeyerBench bench("MD03;");
        EXPECT_THAT(bench.send(text), IsEmpty()) << text;
        EXPECT_EQ(bench.display.textMemoryField.stringValue(), text);
        EXPECT_NE(bench.display.textMemoryNoticeField.stringValue(), "");
        EXPECT_EQ(bench.display.sentTextMemoryField.stringValue(), "");
        bench.display.cwMemoryField.edit(text);
        bench.display.cwMemoryPopUpButton.choose(2);
        EXPECT_THAT(bench.takeWrites(), IsEmpty()) << text;
        EXPECT_EQ(bench.display.cwMemoryField.stringValue(), text);
        EXPECT_NE(bench.display.memoryTextNoticeField.stringValue(), "");
        bench.display.textMemoryField.edit("CQ");
        EXPECT_EQ(bench.display.textMemoryNoticeField.stringValue(), "") << "corrected while typing";
    }
}

TEST(Keyer, AMemoryFiveThatWasNotReportedIsNotErased) {
    TestBench bench;
    bench.receive("EM15PSK FIVE;MD03;");
    bench.takeWrites();
    bench.display.textMemoryField.edit("CQ");
    bench.display.sendTextMemoryButton.performClick();
    EXPECT_EQ(bench.takeWrites().back(), "KM5PSK FIVE};") << "the memory 5 reported last";
}

TEST(Keyer, OutsideItsModesNothingIsSentAndNothingIsLost) {
    KeyerBench bench("MD02;");
    bench.controller.link.build("KY6;");
    EXPECT_THAT(bench.send("CQ"), IsEmpty());
    bench.controller.sendTextMessage(bench.display.sendTextMemoryButton);
    EXPECT_THAT(bench.takeWrites(), IsEmpty());
    EXPECT_EQ(bench.display.textMemoryField.stringValue(), "CQ");
    EXPECT_EQ(bench.display.sentTextMemoryField.stringValue(), "");
}

TEST(Keyer, AnEditorStoresItsTextAndAsksForItBack) {
    const struct {
        TextField Display::*text;
        PopUpButton Display::*memory;
        int entry;
        std::string typed;
        Writes written;
    } cases[] = {
        {&Display::cwMemoryField, &Display::cwMemoryPopUpButton, 2, "CQ TEST", {"KM2CQ TEST;", "KM2;"}},
        {&Display::rttyMemoryField, &Display::rttyMemoryPopUpButton, 5, "RY", {"EM05RY;", "EM05;"}},
        {&Display::pskMemoryField,
         &Display::pskMemoryPopUpButton,
         1,
         std::string(60, 'X'),
         {"EM11" + std::string(49, 'X') + ";", "EM11;"}},
        {&Display::cwMemoryField, &Display::cwMemoryPopUpButton, 0, "CQ TEST", {}},
    };
    for (const auto& editor : cases) {
        KeyerBench bench("MD02;");
        TextField& field = bench.display.*editor.text;
        field.edit(editor.typed);
        (bench.display.*editor.memory).choose(editor.entry);
        EXPECT_EQ(bench.takeWrites(), editor.written);
        EXPECT_EQ(field.stringValue(), editor.entry == 0 ? editor.typed : "");
    }
}

TEST(Keyer, ARefusedTextLeavesNoMemoryChosen) {
    KeyerBench bench("MD03;");
    bench.display.cwMemoryPopUpButton.selectItem(0);
    bench.display.cwMemoryField.edit("CQ;TX1");
    bench.display.cwMemoryPopUpButton.choose(3);
    EXPECT_EQ(bench.display.cwMemoryPopUpButton.indexOfSelectedItem(), 0) << "nothing was stored in memory 3";
    EXPECT_EQ(bench.display.memoryTextNoticeField.stringValue(), "The transceiver cannot hold \";\".");
    EXPECT_EQ(bench.display.cwMemoryField.stringValue(), "CQ;TX1");
    EXPECT_THAT(bench.takeWrites(), IsEmpty());
}

TEST(Keyer, TheClearKeyEmptiesWhatIsTyped) {
    KeyerBench bench("MD03;");
    bench.display.textMemoryField.edit("CQ;");
    bench.display.clearTextMemoryButton.performClick();
    EXPECT_EQ(bench.display.textMemoryField.stringValue(), "");
    EXPECT_EQ(bench.display.textMemoryNoticeField.stringValue(), "");
    EXPECT_THAT(bench.takeWrites(), IsEmpty());
}

}  // namespace
}  // namespace corvane

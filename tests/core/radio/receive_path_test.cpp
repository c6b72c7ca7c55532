#include <gmock/gmock.h>

#include "tests/support/test_bench.h"

namespace corvane {
namespace {

using testing::IsEmpty;

TEST(ReceivePath, SignalIsTheLastSixDigitsOfTheLastMeterReport) {
    const struct {
        std::string_view chunk;
        int signal;
    } cases[] = {{"RM1100000;", 100000},     {"RM1045000;RM1012000;", 12000},
                 {"RM1100000;RM;", 0},       {"RM\n1100000;", 100000},
                 {"\nRM1023000;", 23000},    {"RM12345", 0},
                 {"RM1-12345;", -12345},     {"RM1100 00;", 0},
                 {"PS1;RM1100000;", 100000}, {"FA014250000;", 77},
                 {"R\xFFM1100000;", 77},     {"RM1100000;\xC3", 77}};
    TestBench bench;
    for (const auto& [chunk, signal] : cases) {
        bench.receive("RM1000077;");
        bench.receive(chunk);
        EXPECT_EQ(bench.radio.vqSignal, signal) << chunk;
    }
}

TEST(ReceivePath, EachResponseTouchesTheControlsOfItsOwnHandlerOnly) {
    // clang-format off
    const struct {
        std::string_view response;
        ControlNames changed;
    } cases[] = {
        {"AG0128", {"afGainSlider"}}, {"BC01", {"dnfButton"}}, {"BI1", {"bkinButton"}}, {"BP00001", {"notchButton"}},
        {"CO000001", {"contButton"}}, {"EM03CQ", {"textMemory3Button", "rttyMemory3Button"}},
        {"EM13CQ", {"textMemory3Button", "pskMemory3Button"}},
        {"FA014250000", {"vqFreqAButton", "freqTextField", "m20Button", "licenseClassButton", "activeVfoField"}},
        {"FB007074000", {"vqFreqBButton", "freqTextField", "m40Button", "licenseClassButton"}},
        {"GT02", {"AGCPopUpButton"}}, {"IF000014250000+000000200000", {"vqFreqAButton"}},
        {"KM3CQ", {"textMemory3Button", "cwMemory3Button"}}, {"MC005", {}}, {"MD02", {"modeField", "modesPopUpButton"}},
        {"MS50", {"smeterPopUpButton"}}, {"NB00", {"NBPopupButton"}}, {"NL0005", {"NBPopupButton"}},
        {"NR00", {"DNRPopupButton"}}, {"OI000007074000+000000200000", {"vqFreqBButton"}},
        {"PA01", {"ampPopUpButton"}}, {"PC050", {"tag2007"}}, {"PS0", {"linkMessageField", "linkStatusField", "onAirField", "sMeter", "segmentField"}}, {"RA01", {"ATTPopUpButton"}},
        {"RG0200", {"rfGainSlider"}}, {"RL005", {"DNRPopupButton"}}, {"RM1100000", {"sMeter"}},
        {"SF03", {"MPVDButton"}}, {"SF1H", {"FuncKnobButton"}}, {"SS0010000", {"tag2000"}},
        {"SS0120000", {"tag2001"}}, {"SS03A0000", {"colorPopUpButton"}}, {"SS04+10.5", {"tag2004"}},
        {"SS0570000", {"tag2005"}}, {"SS06B0000", {"spectrumModePopUpButton"}}, {"VS0", {"activeVfoField"}},
        {"VS1", {}},
    };
    // clang-format on
    for (const auto& [response, changed] : cases) {
        TestBench bench;
        bench.receive("?;");  // something has come from the transceiver
        bench.takeChanges();
        bench.receive(std::string(response) + ';');
        EXPECT_EQ(bench.takeChanges(), changed) << response;
    }
}

TEST(ReceivePath, WhatNoHandlerTakesChangesNothing) {
    TestBench bench;
    bench.receive("?;");
    bench.forgetWhatHappened();
    const std::vector<std::string_view> untaken[] = {
        // nothing, an error, and names that no handler has
        {"", ";", ";;;", "\n\n;", "0000;", "?;", "??FA;", "AI1;", "RF03;", "SS0200000;", "SS0700000;", "PS1;", "F"},
        {"fa014250000;", " FA014250000;", "\nVS0;", "MR001;"},
        // values that are none, or of another width
        {"PS", "PS2;", "VS;", "VS00;", "VS2;", "NR010;", "NR02;", "BI;", "BI2;", "BC1;", "CO00;", "BP0000;", "MD12;"},
        {"MD;", "MC;", "MC05;", "IF;", "IF01;", "OI00;", "SF0;", "SF0Z;", "SF2H;", "SS00;", "SS03;", "KM;", "KM0CQ;"},
        {"KM6CQ;", "EM;", "EM1;", "EM16CQ;", "EM1xCQ;"},
        // what is not text, or a chunk with such bytes in it
        {"\xF0\x9F\x93\xBB;", "FA014250000;\xFF;", "\xC3"},
    };
    for (const auto& chunks : untaken)
        for (const std::string_view chunk : chunks) {
            bench.receive(chunk);
            EXPECT_EQ(bench.takeChanges(), ControlNames{}) << chunk;
            EXPECT_EQ(bench.takeWrites(), Writes{}) << chunk;
        }
    EXPECT_EQ(bench.radio.vqFreqA, "");
    EXPECT_EQ(bench.radio.vqAorB, "B");
    EXPECT_EQ(bench.radio.vqMemCh, "001");
}

TEST(ReceivePath, SwitchedOnEndsTheChunk) {
    TestBench bench;
    bench.receive("MD02;PS1;FA014250000;MD03;");
    EXPECT_EQ(bench.radio.vqMode, "USB");
    EXPECT_EQ(bench.radio.vqFreqA, "");
    bench.receive("FA014250000;");
    EXPECT_EQ(bench.radio.vqFreqA, "014250000");
}

TEST(ReceivePath, TakesEveryResponseOfAChunkInOrder) {
    TestBench bench;
    bench.receive("FA014250000;FB007100000;NB01;NR01;NB00;NR00;MD01");
    EXPECT_EQ(bench.takeWrites(), (Writes{"GT0;", "RA0;", "RF0;", "GT0;", "RA0;", "RF0;", "NL0;", "RL0;"}));
    EXPECT_EQ(bench.radio.vqFreqA, "014250000");
    EXPECT_EQ(bench.radio.vqFreqB, "007100000");
    EXPECT_EQ(bench.radio.vqAorB, "B");
    EXPECT_EQ(bench.radio.vqMode, "LSB");
}

TEST(ReceivePath, APieceOfAResponseIsOfferedAsItStands) {
    TestBench bench;
    bench.receive("FA01425");
    bench.receive("0000;");
    EXPECT_EQ(bench.radio.vqFreqA, "01425");
    EXPECT_THAT(bench.takeWrites(), IsEmpty());
    bench.receive("FA014\n\n250000;");
    EXPECT_EQ(bench.radio.vqFreqA, "014250000");
}

TEST(ReceivePath, LinkStatusTellsWhetherTheTransceiverAnswers) {
    TestBench bench;
    EXPECT_EQ(bench.display.linkStatusField.stringValue(), "ttyUSB0: waiting for the transceiver");
    bench.receive("\xFF\xFF");
    EXPECT_EQ(bench.display.linkStatusField.stringValue(), "ttyUSB0: waiting for the transceiver");
    bench.receive("?;");
    EXPECT_EQ(bench.display.linkStatusField.stringValue(), "ttyUSB0: connected");
    bench.port->close();
    EXPECT_EQ(bench.display.linkStatusField.stringValue(), "Not connected");
    bench.port->open();
    EXPECT_EQ(bench.display.linkStatusField.stringValue(), "ttyUSB0: waiting for the transceiver");
}

}  // namespace
}  // namespace corvane

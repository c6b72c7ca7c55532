#include <gmock/gmock.h>

#include "tests/support/radio_bench.h"
#include "wire/cat_command.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

const MemoryChannel unread;

// The 200 requests of a whole read: for each kind the first channel twice, then all others.
Writes wholeRead() {
    Writes requests;
    for (const char* name : {"MR", "MT"})
        for (int count = 0; count <= 99; ++count) requests.push_back(name + zeroPadded(std::max(1, count), 3) + ';');
    return requests;
}

std::string popUpTitle(TestBench& bench, int channel) {
    return bench.display.memPopUpButton.entries()[static_cast<std::size_t>(channel - 1)];
}

// A transceiver with channels 1 and 3 programmed and all others empty.
simulator::RadioState twoChannels() {
    simulator::RadioState state = simulator::startState();
    for (int channel = 1; channel <= memoryChannels; ++channel) state.memories.clear(channel);
    state.memories.write(1, {14'250'000, '2'});
    state.memories.writeTag(1, "CALLING", true);
    state.memories.write(3, {7'074'000, 'C'});
    state.memories.writeTag(3, "40M FT8, QRP", true);
    return state;
}

TEST(MemoryRead, AsksForEveryChannelInOrderAndFillsTableAndPopUp) {
    RadioBench bench(twoChannels());
    bench.display.memPopUpButton.selectItem(2);
    bench.display.readMemoriesButton.performClick();
    bench.settle();
    EXPECT_EQ(bench.takeWrites(), wholeRead());
    const MemoryTable& table = bench.controller.memories.vqMemArray();
    for (int row = 0; row < memoryChannels; ++row) {
        MemoryChannel expected = unread;
        if (row == 0) expected = {"014250000", "2", "CALLING     "};
        if (row == 2) expected = {"007074000", "C", "40M FT8, QRP"};
        EXPECT_EQ(table[static_cast<std::size_t>(row)], expected) << row;
    }
    EXPECT_EQ(popUpTitle(bench, 1), "M-01 CALLING     ");
    EXPECT_EQ(popUpTitle(bench, 2), "M-02  ");
    EXPECT_EQ(popUpTitle(bench, 3), "M-03 40M FT8, QRP");
    EXPECT_EQ(popUpTitle(bench, 99), "M-99  ");
    EXPECT_EQ(bench.display.memPopUpButton.entries().size(), 99U);
    EXPECT_EQ(bench.display.memPopUpButton.indexOfSelectedItem(), 2);
    EXPECT_THAT(bench.takeSounds(), ElementsAre("file Funk"));
    EXPECT_EQ(bench.display.memoryReadField.stringValue(), "Read: 2 channels programmed, 97 empty");
    EXPECT_FALSE(bench.display.memoryReadProgress.visible());
}

TEST(MemoryRead, ShowsHowFarItHasComeAndWhenItHasStopped) {
    TestBench bench;
    bench.outlastOpening();
    const auto progress = [&] {
        return bench.display.memoryReadField.stringValue() + " " +
               std::to_string(bench.display.memoryReadProgress.integerValue());
    };
    bench.display.readMemoriesButton.performClick();
    EXPECT_EQ(progress(), "Reading frequencies, channel 1 of 99 0");
    EXPECT_TRUE(bench.display.memoryReadProgress.visible());
    for (int reply = 0; reply < 37; ++reply) bench.receive("?;");
    EXPECT_EQ(progress(), "Reading frequencies, channel 37 of 99 37");
    bench.advance(6s);
    EXPECT_EQ(progress(), "Reading frequencies, channel 37 of 99: no answer. Press Read memories to start again. 37");
    for (int reply = 0; reply < 63 + 12; ++reply) bench.receive("?;");
    EXPECT_EQ(progress(), "Reading tags, channel 12 of 99 112");
    bench.port->unplug();
    EXPECT_EQ(bench.display.memoryReadField.stringValue(),
              "Reading tags, channel 12 of 99: stopped, the link is closed.");
    EXPECT_FALSE(bench.display.readMemoriesButton.enabled());
    EXPECT_FALSE(bench.display.writeMemoriesButton.enabled());
}

TEST(MemoryRead, StartsAfreshWhereverTheLastOneStopped) {
    RadioBench bench(twoChannels());
    for (const int replies : {0, 1, 50, 100, 150, 199}) {
        bench.display.readMemoriesButton.performClick();
        for (int reply = 0; reply < replies; ++reply) bench.receive("?;");
        bench.display.readMemoriesButton.performClick();
        EXPECT_EQ(bench.controller.memories.read().vqMemRead, "run");
        EXPECT_EQ(bench.controller.memories.read().vqTagRead, "0");
        EXPECT_EQ(bench.controller.memories.read().vqMemReadCnt, 0);
        EXPECT_EQ(bench.controller.memories.read().vqTagReadCnt, 0);
        EXPECT_THAT(bench.controller.memories.vqMemArray(), Each(unread));
    }
    bench.port->onWrite = {};
    bench.receive(std::string(3'000, '?') + ";");
    for (int storm = 0; storm < 1'000; ++storm) bench.receive("?;");
    EXPECT_EQ(bench.controller.memories.read().vqTagRead, "0");
    EXPECT_THAT(bench.controller.memories.vqMemArray(), Each(unread));
}

// A request that was under way when a read was started again, or an error response to another command, adds one reply.
// Then the reply for the last channel comes after the tags have begun.
TEST(MemoryRead, LosesNoChannelWhenTheChainRunsAhead) {
    simulator::RadioState state = simulator::startState();
    for (int channel = 1; channel <= memoryChannels; ++channel) {
        state.memories.write(channel, {7'000'000 + channel, '1'});
        state.memories.writeTag(channel, "TAG " + std::to_string(channel), true);
    }
    for (const bool startedAgain : {true, false}) {
        RadioBench bench(state);
        bench.display.readMemoriesButton.performClick();
        if (startedAgain) {
            bench.display.readMemoriesButton.performClick();
        } else {
            bench.receive("?;");
        }
        bench.settle();
        const MemoryTable& table = bench.controller.memories.vqMemArray();
        for (int row = 0; row < memoryChannels; ++row) {
            const MemoryChannel& channel = table[static_cast<std::size_t>(row)];
            EXPECT_EQ(channel.frequency, std::to_string(7'000'001 + row).insert(0, "00")) << row;
            EXPECT_THAT(channel.tag, testing::StartsWith("TAG " + std::to_string(row + 1))) << row;
            EXPECT_EQ(bench.controller.memories.read().asRead[static_cast<std::size_t>(row)].row, channel) << row;
        }
        EXPECT_EQ(bench.radio.vqMemATag, "") << "the channel in use is another one";
    }
}

TEST(MemoryRead, RepliesThatSayNothingMoveTheChainAndChangeNothing) {
    for (const std::string_view reply :
         {"MR304014250000+000000200000;", "MRxyz014250000+000000200000;", "MR;", "MR;", "MR100014250000+000000200000;",
          "MR000014250000+000000200000;", "MR001\u00e4\u00e4\u00e4\u00e4\u00e4\u00e4+000000200000;", "?;"}) {
        TestBench bench;
        bench.display.readMemoriesButton.performClick();
        bench.takeWrites();
        bench.receive(reply);
        EXPECT_THAT(bench.takeWrites(), ElementsAre("MR001;")) << reply;
        EXPECT_THAT(bench.controller.memories.vqMemArray(), Each(unread)) << reply;
    }
}

// An empty row would be erased by a write; this one the transceiver refuses, and keeps the channel.
TEST(MemoryRead, AShortReplyFillsItsRowWithTheCharactersItHas) {
    TestBench bench;
    bench.display.readMemoriesButton.performClick();
    bench.takeWrites();
    bench.receive("MR00501425;");
    EXPECT_EQ(bench.controller.memories.vqMemArray()[4], (MemoryChannel{"R00501425", "5", ""}));
    EXPECT_EQ(bench.display.memoriesTable.cell(4, 2), "");
    EXPECT_THAT(bench.takeWrites(), ElementsAre("MR001;"));
}

TEST(MemoryRead, ATagThatComesUnaskedIsTaken) {
    TestBench bench;
    bench.receive("MT0071MY CHANNEL  ;MT1001NOT IN TABLE;");
    EXPECT_EQ(bench.controller.memories.vqMemArray()[6], (MemoryChannel{" ", " ", "MY CHANNEL  "}));
    EXPECT_EQ(popUpTitle(bench, 7), "M-07 MY CHANNEL  ");
    EXPECT_THAT(bench.takeWrites(), IsEmpty());
}

TEST(MemoryRead, AReplyOutsideAReadDescribesTheChannelInUse) {
    TestBench bench;
    bench.receive("FB007074000;FA014250000;MC012;");
    bench.receive("MR012014250000+000000210000TWENTY      ;");
    EXPECT_EQ(bench.radio.vqMemFreq, "014250000");
    EXPECT_EQ(bench.radio.vqMemATag, "TWENTY");
    EXPECT_EQ(bench.display.vqMemAButton.title(), "  M-12 TWENTY");
    EXPECT_EQ(bench.radio.vqModeA, "memory");
    bench.receive("MR012014250001+000000210000TWENTY      ;");
    EXPECT_EQ(bench.radio.vqModeA, "vfo");
    bench.receive("VS1;MR003007074000+000000210000FORTY       ;");
    EXPECT_EQ(bench.radio.vqMemBTag, "FORTY");
    EXPECT_EQ(bench.radio.vqModeB, "memory");
    EXPECT_EQ(bench.radio.vqMemATag, "TWENTY");
    EXPECT_THAT(bench.controller.memories.vqMemArray(), Each(unread));
}

}  // namespace
}  // namespace corvane

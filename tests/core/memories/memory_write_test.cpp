#include <gmock/gmock.h>

#include "memories/memory_csv.h"
#include "tests/support/radio_bench.h"
#include "wire/cat_command.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct WrittenBench : TestBench {
    Writes write() {
        display.writeMemoriesButton.performClick();
        advance(1s);
        return takeWrites();
    }
};

TEST(MemoryWrite, WritesProgrammedRowsWithTheirTagsAndErasesTheOthers) {
    WrittenBench bench;
    MemoryTable rows;
    rows[0] = {"014250000", "2", "A TAG THAT IS TOO LONG"};
    rows[4] = {"007074000", "2", "FT8"};
    rows[8] = {"", "", ""};
    rows[9] = {"003600000", "1", ""};
    bench.controller.memories.setRows(rows);
    const Writes written = bench.write();
    Writes expected;
    for (int channel = 1; channel <= memoryChannels; ++channel) {
        if (channel == 1) {
            expected.insert(expected.end(), {"MW001014250000+000000210000;", "MT0011A TAG THAT I;"});
        } else if (channel == 5) {
            expected.insert(expected.end(), {"MW005007074000+000000210000;", "MT0051FT8         ;"});
        } else if (channel == 10) {
            expected.insert(expected.end(), {"MW010003600000+000000110000;", "MT0101            ;"});
        } else {
            expected.push_back("MW" + zeroPadded(channel, 3) + "000000000+0000001000001-- ERASE -- ;");
        }
    }
    expected.insert(expected.end(), {"VS1;", "MC002;", "VS0;", "MC001;"});
    EXPECT_EQ(written, expected);
    EXPECT_EQ(bench.display.memPopUpButton.entries()[4], "M-05 FT8");
    EXPECT_EQ(bench.takeSounds().back(), "file Seatbelts");
}

TEST(MemoryWrite, WaitsBeforeItsLastCommandAndKeepsTheWindowAlive) {
    TestBench bench;
    bench.controller.writeMemoriesToRadio(bench.display.writeMemoriesButton);
    EXPECT_EQ(bench.takeWrites().back(), "MC002;");
    bench.advance(199ms);
    EXPECT_THAT(bench.takeWrites(), IsEmpty());
    bench.advance(1ms);
    EXPECT_THAT(bench.takeWrites(), ElementsAre("VS0;", "MC001;"));

    // The rest of a write is not sent to a link that was opened later.
    bench.controller.writeMemoriesToRadio(bench.display.writeMemoriesButton);
    bench.display.openCloseButton.performClick();
    bench.display.openCloseButton.performClick();
    bench.forgetWhatHappened();
    bench.advance(1s);
    EXPECT_THAT(bench.takeWrites(), IsEmpty());
    EXPECT_THAT(bench.takeSounds(), IsEmpty());
}

TEST(MemoryWrite, SavesWhatWasReadBeforeItIsWrittenOver) {
    RadioBench bench;
    EXPECT_THAT(bench.display.memoryBackupField.stringValue(), HasSubstr("/data/memory-channels"));
    ASSERT_TRUE(bench.transceiver.programChannel(2, {{7'030'500, '3'}, "CW \"QRP\", 40"}));
    bench.settle();
    bench.display.readMemoriesButton.performClick();
    bench.settle();
    putChannel(bench.controller.memories, 1, {"", "", ""});
    bench.display.writeMemoriesButton.performClick();
    bench.advance(1s);
    bench.settle();
    const auto& files = bench.around.dataFolder.files;
    ASSERT_EQ(files.size(), 1U);
    const auto& [path, contents] = *files.begin();
    EXPECT_EQ(path, "/data/memory-channels/2026-11-23T000000Z.csv");
    EXPECT_THAT(contents,
                testing::StartsWith("Location,Name,Frequency,Mode,Record\n1,20M PHONE,14.250000,USB,+000000210000\n"
                                    "2,\"CW \"\"QRP\"\", 40\",7.030500,CW-U,+000000310000\n"));
    EXPECT_EQ(bench.display.memoryBackupField.stringValue(), "The channels as they were are saved in " + path);

    // A second write saves nothing: the channels were written by this program. After another read it saves again.
    bench.display.writeMemoriesButton.performClick();
    EXPECT_EQ(files.size(), 1U);
    bench.display.readMemoriesButton.performClick();
    bench.settle();
    bench.display.writeMemoriesButton.performClick();
    EXPECT_EQ(files.size(), 2U);
}

// The files of saved channels, in the order of their names.
std::vector<std::string> savedChannels(const TestBench& bench) {
    std::vector<std::string> contents;
    for (const auto& file : bench.around.dataFolder.files) contents.push_back(file.second);
    return contents;
}

struct RereadBench : RadioBench {
    RereadBench() {
        advance(13s);  // the opening's own read
        settle();
    }
    // Reads again, until the transceiver falls silent at this request.
    void readUntil(std::string_view request) {
        port->onWrite = [request, serve = port->onWrite, silent = false](std::string_view bytes) mutable {
            if (silent = silent || bytes == request; !silent) serve(bytes);
        };
        display.readMemoriesButton.performClick();
        settle();
    }
};

TEST(MemoryWrite, SavesTheNamesThatAnInterruptedReadHasNotComeTo) {
    RereadBench bench;
    ASSERT_TRUE(bench.transceiver.programChannel(1, {{7'030'500, '3'}, "NEW NAME"}));
    bench.readUntil("MT001;");
    bench.display.writeMemoriesButton.performClick();
    const std::vector<std::string> files = savedChannels(bench);
    ASSERT_EQ(files.size(), 2U) << "one of the whole read, in the same second";
    EXPECT_THAT(files[0], HasSubstr("\n1,20M PHONE,14.250000,USB,"));
    EXPECT_THAT(files[1], HasSubstr("\n1,20M PHONE,7.030500,CW-U,"));
}

TEST(MemoryWrite, AWholeReadThatNoFileHoldsIsSavedBeforeAnotherReplacesIt) {
    RereadBench bench;
    const auto read = [&] {
        bench.display.readMemoriesButton.performClick();
        bench.settle();
    };
    read();
    EXPECT_EQ(savedChannels(bench).size(), 1U);
    read();
    EXPECT_EQ(savedChannels(bench).size(), 1U) << "a file holds the same channels already";
    ASSERT_TRUE(bench.transceiver.programChannel(2, {{7'030'500, '3'}, "CW"}));
    read();
    EXPECT_EQ(savedChannels(bench).size(), 1U);
    bench.around.dataFolder.failure = "No space left on device.";
    read();
    EXPECT_THAT(bench.around.alerts.shown, ElementsAre(HasSubstr("No space left on device.")));
    EXPECT_TRUE(bench.controller.memories.read().whole) << "the read went on";
}

TEST(MemoryEdits, AreSavedBeforeAReadReplacesThem) {
    RereadBench bench;
    const auto name = [&](std::string_view tag) { bench.display.memoriesTable.editCell(0, 4, tag); };
    const auto reopen = [&] {
        bench.display.openCloseButton.performClick();
        bench.display.openCloseButton.performClick();
        bench.advance(13s);
        bench.settle();
    };
    const auto saved = [&] {
        std::vector<std::string> paths;
        for (const auto& [path, contents] : bench.around.dataFolder.files)
            if (path.ends_with("-not-written.csv")) paths.push_back(path);
        return paths;
    };
    name("EDITED");
    reopen();
    ASSERT_EQ(saved().size(), 1U);
    EXPECT_EQ(bench.display.memoryBackupField.stringValue(),
              "Changes that were not written are saved: Import takes " + saved()[0]);
    EXPECT_EQ(bench.controller.memories.tagOf(0), "20M PHONE   ");
    const MemoryImport import = readMemoryCsv(bench.around.dataFolder.files[saved()[0]]);
    ASSERT_FALSE(import.channels.empty());
    EXPECT_EQ(import.channels[0].channel.tag, "EDITED");

    reopen();
    name("TYPED");
    name("20M PHONE   ");
    bench.display.readMemoriesButton.performClick();
    bench.settle();
    EXPECT_EQ(saved().size(), 1U) << "nothing was changed";
    name("WRITTEN");
    bench.display.writeMemoriesButton.performClick();
    bench.advance(1s);
    reopen();
    EXPECT_EQ(saved().size(), 1U) << "the transceiver has it";
    bench.around.dataFolder.failure = "No space left on device.";
    bench.around.alerts.shown.clear();
    name("LOST");
    bench.display.readMemoriesButton.performClick();
    bench.settle();
    EXPECT_THAT(bench.around.alerts.shown, testing::Contains(HasSubstr("Changes of memory channels")));
    EXPECT_TRUE(bench.controller.memories.read().whole) << "the read went on";
}

// A write that ended early has not brought all of them to the transceiver.
TEST(MemoryEdits, AreSavedAfterAWriteThatEndedEarlyAndAtTheEnd) {
    RereadBench bench;
    bench.display.memoriesTable.editCell(0, 4, "EDITED");
    bench.port->waiting = 1'000;
    bench.display.writeMemoriesButton.performClick();
    bench.port->unplug();
    bench.advance(5s);
    const std::size_t before = bench.around.dataFolder.files.size();
    bench.controller.memories.saveEdits();
    bench.controller.memories.saveEdits();
    EXPECT_EQ(bench.around.dataFolder.files.size(), before + 1);
}

TEST(MemoryWrite, ChannelsOfAnotherSessionAreNoPartOfWhatIsSaved) {
    RereadBench bench;
    bench.display.openCloseButton.performClick();
    bench.display.openCloseButton.performClick();
    bench.transceiver.programChannel(90, {{7'030'500, '3'}, "OTHER RADIO"});
    bench.around.alerts.agree = false;
    bench.display.writeMemoriesButton.performClick();
    EXPECT_THAT(bench.around.alerts.shown.back(), HasSubstr("have not been read to the end"));
    bench.around.alerts.agree = true;
    bench.readUntil("MR002;");
    EXPECT_EQ(savedChannels(bench).size(), 1U) << "of the first session";
    bench.advance(1s);
    bench.display.writeMemoriesButton.performClick();
    const std::vector<std::string> files = savedChannels(bench);
    ASSERT_EQ(files.size(), 2U);
    EXPECT_EQ(files[1], "Location,Name,Frequency,Mode,Record\n1,,14.250000,USB,+000000210000\n");
}

TEST(MemoryWrite, SucceedsOnceItsLastByteHasLeft) {
    TestBench bench;
    bench.outlastOpening();
    const std::string before = bench.display.memoryReadField.stringValue();
    bench.port->waiting = 2'000;  // of 99 commands of 41 bytes and two of 10
    bench.display.writeMemoriesButton.performClick();
    bench.advance(2s);
    EXPECT_THAT(bench.takeSounds(), IsEmpty());
    EXPECT_EQ(bench.display.memoryReadField.stringValue(), "Writing channel 51 of 99");
    bench.port->waiting = 0;
    bench.advance(100ms);
    EXPECT_THAT(bench.takeSounds(), ElementsAre("file Seatbelts"));
    EXPECT_EQ(bench.display.memoryReadField.stringValue(), before);
}

TEST(MemoryWrite, BehindAnotherOneCountsItsOwnRowsAndSucceedsOnce) {
    TestBench bench;
    bench.outlastOpening();
    bench.controller.writeMemoriesToRadio(bench.display.writeMemoriesButton);
    bench.port->waiting = 4'000;
    bench.controller.writeMemoriesToRadio(bench.display.writeMemoriesButton);
    bench.port->waiting = 2'000;
    bench.advance(1s);
    EXPECT_EQ(bench.display.memoryReadField.stringValue(), "Writing channel 51 of 99");
    bench.port->waiting = 0;
    bench.advance(1s);
    EXPECT_THAT(bench.takeSounds(), ElementsAre("file Seatbelts"));
    EXPECT_THAT(bench.display.memoryReadField.stringValue(), testing::StartsWith("Reading frequencies"));
}

TEST(MemoryWrite, WithoutALinkDoesNotWaitForBytesThatWereLost) {
    TestBench bench;
    bench.port->waiting = 100;
    bench.port->close();
    bench.takeSounds();
    bench.controller.writeMemoriesToRadio(bench.display.writeMemoriesButton);
    bench.advance(1s);
    EXPECT_THAT(bench.takeSounds(), ElementsAre("file Seatbelts"));
}

TEST(MemoryWrite, ThatHasLeftWholeIsNotSaidToHaveEndedEarly) {
    TestBench bench;
    bench.outlastOpening();
    bench.display.writeMemoriesButton.performClick();
    bench.display.openCloseButton.performClick();
    EXPECT_THAT(bench.display.memoryReadField.stringValue(), testing::Not(HasSubstr("ended early")));
}

TEST(MemoryWrite, ThatEndsEarlySaysHowFarItCame) {
    for (const bool unplugged : {false, true}) {
        TestBench bench;
        bench.outlastOpening();
        bench.port->waiting = 1'000;
        bench.display.writeMemoriesButton.performClick();
        if (unplugged)
            bench.port->unplug();
        else
            bench.display.openCloseButton.performClick();
        bench.advance(5s);
        EXPECT_THAT(bench.takeSounds(), testing::Not(testing::Contains("file Seatbelts")));
        EXPECT_EQ(bench.display.memoryReadField.stringValue(),
                  "Writing ended early: 74 of 99 channels were sent. Export them before you connect, which reads the "
                  "channels anew.");
    }
}

TEST(MemoryWrite, WhatCannotBeSavedIsNotWrittenOver) {
    RadioBench bench;
    bench.display.readMemoriesButton.performClick();
    bench.settle();
    bench.takeWrites();
    bench.around.alerts.shown.clear();
    bench.around.dataFolder.failure = "No space left on device.";
    bench.display.writeMemoriesButton.performClick();
    bench.advance(1s);
    EXPECT_THAT(bench.takeWrites(), IsEmpty());
    EXPECT_THAT(bench.around.alerts.shown.back(), HasSubstr("No space left on device."));
}

TEST(MemoryWrite, AsksFirstAndSaysWhatItWillDo) {
    TestBench bench;
    bench.around.alerts.agree = false;
    putChannel(bench.controller.memories, 0, {"014250000", "2", "FT8"});
    bench.display.writeMemoriesButton.performClick();
    bench.display.readMemoriesButton.performClick();
    for (int reply = 0; reply < 200; ++reply) bench.receive("?;");
    putChannel(bench.controller.memories, 0, {"014250000", "2", "FT8"});
    bench.takeWrites();
    bench.display.writeMemoriesButton.performClick();
    putChannel(bench.controller.memories, 13, {"007100000", " ", "NO MODE"});
    bench.display.writeMemoriesButton.performClick();
    bench.advance(1s);
    EXPECT_THAT(bench.takeWrites(), IsEmpty());
    const std::string question =
        "Write the memory channels to the transceiver?\n\n1 will be written, 98 will be erased. Clarifier, tone and "
        "shift of every channel are reset.";
    EXPECT_THAT(bench.around.alerts.shown,
                ElementsAre(question + "\n\nThe channels have not been read to the end. What has not been read will be "
                                       "erased and cannot be saved first. [Write]",
                            question + " [Write]",
                            "Write the memory channels to the transceiver?\n\n2 will be written, 97 will be erased. "
                            "Clarifier, tone and shift of every channel are reset.\n\nChoose a mode first "
                            "for M-14: without one the transceiver does not take a channel. [Write]"));
}

TEST(MemoryWrite, AnAnswerToAnOldQuestionWritesNothing) {
    TestBench bench;
    bench.outlastOpening();
    const auto answerAfter = [&](const std::function<void()>& change) {
        bench.around.alerts.agree = false;
        bench.display.writeMemoriesButton.performClick();
        change();
        bench.takeWrites();
        bench.around.alerts.answerLast();
        return bench.takeWrites();
    };
    EXPECT_THAT(answerAfter([&] { bench.display.readMemoriesButton.performClick(); }), IsEmpty());
    EXPECT_THAT(bench.around.alerts.shown.back(), HasSubstr("have changed meanwhile"));
    EXPECT_THAT(answerAfter([&] { bench.display.openCloseButton.performClick(); }), IsEmpty());
    bench.display.openCloseButton.performClick();
    EXPECT_THAT(answerAfter([] {}), testing::Not(IsEmpty()));
}

}  // namespace
}  // namespace corvane

#include <gmock/gmock.h>

#include <numeric>
#include <random>

#include "memories/memory_entry.h"
#include "memories/memory_order.h"
#include "memories/table_cells.h"
#include "tests/support/radio_bench.h"
#include "wire/cat_command.h"
#include "wire/operating_modes.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int frequencyColumn = 2;
constexpr int modeColumn = 3;
constexpr int tagColumn = 4;

constexpr std::string_view tooLow = "Frequency must be in MHz and greater than 0.03\n\nExample: 0.860";
constexpr std::string_view tooHigh = "Frequency must be in MHz and less than 75.0\n\nExample: 14.235";

struct TableBench : TestBench {
    TableBench() { display.memoriesTable.registerForDraggedText(); }
    TableView& table = display.memoriesTable;
    const MemoryTable& rows = controller.memories.vqMemArray();
    const MemoryChannel& row(int index) const { return rows[static_cast<std::size_t>(index)]; }
    void put(std::size_t index, const MemoryChannel& channel) { putChannel(controller.memories, index, channel); }
    // The tags of the first rows, each after its channel.
    Writes shown(int count) {
        Writes all;
        for (int index = 0; index < count; ++index) all.push_back(table.cell(index, 1) + ' ' + table.cell(index, 4));
        return all;
    }
    void name(const Writes& tags) {
        for (std::size_t index = 0; index < tags.size(); ++index)
            put(index, {"00700000" + tags[index], "1", tags[index]});
    }
};

TEST(MemoryTable, ATypedFrequencyIsStoredInHertzOrWarnedOf) {
    const MemoryChannel before{"007100000", "2", "HOME"};
    const struct {
        std::string_view typed;
        MemoryChannel after;
        std::string_view shown;
        std::string_view warning;
    } cases[] = {
        {"7.074", {"007074000", "2", "HOME"}, "7.074000", ""},
        {"0.03", {"000030000", "2", "HOME"}, "0.030000", ""},
        {"75", {"075000000", "2", "HOME"}, "75.000000", ""},
        {"14.2350007", {"014235001", "2", "HOME"}, "14.235001", ""},
        {" +7.1 ", {"007100000", "2", "HOME"}, "7.100000", ""},
        {"", {"", "", ""}, "", ""},
        {"0.029", {"", "2", "HOME"}, "", tooLow},
        {"abc", {"", "2", "HOME"}, "", tooLow},
        {" ", {"", "2", "HOME"}, "", tooLow},
        {"75.1", {"", "2", "HOME"}, "", tooHigh},
    };
    for (const auto& edit : cases) {
        TableBench bench;
        bench.put(41, before);
        bench.table.editCell(41, frequencyColumn, edit.typed);
        EXPECT_EQ(bench.row(41), edit.after) << edit.typed;
        EXPECT_EQ(bench.table.view(41, frequencyColumn), TableCell(EditableCell{std::string(edit.shown)}));
        const bool warned = !edit.warning.empty();
        EXPECT_EQ(bench.around.alerts.shown, warned ? Writes{std::string(edit.warning)} : Writes{}) << edit.typed;
        EXPECT_EQ(bench.takeSounds(), warned ? Writes{"alert Glass"} : Writes{}) << edit.typed;
        EXPECT_THAT(bench.takeWrites(), IsEmpty());
        EXPECT_EQ(bench.row(40), MemoryChannel{});
    }
}

TEST(MemoryTable, ATagKeepsTwelvePlainCharacters) {
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"FT8", "FT8"},
        {"", ""},
        {"  two  ", "  two  "},
        {"Caf\u00e9 Nationwide 40m", "Caf Nationwi"},
        {"e\u0301cole", "cole"},        // a combining accent removes its letter, too
        {"7\ufe0f\u20e3 net", " net"},  // a digit that combines to an emoji
        {"\u4f60\u597d 73", " 73"},     //
        {"a\u05b0b\u0e33c", "c"},       // marks of other scripts
        {"\u06001 2", " 2"},            // a mark that combines with the digit after it
        {"a\r\nbcdefghijklmno", "a\r\nbcdefghijk"},
        {"A;TX1;", "ATX1"},
        {"\xff", ""},
    };
    for (const auto& [typed, tag] : cases) {
        TableBench bench;
        bench.put(3, {"007074000", "2", "before"});
        bench.table.editCell(3, tagColumn, typed);
        EXPECT_EQ(bench.row(3), (MemoryChannel{"007074000", "2", std::string(tag)})) << typed;
    }
}

TEST(MemoryTable, AChosenModeIsStoredAsItsCode) {
    TableBench bench;
    const int version = bench.table.version();
    const std::string codes = "0123456789ABCDEF";
    for (int entry = 0; entry < 16; ++entry) {
        const std::string code(1, codes[static_cast<std::size_t>(entry)]);
        bench.table.chooseInCell(7, modeColumn, entry);
        EXPECT_EQ(bench.row(7).mode, code);
        EXPECT_EQ(std::get<PopUpCell>(bench.table.view(7, modeColumn)).selection, entry);
        EXPECT_EQ(bench.table.cell(7, modeColumn), modeName(code.front()).value_or("\u2013"));
    }
    for (const int entry : {-1, 16}) bench.table.chooseInCell(7, modeColumn, entry);
    EXPECT_EQ(bench.row(7).mode, "F");
    EXPECT_EQ(bench.table.version(), version) << "the table is not reloaded";
    EXPECT_EQ(memoryModeEntry("10"), 10);
    for (const char* field : {" ", "", "X", "2B", "b"}) EXPECT_EQ(memoryModeEntry(field), 0) << field;

    const std::pair<std::string_view, std::optional<std::string>> typed[] = {
        {" B\r\n", "B"}, {"2", "2"}, {"LSB", "L"}, {"xyz", "1"}, {"0", "1"}, {"  ", std::nullopt}, {";2", "1"}};
    for (const auto& [text, field] : typed) EXPECT_EQ(memoryModeTyped(text), field) << text;
}

TEST(MemoryTable, AMovedRowTakesTheChannelOfItsPlace) {
    const struct {
        const char* source;
        int gap;
        std::optional<int> destination;
        Writes tags;
    } cases[] = {
        {"2", 5, 4, {"0", "1", "3", "4", "2", "5"}}, {"5", 2, 2, {"0", "1", "5", "2", "3", "4"}},
        {"0", 6, 5, {"1", "2", "3", "4", "5", "0"}}, {"3", 3, 3, {"0", "1", "2", "3", "4", "5"}},
        {"3", 4, 3, {"0", "1", "2", "3", "4", "5"}}, {"1", 0, 0, {"1", "0", "2", "3", "4", "5"}},
    };
    for (const auto& drag : cases) {
        TableBench bench;
        bench.name({"0", "1", "2", "3", "4", "5"});
        EXPECT_EQ(bench.table.drop(drag.source, drag.gap), drag.destination) << drag.source << ' ' << drag.gap;
        Writes expected;
        for (std::size_t i = 0; i < 6; ++i) expected.push_back("M-0" + std::to_string(i + 1) + ' ' + drag.tags[i]);
        EXPECT_EQ(bench.shown(6), expected) << drag.source << ' ' << drag.gap;
    }
    TableBench bench;
    bench.name({"0"});
    const MemoryTable before = bench.rows;
    for (const auto& [source, gap] :
         {std::pair{"", 3}, {"M-02", 3}, {"1.0", 3}, {"-1", 3}, {"99", 3}, {"1", 100}, {"1", -1}})
        EXPECT_EQ(bench.table.drop(source, gap), std::nullopt) << source << ' ' << gap;
    EXPECT_EQ(bench.rows, before);
    EXPECT_EQ(bench.table.drop(TableView::pasteboardText(0), memoryChannels), 98);
    EXPECT_EQ(bench.table.cell(98, 1), "M-99");
    EXPECT_EQ(bench.table.cell(98, 4), "0");
    EXPECT_EQ(bench.display.autoMemTable.drop("0", 1), std::nullopt);
}

// Presses a header and gives the tags in their new order.
Writes sortedTags(TableBench& bench, int column) {
    bench.table.pressHeader(column);
    Writes tags;
    for (int index = 0; index < memoryChannels; ++index)
        if (bench.row(index).tag != " ") tags.push_back(bench.row(index).tag);
    return tags;
}

TEST(MemoryTable, AHeaderSortsAndTurns) {
    TableBench bench;
    // Two rows with one frequency, two without; a blank tag and an empty one.
    bench.put(3, {"014074000", "2", "b"});
    bench.put(9, {"007074000", "1", "d"});
    bench.put(12, {"", "1", "none"});
    bench.put(20, {"014074000", "3", "a"});
    bench.put(30, {"000860000", "5", ""});
    bench.put(98, {"050313000", "2", "C"});
    EXPECT_THAT(sortedTags(bench, frequencyColumn), ElementsAre("", "d", "b", "a", "C", "none"));
    EXPECT_EQ(bench.row(0), (MemoryChannel{"000860000", "5", ""}));
    EXPECT_THAT(sortedTags(bench, frequencyColumn), ElementsAre("C", "b", "a", "d", "", "none"));
    EXPECT_THAT(sortedTags(bench, frequencyColumn), ElementsAre("", "d", "b", "a", "C", "none"));

    const std::optional<TableView::SortDescriptor> byFrequency({"Col2", true}), byTag({"Col4", true}), none;
    EXPECT_EQ(bench.table.sortDescriptorPrototype(frequencyColumn), byFrequency);
    EXPECT_THAT(sortedTags(bench, tagColumn), ElementsAre("C", "a", "b", "d", "none", ""));
    EXPECT_EQ(bench.row(0).tag, " ") << "a blank sorts before letters";
    EXPECT_EQ(bench.row(98).tag, "") << "an empty tag is none";
    EXPECT_EQ(bench.table.sortDescriptorPrototype(frequencyColumn), none);
    EXPECT_EQ(bench.table.sortDescriptorPrototype(tagColumn), byTag);
    EXPECT_EQ(bench.table.sortDirection(frequencyColumn), SortDirection::unknown);
    EXPECT_THAT(sortedTags(bench, tagColumn), ElementsAre("none", "d", "b", "a", "C", ""));
    EXPECT_EQ(bench.table.sortDirection(tagColumn), SortDirection::descending);
    EXPECT_EQ(bench.row(0).tag, "none");

    const MemoryTable before = bench.rows;
    const int version = bench.table.version();
    for (const int other : {-1, 0, 1, 3, 5}) bench.table.pressHeader(other);
    EXPECT_EQ(bench.rows, before);
    EXPECT_EQ(bench.table.version(), version);
    EXPECT_EQ(bench.table.sortDescriptorPrototype(tagColumn), byTag);
}

TEST(MemoryTable, AnEditOrAReadForgetsThatItWasSortedByFrequency) {
    RadioBench bench;
    TableView& table = bench.display.memoriesTable;
    const auto directions = [&] {
        return std::pair{table.sortDirection(frequencyColumn), table.sortDirection(tagColumn)};
    };
    const std::pair none{SortDirection::unknown, SortDirection::unknown};
    bench.display.readMemoriesButton.performClick();
    bench.settle();
    table.pressHeader(frequencyColumn);
    EXPECT_EQ(directions(), std::pair(SortDirection::ascending, SortDirection::unknown));
    table.editCell(5, frequencyColumn, "");
    table.editCell(5, frequencyColumn, "99");
    table.editCell(5, tagColumn, "tag");
    EXPECT_EQ(directions().first, SortDirection::ascending);
    table.editCell(5, frequencyColumn, "7.1");
    EXPECT_EQ(directions(), none);
    table.pressHeader(frequencyColumn);
    EXPECT_EQ(directions().first, SortDirection::ascending) << "the first press sorts ascending again";
    bench.display.readMemoriesButton.performClick();
    bench.settle();
    EXPECT_EQ(directions(), none);
    table.pressHeader(tagColumn);
    table.editCell(5, frequencyColumn, "7.1");
    EXPECT_EQ(directions().second, SortDirection::ascending);
    bench.display.readMemoriesButton.performClick();
    bench.settle();
    EXPECT_EQ(directions(), none) << "the rows stand in the order of the channels";
}

TEST(MemoryTable, SortingIsStableWhateverTheRowsHold) {
    std::mt19937 random(20261123);
    const auto pick = [&](std::initializer_list<const char*> texts) {
        return *(texts.begin() + std::uniform_int_distribution<std::ptrdiff_t>(0, std::ssize(texts) - 1)(random));
    };
    for (int round = 0; round < 50; ++round) {
        MemoryTable table;
        for (std::size_t index = 0; index < table.size(); ++index)
            table[index] = {pick({"", " ", "nan", "007074000", "014074000", "1e5"}), std::to_string(index),
                            pick({"", " ", "A", "a", "AB", "\xc3\xa9"})};
        for (const auto before : {SortDirection::unknown, SortDirection::ascending}) {
            const bool up = before != SortDirection::ascending;
            MemoryTable sorted = table;
            sortByTag(sorted, before);
            for (std::size_t index = 1; index < sorted.size(); ++index) {
                const MemoryChannel &first = sorted[index - 1], &second = sorted[index];
                const bool inOrder = second.tag.empty() ||
                                     (!first.tag.empty() && (up ? first.tag <= second.tag : first.tag >= second.tag));
                EXPECT_TRUE(inOrder) << first.tag << '|' << second.tag;
                EXPECT_TRUE(first.tag != second.tag || std::stoi(first.mode) < std::stoi(second.mode));
            }
            EXPECT_TRUE(std::ranges::is_permutation(sorted, table));
            sortByFrequency(sorted = table, before);
            std::vector<int> withoutFrequency;
            for (const MemoryChannel& row : sorted)
                if (row.frequency.empty() || row.frequency == " " || row.frequency == "nan")
                    withoutFrequency.push_back(std::stoi(row.mode));
            EXPECT_TRUE(std::ranges::is_sorted(withoutFrequency));
        }
    }
}

// Replies name channels: if a row were moved during a read, it would get another channel's tag.
TEST(MemoryTable, RowsStayInPlaceWhileAReadIsUnderWay) {
    RadioBench bench;
    TableView& table = bench.display.memoriesTable;
    table.registerForDraggedText();
    const auto moves = [&] {
        const int version = table.version();
        table.pressHeader(frequencyColumn);
        const bool sorted = table.version() > version;
        return std::pair{sorted, table.drop("0", 2).has_value()};
    };
    constexpr std::string_view note = ". Rows can be moved and sorted once all have been read.";
    const auto message = [&] { return bench.display.memoryReadField.stringValue(); };
    for (const std::function<void()>& move :
         {std::function<void()>([&] { table.pressHeader(tagColumn); }), {[&] { table.drop("0", 2); }}}) {
        bench.display.readMemoriesButton.performClick();
        EXPECT_THAT(message(), testing::Not(testing::EndsWith(note)));
        move();
        bench.receive("?;");
        EXPECT_THAT(message(), testing::EndsWith(note)) << "still after the next reply";
    }
    EXPECT_EQ(moves(), std::pair(false, false));
    bench.settle();
    EXPECT_THAT(message(), testing::EndsWith(" empty"));
    EXPECT_EQ(moves(), std::pair(true, true));

    bench.port->onWrite = {};  // nothing answers
    bench.display.readMemoriesButton.performClick();
    EXPECT_EQ(moves(), std::pair(false, false));
    bench.advance(20s);
    EXPECT_EQ(moves(), std::pair(true, true)) << "a read that has stopped blocks nothing";
}

// Late replies of a stopped read name channels, and their rows may have moved. As many are dropped as were asked for.
TEST(MemoryTable, AMoveEndsAHaltedRead) {
    for (const bool names : {false, true}) {
        TableBench bench;
        bench.outlastOpening();
        bench.display.readMemoriesButton.performClick();
        for (int reply = 0; reply < (names ? 100 : 0) + 2; ++reply) bench.receive("?;");
        bench.advance(7s);  // no further answer
        bench.name({"1", "2", "3"});
        EXPECT_EQ(bench.table.drop("0", 3), 2);
        EXPECT_TRUE(bench.display.memoryReadField.stringValue().starts_with("Reading ended early"));
        EXPECT_FALSE(bench.display.memoryReadProgress.visible());
        const MemoryTable moved = bench.rows;
        bench.takeWrites();
        const char* late = names ? "MT0021LATE        ;" : "MR002007100000+000000110000;";
        bench.receive("?;");
        bench.receive(late);
        EXPECT_THAT(bench.takeWrites(), IsEmpty());
        EXPECT_EQ(bench.rows, moved);
        EXPECT_EQ(bench.radio.vqMemFreq, "") << "it is not about the channel in use";
        EXPECT_FALSE(bench.controller.memories.read().whole);
        bench.receive(late);  // this one was not asked for
        EXPECT_EQ(bench.row(1).tag == "LATE        ", names);
        EXPECT_EQ(bench.radio.vqMemFreq, names ? "" : "007100000");
    }
}

// An error response to another command is counted, so that the reply for the last tag comes after the read has ended.
TEST(MemoryTable, AReplyAfterAWholeReadFillsNoRowThatHasMoved) {
    for (const bool moved : {false, true}) {
        TableBench bench;
        bench.outlastOpening();
        bench.display.readMemoriesButton.performClick();
        for (int reply = 0; reply < 100; ++reply) bench.receive("?;");
        bench.receive("?;MT0011FIRST       ;");
        for (int channel = 1; channel <= 98; ++channel) bench.receive("MT" + zeroPadded(channel, 3) + "1            ;");
        ASSERT_TRUE(bench.controller.memories.read().whole);
        if (moved) bench.table.pressHeader(tagColumn);
        bench.receive("MT0991LAST        ;");
        EXPECT_EQ(bench.row(98).tag == "LAST        ", !moved);
        bench.receive("MT0991UNASKED     ;");
        EXPECT_EQ(bench.row(98).tag, "UNASKED     ");
    }
}

// Before a write the channels are saved as the transceiver reported them.
TEST(MemoryTable, AnEditDuringAReadIsNoPartOfWhatWasRead) {
    RadioBench bench;
    bench.display.readMemoriesButton.performClick();
    bench.settle();
    const ChannelsAsRead held = bench.controller.memories.read().asRead;
    ASSERT_EQ(held[0].row.frequency.size(), 9U);
    ASSERT_EQ(held[90].row, MemoryChannel{}) << held[90].row.frequency << '|' << held[90].row.tag;
    bench.port->onWrite = [&, serve = bench.port->onWrite](std::string_view bytes) {
        if (bytes == "MT002;") {
            bench.display.memoriesTable.editCell(0, frequencyColumn, "50.313");
            bench.display.memoriesTable.editCell(0, tagColumn, "MINE");
            bench.display.memoriesTable.editCell(90, frequencyColumn, "7.074");
        }
        serve(bytes);
    };
    bench.display.readMemoriesButton.performClick();
    bench.settle();
    EXPECT_EQ(bench.controller.memories.read().asRead, held);
    EXPECT_TRUE(bench.controller.memories.read().unsaved);
    EXPECT_EQ(bench.controller.memories.vqMemArray()[0].frequency, "050313000");
    EXPECT_EQ(bench.controller.memories.vqMemArray()[90].frequency, "007074000");
}

TEST(AutoMemoryNotes, AreEditedInTheirRow) {
    TestBench bench;
    const AutoMemoryState& kept = bench.controller.autoMemories.state();
    for (const char* responses : {"VS0;MD02;FA007074000;", "FA014074000;"}) keepAutoMemory(bench.controller, responses);
    TableView& table = bench.display.autoMemTable;
    const int version = table.version();
    table.editCell(1, 4, "loud; \u00e9 73");
    EXPECT_THAT(kept.vqAutoNotesArray, ElementsAre("   ", "loud; \u00e9 73"));
    EXPECT_GT(table.version(), version);
    for (const CellPlace place : {CellPlace{2, 4}, {-1, 4}, {0, 1}, {0, 5}})
        table.editCell(place.row, place.column, "x");
    bench.press(815);
    bench.controller.autoNoteEdited(bench.display.autoMemsTableNoteField);
    TextField elsewhere({"elsewhere"});
    bench.controller.autoNoteEdited(elsewhere);
    bench.controller.textEdited(elsewhere);
    EXPECT_THAT(kept.vqAutoNotesArray, IsEmpty());
    EXPECT_EQ(bench.controller.memories.vqMemArray(), MemoryTable{});
}

}  // namespace
}  // namespace corvane

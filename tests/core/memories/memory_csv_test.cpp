#include "memories/memory_csv.h"

#include <gmock/gmock.h>

#include "memories/csv_text.h"
#include "memories/memory_backup.h"
#include "tests/support/radio_bench.h"
#include "wire/operating_modes.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string titles =
    "Location,Name,Frequency,Duplex,Offset,Tone,rToneFreq,cToneFreq,DtcsCode,DtcsPolarity,RxDtcsCode,"
    "CrossMode,Mode,TStep,Skip,Power,Comment,URCALL,RPT1CALL,RPT2CALL,DVCODE\r\n";

// A channel in every mode, with names that are hard to quote.
MemoryTable everyMode() {
    MemoryTable table;
    for (std::size_t i = 0; i < operatingModes.size(); ++i)
        table[i * 7] = {"0140500" + std::to_string(10 + i), std::string(1, operatingModes[i].code),
                        std::string(operatingModes[i].name)};
    table[0].tag = "A,\"B\" 'C'";
    table[98] = {"000030000", "2", ""};
    return table;
}

MemoryTable tableOf(const MemoryImport& import) {
    MemoryTable table;
    for (const ImportedChannel& imported : import.channels)
        table.at(static_cast<std::size_t>(imported.row)) = imported.channel;
    return table;
}

TEST(CsvText, ReadsLinesAsTheyAreWritten) {
    const struct {
        std::string_view text;
        std::vector<CsvLine> lines;
    } cases[] = {
        {"", {}},
        {"\xef\xbb\xbf\r\n\n", {}},
        {"a,b\r\n\r\nc\rd\n", {{1, {"a", "b"}}, {3, {"c"}}, {4, {"d"}}}},
        {",", {{1, {"", ""}}}},
        {"\"a,\"\"b\"\"\r\nc\",d\ne", {{1, {"a,\"b\"\r\nc", "d"}}, {3, {"e"}}}},
        {"\"a\"b,c\"d\n", {{1, {"ab", "c\"d"}}}},
        {"a\n\"b,c\n", {{1, {"a"}}, {2, {"b,c\n"}, true}}},
        {"a\n\"", {{1, {"a"}}, {2, {""}, true}}},
    };
    for (const auto& each : cases) EXPECT_EQ(csvLines(each.text), each.lines) << each.text;
    const std::vector<std::string> fields{"a,b", "\"", "c\r\nd", "", " e "};
    EXPECT_EQ(csvLine(fields), "\"a,b\",\"\"\"\",\"c\r\nd\",, e ");
    EXPECT_EQ(csvLines(csvLine(fields)).at(0).fields, fields);
}

TEST(MemoryCsv, HoldsTheProgrammedChannelsInTheColumnsOfTheTools) {
    MemoryTable table;
    table[4] = {"007074000", "C", "40M, FT8    "};
    table[98] = {"014070000", "E", ""};
    table[5] = {"000000000", "2", "no frequency"};
    EXPECT_EQ(memoryCsv(table),
              titles +
                  "5,\"40M, FT8\",7.074000,,0.000000,,88.5,88.5,023,NN,023,Tone->Tone,DIG,5.00,,50W,,,,,\r\n"
                  "99,,14.070000,,0.000000,,88.5,88.5,023,NN,023,Tone->Tone,DIG,5.00,,50W,PSK,,,,\r\n");
}

TEST(MemoryCsv, ComesBackAsItWasInEveryMode) {
    const MemoryTable table = everyMode();
    const MemoryImport import = readMemoryCsv(memoryCsv(table));
    EXPECT_EQ(import.problem, "");
    EXPECT_THAT(import.refused, IsEmpty());
    EXPECT_EQ(tableOf(import), table);
    for (const ImportedChannel& imported : import.channels) EXPECT_EQ(imported.note, "");
}

TEST(MemoryCsv, TakesABackup) {
    const MemoryTable table = everyMode();
    ChannelsAsRead asRead;
    for (std::size_t row = 0; row < table.size(); ++row) asRead[row] = {table[row], "+000000210000"};
    const MemoryImport import = readMemoryCsv(memoryTableCsv(asRead));
    EXPECT_THAT(import.refused, IsEmpty());
    EXPECT_EQ(tableOf(import), table);
}

TEST(MemoryCsv, TakesWhatItCanAndSaysWhyNotTheRest) {
    const auto taken = [](int line, int row, MemoryChannel channel, std::string note = "") {
        return ImportedChannel{line, row, std::move(channel), std::move(note)};
    };
    const struct {
        std::string text;
        MemoryImport import;
    } cases[] = {
        {"", {"The file is empty.", {}, {}}},
        {"Name,Frequency\n", {"Its first line has no column \"Location\".", {}, {}}},
        {"Location;Frequency\n", {"Its first line has no column \"Location\".", {}, {}}},
        {"location\n", {"Its first line has no column \"Frequency\".", {}, {}}},
        {"Location,Frequency\n", {}},
        {" ,, \n,,\n", {"The file is empty.", {}, {}}},
        {",,\nLocation,Frequency,Mode\n \t,,\n,,,,,\n3,7.1,LSB\n,,\n", {"", {taken(5, 2, {"007100000", "1", ""})}, {}}},
        // another order, other columns, lower case, no Name; the usual side band if there is no mode
        {"\xef\xbb\xbf"
         "FREQUENCY ,Power,location\r\n7.1,5W, 09 \r\n14,5W,10\r\n",
         {"",
          {taken(2, 8, {"007100000", "1", ""}, "no mode: LSB is usual there"),
           taken(3, 9, {"014000000", "2", ""}, "no mode: USB is usual there")},
          {}}},
        {"Location,Frequency,Mode\n"
         "0,7.1,CW\n100,7.1,CW\nx,7.1,CW\n,7.1,CW\n-1,7.1,CW\n5,7.1,CW\n5,7.2,CW\n99,7.3\n",
         {"",
          {taken(7, 4, {"007100000", "3", ""}), taken(9, 98, {"007300000", "1", ""}, "no mode: LSB is usual there")},
          {{2, "the location \"0\" is not from 1 to 99"},
           {3, "the location \"100\" is not from 1 to 99"},
           {4, "the location \"x\" is not from 1 to 99"},
           {5, "the location \"\" is not from 1 to 99"},
           {6, "the location \"-1\" is not from 1 to 99"},
           {8, "location 5 stands in line 7 already"}}}},
        {"Location,Frequency,Mode\n1,0.03,am\n2,75.0,Nfm\n3,0.029999,AM\n4,75.000001,AM\n5,146520000,FM\n"
         "6,\"7,1\",LSB\n7,,LSB\n8,nan,LSB\n9,7.1,DMR\n10,7.0000004,LSB\n11,\x80,LSB\n",
         {"",
          {taken(2, 0, {"000030000", "5", ""}), taken(3, 1, {"075000000", "B", ""}),
           taken(11, 9, {"007000000", "1", ""})},
          {{4, "the frequency \"0.029999\" is not from 0.03 to 75 MHz"},
           {5, "the frequency \"75.000001\" is not from 0.03 to 75 MHz"},
           {6, "the frequency \"146520000\" is not from 0.03 to 75 MHz"},
           {7, "the frequency \"7,1\" is not from 0.03 to 75 MHz"},
           {8, "the frequency \"\" is not from 0.03 to 75 MHz"},
           {9, "the frequency \"nan\" is not from 0.03 to 75 MHz"},
           {10, "the mode \"DMR\" is none of the transceiver's"},
           {12, "the frequency (unreadable) is not from 0.03 to 75 MHz"}}}},
        {"Location,Name,Frequency,Duplex,Tone,Mode\n"
         "1,THIRTEEN CHAR,7.1,,,LSB\n2,Caf\u00e9;,7.1,,,LSB\n3,A,29.6,-,TSQL,FM\n4,\"open\n5,B,7.1,,,LSB\n",
         {"",
          {taken(2, 0, {"007100000", "1", "THIRTEEN CHA"}, "shortened from \"THIRTEEN CHAR\""),
           taken(3, 1, {"007100000", "1", "Caf"}, "shortened from \"Caf\u00e9;\""),
           taken(4, 2, {"029600000", "4", "A"}, "without shift \"-\"; without tone \"TSQL\"")},
          {{5, "a quotation mark is not closed"}}}},
    };
    EXPECT_EQ(readMemoryCsv("Location,Name,Frequency,\"Mode\n1,A,7.1,LSB\n").problem,
              "Its first line has a quotation mark that is not closed.");
    for (const auto& each : cases) {
        const MemoryImport import = readMemoryCsv(each.text);
        EXPECT_EQ(import.problem, each.import.problem) << each.text;
        EXPECT_THAT(import.channels, testing::ElementsAreArray(each.import.channels)) << each.text;
        EXPECT_THAT(import.refused, testing::ElementsAreArray(each.import.refused)) << each.text;
    }
}

TEST(MemoryCsv, KnowsModesByTheirManyNames) {
    const struct {
        std::string mode, comment;
        char code;
    } cases[] = {{"CW", "", '3'},   {"cwr", "", '7'},          {"CW-L", "", '7'},      {"NCW", "", '3'},
                 {"RTTY", "", '6'}, {"RTTYR", "", '9'},        {"RTTY-U", "", '9'},    {"FSKR", "", '9'},
                 {"DIG", "", 'C'},  {"DIG", "psk", 'E'},       {"DIG", "DATA-L", '8'}, {"DIG", "USB", 'C'},
                 {"PKT", "", 'A'},  {"PKT", "DATA-FM-N", 'F'}, {"PKTUSB", "", 'C'},    {"NAM", "", 'D'},
                 {"AM-N", "", 'D'}, {"FM", "FM-N", '4'},       {"CW", "CW-L", '3'}};
    for (const auto& each : cases) {
        const MemoryImport import =
            readMemoryCsv("Location,Frequency,Mode,Comment\n1,7.1," + each.mode + ',' + each.comment + '\n');
        ASSERT_EQ(import.channels.size(), 1U) << each.mode;
        EXPECT_EQ(import.channels[0].channel.mode, std::string(1, each.code)) << each.mode << ' ' << each.comment;
    }
}

TEST(MemoryCsv, TellsWhatAWriteWouldChange) {
    const MemoryChannel channel{"014074000", "C", "20M FT8"};
    EXPECT_EQ(channelInWords(channel), "14.074000 DATA-U 20M FT8");
    EXPECT_EQ(channelInWords({"014074000", "?", " "}), "14.074000 (no mode)");
    EXPECT_EQ(channelInWords({}), "empty");
    EXPECT_TRUE(sameChannel(channel, {"014074000", "C", "20M FT8     "}));
    EXPECT_TRUE(sameChannel({}, {"", "2", "rest"}));
    for (const MemoryChannel& other :
         {MemoryChannel{}, {"014074001", "C", "20M FT8"}, {"014074000", "2", "20M FT8"}, {"014074000", "C", "20M"}})
        EXPECT_FALSE(sameChannel(channel, other));
}

TEST(MemoryExport, SaysWhatTheTableLacks) {
    TestBench bench;
    bench.around.alerts.agree = false;
    bench.around.files.choice = "/out.csv";
    std::vector<std::string>& alerts = bench.around.alerts.shown;
    std::string& exported = bench.around.files.files["/out.csv"];
    const auto press = [&] {
        alerts.clear();
        bench.display.exportMemoriesButton.performClick();
        return alerts.empty() ? "" : alerts[0];
    };
    EXPECT_THAT(press(), HasSubstr("There is nothing to export"));
    bench.outlastOpening();
    bench.display.readMemoriesButton.performClick();
    EXPECT_THAT(press(), HasSubstr("are being read"));
    for (const char* reply : {"MR001014250000+000000210000;", "MR001014250000+000000210000;", "?;"})
        bench.receive(reply);
    EXPECT_THAT(press(), HasSubstr("are being read"));
    bench.advance(7s);
    EXPECT_THAT(press(), HasSubstr("lack the channels from M-03 on, and all names:"));
    bench.display.readMemoriesButton.performClick();
    bench.around.alerts.answerLast();
    EXPECT_THAT(exported, HasSubstr("\r\n1,,14.250000,")) << "as it was when the key was pressed";

    for (int reply = 0; reply < 100; ++reply) bench.receive("MR005007074000+000000210000;");
    bench.display.openCloseButton.performClick();
    EXPECT_THAT(press(), HasSubstr("lack the names from M-01 on:"));
    exported.clear();
    bench.display.openCloseButton.performClick();
    bench.display.readMemoriesButton.performClick();
    for (int reply = 0; reply < 200; ++reply) bench.receive("MR005007074000+000000210000;MT0051FT8         ;");
    EXPECT_EQ(press(), "");
    EXPECT_THAT(exported, HasSubstr("\r\n5,FT8,7.074000,"));
}

struct ImportBench : RadioBench {
    ImportBench() {
        around.files.files["/in.csv"] = "Location,Name,Frequency,Mode\n51,FT8,7.074,DIG\n";
        around.files.choice = "/in.csv";
        controller.memories.onImport = [this](const MemoryImport& import, const MemoryTable&, auto take) {
            takeAll = [chosen = import.channels, take] { take(chosen); };
        };
    }
    void import() { display.importMemoriesButton.performClick(); }
    void read() { display.readMemoriesButton.performClick(); }
    std::function<void()> takeAll;
    const MemoryTable& table = controller.memories.vqMemArray();
    std::vector<std::string>& alerts = around.alerts.shown;
};

TEST(MemoryImport, WaitsForTheReadAndForRowsAsTheyWereShown) {
    ImportBench bench;
    bench.import();
    ASSERT_EQ(bench.alerts.size(), 1U) << "the opening's own read is still to come";
    bench.read();
    bench.import();
    ASSERT_EQ(bench.alerts.size(), 2U);
    EXPECT_THAT(bench.alerts, testing::Each(HasSubstr("have not been read yet")));
    bench.settle();

    for (const std::function<void()>& change :
         {std::function<void()>([&] { bench.read(); }), {[&] { putChannel(bench.controller.memories, 0, {}); }}}) {
        bench.import();
        change();
        bench.alerts.clear();
        bench.takeAll();
        ASSERT_EQ(bench.alerts.size(), 1U);
        EXPECT_THAT(bench.alerts[0], HasSubstr("Nothing was imported"));
        bench.settle();
        EXPECT_EQ(bench.table[50], MemoryChannel{});
    }
}

}  // namespace
}  // namespace corvane

// The traffic on the line: recording it, its meaning in words, looking at it, and the report.
#include <gmock/gmock.h>

#include "line/line_text.h"
#include "tests/support/test_bench.h"
#include "wire/cat_command.h"
#include "wire/line_meaning.h"

namespace corvane {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

TEST(LineMeaning, SaysInWordsWhatIsKnownAndNeverGuesses) {
    constexpr auto sent = LineDirection::sent;
    constexpr auto received = LineDirection::received;
    const struct {
        std::string_view text;
        LineDirection direction;
        std::string_view meaning;
    } cases[] = {
        {"FA014250000;", received, "VFO A is 14.250.000 MHz"},
        {"FB007074000;", sent, "sets VFO B to 7.074.000 MHz"},
        {"FA;", sent, "asks for VFO A"},
        {"FA;", received, "not readable"},
        {"FA01425000;", received, "not readable"},
        {"FA0142500-0;", received, "not readable"},
        {"RM1;", sent, "asks for the S-meter"},
        {"RM1100000;", received, "the S-meter is 100"},
        {"RM5100000;", received, "unknown"},
        {"TX1;", received, "TX on"},
        {"TX2;", received, "TX on, by the microphone, the key or a text memory"},
        {"TX0;", sent, "TX off"},
        {"TX7;", sent, "not readable"},
        {"?;", received, "not understood"},
        {"?", received, "not ended"},
        {";", received, "unknown"},
        {"XY12;", received, "unknown"},
        {"IF005014155000+012010210000;", received, "side A is 14.155.000 MHz, USB, memory 005"},
        {"OI000007074000+000000C00000;", received, "side B is 7.074.000 MHz, DATA-U"},
        {"MW005007074000+000000210000;", sent, "sets memory channel 5 to 7.074.000 MHz, USB"},
        {"MW005000000000+000000010000;", sent, "empties memory channel 5"},
        {"MR001;", sent, "asks for memory channel 1"},
        {"MT00110 40M; FT8     ;", received, "the tag of memory channel 1 is \"0 40M; FT8\""},
        {"MD02;", received, "the mode is USB"},
        {"MD0Z;", received, "not readable"},
        {"GT06;", received, "the AGC is automatic"},
        {"PC050;", sent, "sets the power to 50 W"},
        {"SS05;", sent, "asks for the scope span"},
        {"SS0570000;", received, "the scope span is 200 kHz"},
        {"SS04+10.5;", received, "the scope level is +10.5 dB"},
        {"KM2CQ CQ DE N0CALL;", received, "CW memory 2 is \"CQ CQ DE N0CALL\""},
        {"EM15TEST;", sent, "sets PSK memory 5 to \"TEST\""},
        {"EX010101+00;", received, "menu item 010101 is \"+00\""},
        {"SV;", sent, "swaps the VFOs"},
        {"MA;", sent, "copies the memory channel to the VFO"},
        {"FD;", received, "not readable"},
        {"KM1;", received, "CW memory 1 is \"\""},
        {"BS05;", sent, "goes to 14 MHz"},
        {"F\xC3\xA4;", received, "not readable"},
        {"FA0142\n50000;", received, "not readable"},
    };
    for (const auto& [text, direction, meaning] : cases) EXPECT_EQ(lineMeaning(text, direction), meaning) << text;
    EXPECT_EQ(printable("A\n\x80;"), "A\\x0A\\x80;");
}

struct LineBench : TestBench {
    explicit LineBench(MapSettingsStore::Values stored = {}) : TestBench(std::move(stored)) {
        outlastOpening();
        display.lineClearButton.performClick();
    }
    // What is shown, as "sent FA;".
    std::vector<std::string> shown() {
        controller.lineWatch.look();
        std::vector<std::string> lines;
        const LineView& view = controller.lineWatch.view();
        for (std::size_t row = 0; row < view.rows(); ++row) {
            const LineText text = lineText(view.row(row));
            lines.push_back(text.direction + ' ' + text.bytes);
        }
        return lines;
    }
    std::string count() const { return display.lineCountField.stringValue(); }
    void filter(std::string_view words) { display.lineFilterField.edit(words); }
};

TEST(LineWatch, ShowsWhatIsOnTheLineBothWaysWhateverItIs) {
    LineBench bench;
    bench.controller.writeString("FA;FB;");
    bench.controller.sendCommand("TX1;");
    bench.receive("BI1;");
    bench.receive("F\xFF\n;");
    bench.receive("never ended");
    bench.receive(std::string(300, 'x') + ';');
    EXPECT_THAT(bench.shown(),
                ElementsAre("sent FA;", "sent FB;", "sent TX1;", "received BI1;", "received F\\xFF\\x0A;",
                            "received never ended", "received " + std::string(RecordedLine::mostKept, 'x') + "\u2026"));
    const LineView& view = bench.controller.lineWatch.view();
    EXPECT_EQ(lineText(view.row(5)).meaning, "not ended");
    EXPECT_EQ(lineText(view.row(6)).meaning, "too long: 301 bytes");
    EXPECT_EQ(fileLine(view.row(3)), "2026-11-23T00:00:13.000Z  received  BI1;  break-in on\n");
    EXPECT_EQ(bench.count(), "7 lines");
    bench.port->close();
    bench.controller.sendCommand("TX1;");
    EXPECT_EQ(bench.shown().size(), 7) << "what is dropped was not on the line";
}

TEST(LineWatch, KeepsTenThousandLinesAndTellsNobodyUntilItLooks) {
    LineBench bench;
    bench.shown();
    bench.takeChanges();
    for (int line = 0; line <= 10'000; ++line) bench.receive("PC" + zeroPadded(line % 1000, 3) + ';');
    EXPECT_THAT(bench.takeChanges(), Not(testing::Contains("lineCountField")));
    EXPECT_EQ(bench.controller.lineWatch.look(), (LineView::Change{.added = 10'000}));
    EXPECT_EQ(bench.shown().front(), "received PC001;");
    EXPECT_EQ(bench.count(), "10000 lines");
    bench.receive("PC999;PC998;");
    EXPECT_EQ(bench.controller.lineWatch.look(), (LineView::Change{.removed = 2, .added = 2}));
    EXPECT_EQ(bench.shown().back(), "received PC998;");
}

TEST(LineWatch, FiltersPausesAndClears) {
    LineBench bench;
    for (const char* response : {"TX1;", "RM1100000;", "TX0;", "PC050;"}) bench.receive(response);
    bench.filter("tx  RECEIVED");
    EXPECT_THAT(bench.shown(), ElementsAre("received TX1;", "received TX0;"));
    EXPECT_EQ(bench.count(), "2 of 4 lines");
    bench.filter("50 w");
    EXPECT_THAT(bench.shown(), ElementsAre("received PC050;")) << "the meaning counts, too";
    bench.filter("nowhere");
    EXPECT_THAT(bench.shown(), ElementsAre());
    bench.display.lineCopyButton.performClick();
    EXPECT_EQ(bench.around.clipboard.held, "");
    bench.filter("");
    bench.display.lineMeterSwitch.performClick();
    EXPECT_THAT(bench.shown(), ElementsAre("received TX1;", "received TX0;", "received PC050;"));

    bench.display.linePauseButton.performClick();
    for (int line = 0; line < 10'001; ++line) bench.receive("TX2;");
    EXPECT_THAT(bench.shown(), ElementsAre("received TX1;", "received TX0;", "received PC050;"));
    EXPECT_EQ(bench.count(), "3 of 4 lines, paused, 10000 newer");
    bench.display.lineClearButton.performClick();
    EXPECT_THAT(bench.shown(), ElementsAre());
    EXPECT_EQ(bench.count(), "0 lines, paused, 0 newer");
    bench.receive("PC010;");
    EXPECT_THAT(bench.shown(), ElementsAre());
    bench.display.linePauseButton.performClick();
    EXPECT_THAT(bench.shown(), ElementsAre("received PC010;"));
    bench.display.lineCopyButton.performClick();
    EXPECT_THAT(bench.around.clipboard.held, EndsWith("Z  received  PC010;  the power is 10 W\n"));
}

TEST(LineWatch, SavesWhatIsShownAndSaysWhyItCouldNot) {
    LineBench bench;
    for (const char* response : {"TX1;", "PC050;"}) bench.receive(response);
    bench.filter("tx");
    bench.display.lineSaveButton.performClick();
    EXPECT_THAT(bench.around.files.files, testing::IsEmpty()) << "no file was chosen";
    bench.around.files.choice = "/t/traffic.txt";
    bench.display.lineSaveButton.performClick();
    EXPECT_THAT(bench.around.files.files.at("/t/traffic.txt"), EndsWith("  received  TX1;  TX on\n"));
    bench.around.files.failure = "No space left on device.";
    for (Button* key : {&bench.display.lineSaveButton, &bench.display.lineReportButton}) key->performClick();
    EXPECT_THAT(bench.around.alerts.shown,
                ElementsAre("The traffic was not saved\n\n/t/traffic.txt: No space left on device.",
                            "The report was not saved\n\n/t/traffic.txt: No space left on device."));
}

TEST(LineReport, HoldsWhatHelpsAndNothingThatTellsWhoTheOperatorIs) {
    constexpr std::string_view secret = "0123456789abcdef0123456789abcdef";
    LineBench bench({{"operator", std::string(secret)},
                     {"call", "SECRETCALL"},
                     {"directoryServer", "https://club.example"},
                     {"windowGeometry", "geometry"},
                     {"defaultPort", "/home/jo/radio"},
                     {"share", "1"}});
    bench.controller.lineWatch.facts = [] { return ProgramFacts{"Corvane 9.9", "Qt 6", "Debian", "/home/jo"}; };
    bench.around.files.choice = "/t/report.txt";
    bench.around.settings.values["defaultPort"] = "/home/jo/radio";
    for (int line = 0; line < 2001; ++line) bench.receive("PC" + zeroPadded(line % 1000, 3) + ';');
    bench.port->close();
    bench.controller.link.showMessage("/home/jo/radio does not exist.");
    bench.display.lineReportButton.performClick();
    const std::string report = bench.around.files.files.at("/t/report.txt");
    for (const char* part :
         {"Corvane report of 2026-11-23T00:00:13.000Z\n", "Program: Corvane 9.9\n", "Toolkit: Qt 6\n",
          "System: Debian\n", "Port: ttyUSB0\n", "Device: USB serial adapter, /dev/ttyUSB0\n", "Link: Not connected\n",
          "Message: ~/radio does not exist.\n", "share: 1\n", "defaultPort: ~/radio\n",
          "Traffic: the last 2000 of 2001 lines\n"})
        EXPECT_THAT(report, HasSubstr(part));
    EXPECT_THAT(report, EndsWith("  received  PC000;  the power is 0 W\n"));
    for (const std::string_view part : {secret, std::string_view("SECRETCALL"), std::string_view("club.example"),
                                        std::string_view("geometry"), std::string_view("/home/jo")})
        EXPECT_THAT(report, Not(HasSubstr(std::string(part)))) << part;
    bench.controller.link.setSerialPort(nullptr);
    bench.display.lineReportButton.performClick();
    EXPECT_THAT(bench.around.files.files.at("/t/report.txt"), HasSubstr("Port: none chosen\n"));
}

}  // namespace
}  // namespace corvane

#include <gmock/gmock.h>

#include "feeds/feed_cells.h"
#include "feeds/feed_table.h"
#include "feeds/tune_command.h"
#include "tests/support/test_bench.h"
#include "wire/utf8.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string spots =
    R"([{"activator":"N0CALL","frequency":"7185.5","mode":"SSB","comments":"","name":"Some Park","spotTime":)"
    R"("2026-11-23T00:00:00","locationDesc":"US-ME","reference":"US-0001"}])";
const std::string nets =
    "<NetName>Noon Net</NetName><Frequency>3.940</Frequency><UTC>17:00</UTC><Mode>LSB</Mode><URL></URL>"
    "<Confirmed></Confirmed><NetID>7</NetID>\n";

struct FeedBench : TestBench {
    FeedBench() {
        receive("VS0;");
        advance(2s);  // the refreshes at the start end
        forgetWhatHappened();
        around.http = {};
    }
    // Answers the n-th request. What decodes it must leave the rooms alone: ThreadSanitizer sees when it does not, and
    // so do we if a control changes.
    void answer(std::size_t index, HttpResponse response) {
        takeChanges();
        const auto rest = http.decode(index, std::move(response), [this] {
            for (const ListFeed& feed : listFeeds) {
                (display.*feed.table).rows();
                (display.*feed.status).setStringValue((display.*feed.status).stringValue());
            }
            display.bandStatusField.setStringValue(display.bandStatusField.stringValue());
        });
        EXPECT_THAT(takeChanges(), IsEmpty()) << "decoding changes a control";
        rest();
    }
    RecordingHttpClient& http = around.http;
};

TEST(Feeds, AreFetchedSideBySideAtTheStartAndWhenPortsAppear) {
    TestBench bench;
    std::vector<std::string> urls;
    for (const HttpRequest& request : std::exchange(bench.around.http.requests, {}))
        urls.push_back(request.url + (request.ignoreCaches ? ", past the caches" : ""));
    EXPECT_THAT(
        urls,
        ElementsAre("https://api.pota.app/spot/activator", "https://www.netlogger.org/api/GetActiveNets.php",
                    "https://api2.sota.org.uk/api/spots/-3/all", "http://127.0.0.1:8073/nets.php, past the caches",
                    "http://127.0.0.1:8073/mw.php, past the caches", "https://www.hamqsl.com/solarxml.php"));
    bench.around.portManager.connect({});
    EXPECT_EQ(bench.around.http.requests.size(), 5U);
}

TEST(Feeds, ARefreshEmptiesTheListAndTakesItsAnswerAtOnce) {
    FeedBench bench;
    bench.controller.lists.setRows(listFeed(Feed::pota), {{{"old"}}});
    bench.press(811);
    EXPECT_EQ(bench.display.potaTable.rows(), 0);
    HttpRequest plain;
    plain.url = "https://api.pota.app/spot/activator";
    EXPECT_EQ(bench.http.requests.at(0), plain);
    bench.advance(1s);
    bench.answer(0, {spots, ""});
    ASSERT_EQ(bench.display.potaTable.rows(), 1);
    EXPECT_EQ(bench.display.potaTable.cell(0, 2), "7185.5");
    EXPECT_EQ(bench.display.potaStatusField.stringValue(), "00:00 UTC: 1 spot");
    EXPECT_THAT(bench.takeSounds(), ElementsAre("file Funk"));
    bench.advance(5s);
    EXPECT_EQ(bench.display.potaTable.rows(), 1);
    EXPECT_THAT(bench.takeSounds(), IsEmpty());
    EXPECT_THAT(bench.takeWrites(), testing::Not(testing::Contains("BI1;")));
}

TEST(Feeds, WhatComesLateOrForAnEarlierRefreshIsDropped) {
    FeedBench bench;
    bench.press(811);
    bench.advance(1999ms);
    EXPECT_EQ(bench.display.potaStatusField.stringValue(), "Refreshing\u2026");
    bench.advance(1ms);
    EXPECT_EQ(bench.display.potaStatusField.stringValue(), "00:00 UTC: no answer within 2 s");
    EXPECT_THAT(bench.http.cancelled, ElementsAre(0));
    bench.answer(0, {spots, ""});
    EXPECT_EQ(bench.display.potaTable.rows(), 0);

    bench.press(811);
    bench.press(811);
    EXPECT_THAT(bench.http.cancelled, ElementsAre(0, 1));
    bench.answer(1, {spots, ""});
    EXPECT_EQ(bench.display.potaTable.rows(), 0);
    bench.answer(2, {spots, ""});
    EXPECT_EQ(bench.display.potaTable.rows(), 1);
}

TEST(Feeds, TheLineBesideAListSaysWhatWentWrong) {
    const std::pair<HttpResponse, std::string_view> cases[] = {
        {{"", "no network"}, "no network"},
        {{"<html>", "status 500"}, "status 500"},
        {{"<html>", ""}, "unreadable: not JSON"},
        {{"[{}]", ""}, "unreadable: record 1 has no text \"activator\""},
        {{"[]", ""}, "0 spots"},
        {{"", ""}, "an empty answer"},
    };
    for (const auto& [response, line] : cases) {
        FeedBench bench;
        bench.controller.fetchPotaSpots();
        bench.answer(0, response);
        EXPECT_EQ(bench.display.potaStatusField.stringValue(), "00:00 UTC: " + std::string(line));
        EXPECT_THAT(bench.around.alerts.shown, IsEmpty());
        EXPECT_THAT(bench.takeSounds(), IsEmpty());
    }
}

// An answer that each list can read, with `text` in all fields but the frequency and the mode.
std::string answerWith(const ListFeed& feed, const std::string& text, const std::string& frequency) {
    const bool json = feed.feed == Feed::pota || feed.feed == Feed::sota;
    std::string body;
    const auto add = [&](const std::string& name, const std::string& value) {
        body += json ? (body.empty() ? "[{\"" : ",\"") + name + "\":\"" + value + '"'
                     : "<" + name + '>' + value + "</" + name + '>';
    };
    for (const char* name : {"activator",
                             "comments",
                             "name",
                             "spotTime",
                             "locationDesc",
                             "reference",
                             "timeStamp",
                             "activatorCallsign",
                             "activatorName",
                             "summitCode",
                             "summitDetails",
                             "NetName",
                             "UTC",
                             "URL",
                             "Confirmed",
                             "NetID",
                             "SubscriberCount",
                             "Station",
                             "City",
                             "Power"})
        add(name, text);
    for (const char* name : {"frequency", "Frequency"}) add(name, frequency);
    for (const char* name : {"mode", "Mode"}) add(name, "SSB");
    return body + (json ? "}]" : "");
}

TEST(Feeds, LongTextsAreCutWhenTheyAreRead) {
    std::string longText, digits(10'000, '7');
    for (int i = 0; i < 10'000; ++i) longText += "\u00e4";
    const auto characters = [](std::string_view text) {
        return std::ranges::count_if(text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; });
    };
    for (const ListFeed& feed : listFeeds)
        for (const std::string& frequency : {std::string("7.1"), digits}) {
            FeedBench bench;
            TableView& table = bench.display.*feed.table;
            bench.controller.lists.fetch(feed.feed);
            bench.answer(0, {answerWith(feed, longText, frequency), ""});
            const FeedList& rows = bench.controller.lists.state().*feed.list;
            ASSERT_EQ(rows.size(), feed.feed == Feed::sota && frequency == digits ? 0U : 1U);
            for (const FeedRow& row : rows)
                for (const std::string& text : row.fields) {
                    EXPECT_TRUE(characters(text) <= 200 && isUtf8(text)) << feed.path;
                    EXPECT_LE(text.capacity(), 1000U);
                }
            for (int column = 0; column < static_cast<int>(table.columns().size()) && !rows.empty(); ++column) {
                EXPECT_LE(characters(table.cell(0, column)), 210) << feed.path << column;
                table.pressCell(0, column);
            }
            for (const std::string& text : bench.takeSpoken()) EXPECT_LE(characters(text), 230) << feed.path;
            for (const std::string& write : bench.takeWrites()) EXPECT_LE(write.size(), 64U) << feed.path;
        }
}

TEST(Feeds, BandConditionsAreShownInTheirColors) {
    FeedBench bench;
    std::string body;
    for (int line = 0; line < 40; ++line) {
        const char* value = line == 4    ? "23 Nov 2026"
                            : line == 20 ? "Good"
                            : line == 21 ? "Fair"
                            : line == 37 ? "S1-S2"
                                         : "Poor";
        body += std::string("<v>") + (line == 33 ? "Band Closed" : value) + "</v>\r\n";
    }
    bench.press(810);
    bench.answer(0, {body, ""});
    Display& display = bench.display;
    const auto shown = [](const TextField& field) { return std::pair{field.stringValue(), field.textColor()}; };
    using Shown = std::pair<std::string, Color>;
    EXPECT_EQ(display.bandBox.title(), "Band Conditions - 23 Nov 2026");
    EXPECT_EQ(shown(display.day8040Field), Shown("Good", Color::green));
    EXPECT_EQ(shown(display.day3020Field), Shown("Fair", Color::orange));
    EXPECT_EQ(shown(display.night1210Field), Shown("Poor", Color::red));
    EXPECT_EQ(shown(display.solarFluxField), Shown("Poor", Color::green));
    EXPECT_EQ(shown(display.signalNoiseField), Shown("S1-S2", Color::green));
    EXPECT_EQ(shown(display.magicBandField), Shown("Closed", Color::red));
    bench.controller.fetchBandConditions();
    bench.advance(2s);
    EXPECT_EQ(display.bandBox.title(), "Band Conditions - ");
    EXPECT_EQ(shown(display.day8040Field), Shown("", Color::red));
    EXPECT_EQ(shown(display.signalNoiseField), Shown("", Color::red));
    EXPECT_EQ(shown(display.magicBandField), Shown("Open", Color::green));
    EXPECT_THAT(display.bandStatusField.stringValue(), HasSubstr("no answer"));
}

TEST(TuneCommand, FollowsTheRowsWordsAndUnits) {
    using enum Feed;
    const struct {
        Feed list;
        FeedRow row;
        std::string sent;
        std::string spoken = {};
    } cases[] = {
        {pota, {{"", "14074", "FT8", "", "Park"}}, "MD02;SF1E;FA014074000;SS0640000;", "Park"},
        {pota, {{"", "7185.5", "SSB", "", "Park"}}, "MD01;SF1E;FA007185500;SS0640000;", "Park"},
        {pota, {{"", "10100", "CW", "", "Park"}}, "MD03;SF1H;FA010100000;SS0640000;", "Park"},
        {pota, {{"", "9999.9", "CW", "", "Park"}}, "MD07;SF1H;FA009999900;SS0640000;", "Park"},
        {pota, {{"", "14286", "AM", "", "Park"}}, "FA014286000;SS0640000;", "Park"},
        {pota, {{"", "14286", "ssb", "", "Park"}}, "FA014286000;SS0640000;", "Park"},
        {pota, {{"", "7.074.5", "SSB", "", "Park"}}, ""},
        {pota, {{"", "14074"}}, ""},
        {sota, {{"", "", "14.062", "CW", "", "", "Hill"}}, "MD03;SF1H;FA014062000;SS0640000;", "Hill"},
        {sota, {{"", "", "2.001", "SSB", "", "", "Hill"}}, "MD01;SF1E;FA002000999;SS0640000;", "Hill"},
        {nets, {{"Net", "3.940", "", "LSB"}}, "MD01;FA003940000;SS0640000;", "Net"},
        {nets, {{"Net", "3.940", "", "SSB"}}, "FA003940000;SS0640000;", "Net"},
        {netLogger, {{"Net", "14300"}}, "MD02;FA014300000;SS0640000;SS0560000;", "Net"},
        {netLogger, {{"Net", "3.9155"}}, "MD01;FA003915500;SS0640000;SS0560000;", "Net"},
        {netLogger, {{"Net", "10.0"}}, "MD01;FA001000000;SS0640000;SS0560000;", "Net"},
        {netLogger, {{"Net", "7.0.7"}}, "MD01;FA000000000;SS0640000;SS0560000;", "Net"},
        {mediumWave, {{"WAAA", "1000"}}, "MD05;FA001000000;SS0640000;", "WAAA"},
        {mediumWave, {{"WAAA", "540"}}, "MD05;FA000540000;SS0640000;", "WAAA"},
        {mediumWave, {{"WAAA", ""}}, ""},
    };
    for (const auto& tuned : cases) {
        FeedBench bench;
        bench.controller.link.build("KY6;");
        bench.controller.lists.setRows(listFeed(tuned.list), {{{"another"}}, tuned.row});
        TableView& table = bench.display.*listFeed(tuned.list).table;
        table.pressCell(1, 0);  // the column of the tune buttons
        std::string sent;
        for (const std::string& write : bench.takeWrites()) sent += write;
        EXPECT_EQ(sent, tuned.sent);
        EXPECT_EQ(bench.controller.link.cmd(), tuned.sent.empty() ? "KY6;" : tuned.sent);
        EXPECT_EQ(bench.takeSpoken(), tuned.spoken.empty() ? Writes{} : Writes{tuned.spoken}) << tuned.sent;
        for (const int row : {2, -1}) table.pressCell(row, 0);
        EXPECT_THAT(bench.takeWrites(), IsEmpty());
    }
}

struct CheckInBench : FeedBench {
    CheckInBench() {
        controller.lists.setRows(listFeed(Feed::nets),
                                 {{{"", "", "", "", "", "", ""}}, {{"Noon Net", "3.940", "", "LSB", "", "", "7"}}});
    }
    void confirm(int row) { display.netsTable.pressCell(row, 6); }
    void retract(int row) { display.netsTable.pressCell(row, 7); }
    std::string key() const { return around.settings.values.at("operator"); }
    // "1", "0" for check-ins, "list" for a request for the list; since the last call.
    std::vector<std::string> takeAsked() {
        std::vector<std::string> asked;
        for (const HttpRequest& request : std::exchange(http.requests, {}))
            asked.push_back(request.method == "POST" ? request.body.substr(10, 1) : "list");
        return asked;
    }
};

TEST(CheckIns, ArePostedSpokenAndSeenInTheDirectory) {
    CheckInBench bench;
    bench.confirm(1);
    const std::string key = bench.key();
    EXPECT_EQ(key.size(), 32U);
    const HttpRequest post{.method = "POST",
                           .url = "http://127.0.0.1:8073/netconf.php",
                           .timeout = 30s,
                           .ignoreCaches = true,
                           .contentType = "Application/json",
                           .key = key,
                           .body = R"({"action":1,"key":")" + key + R"(","net_id":"7"})"};
    EXPECT_EQ(bench.http.requests.at(0), post);
    EXPECT_THAT(bench.takeSpoken(), ElementsAre("thank you for confirming Noon Net"));
    bench.advance(1999ms);
    EXPECT_EQ(bench.http.requests.size(), 1U);
    bench.advance(1ms);
    EXPECT_EQ(bench.http.requests.at(1).url, "http://127.0.0.1:8073/nets.php");
    EXPECT_EQ(bench.http.requests.at(1).key, key);
}

TEST(CheckIns, LeaveInTheOrderOfThePresses) {
    CheckInBench bench;
    bench.confirm(1);
    bench.confirm(0);
    bench.retract(1);
    EXPECT_EQ(bench.display.netsTable.rows(), 0) << "emptied at once";
    bench.answer(0, {"", "no answer in time"});
    bench.answer(1, {});
    EXPECT_THAT(bench.takeAsked(), ElementsAre("1", "1", "0"));
    bench.takeSpoken();
    // Other refreshes wait for the check-in, too, and do not lose its announcement.
    bench.press(814);
    bench.press(814);
    EXPECT_THAT(bench.takeAsked(), IsEmpty());
    bench.answer(2, {});
    EXPECT_THAT(bench.takeAsked(), ElementsAre("list"));
    EXPECT_THAT(bench.takeSpoken(), IsEmpty());
    bench.answer(3, {nets, ""});
    EXPECT_EQ(bench.display.netsTable.rows(), 1);
    EXPECT_THAT(bench.takeSpoken(), ElementsAre("your confirmation of this net has been retracted"));
    EXPECT_THAT(bench.takeSounds(), ElementsAre("file Funk"));
}

TEST(CheckIns, ARetractionShowsTheListWithinTwoSeconds) {
    CheckInBench bench;
    bench.confirm(0);
    bench.advance(500ms);
    bench.retract(1);
    bench.advance(999ms);
    EXPECT_THAT(bench.takeAsked(), ElementsAre("1"));
    bench.advance(1ms);
    EXPECT_THAT(bench.takeAsked(), ElementsAre("list"));
    bench.advance(999ms);  // the time of the confirmation has come meanwhile
    EXPECT_THAT(bench.takeSpoken(), ElementsAre("thank you for confirming "));
    bench.advance(1ms);
    EXPECT_THAT(bench.takeSpoken(), ElementsAre("your confirmation of this net has been retracted"));
    EXPECT_EQ(bench.display.netsStatusField.stringValue(), "00:00 UTC: no answer within 2 s");
    EXPECT_THAT(bench.takeAsked(), IsEmpty());
}

TEST(OperatorKey, ThatIsDamagedGoesNowhereAndIsRenewed) {
    for (const std::string damaged :
         {"me&all=1", "0123456789ABCDEF0123456789ABCDEF", "0123456789abcdef0123456789abcdef "}) {
        CheckInBench bench;
        bench.around.settings.values["operator"] = damaged;
        bench.controller.fetchNets();
        EXPECT_EQ(bench.http.requests.back().key, "");
        bench.controller.lists.setRows(listFeed(Feed::nets), {{{"Noon Net", "", "", "", "", "", "7"}}});
        bench.confirm(0);
        EXPECT_THAT(bench.key(), testing::MatchesRegex("[0-9a-f]{32}")) << damaged;
        EXPECT_EQ(bench.http.requests.back().key, bench.key());
    }
}

TEST(FeedCells, ShowKilohertzMinutesAndDashes) {
    const struct {
        Feed feed;
        std::string_view column;
        FeedRow row;
        std::string_view shown;
    } cases[] = {
        {Feed::pota, "frequency", {{"", "14074"}}, "14074.0"},
        {Feed::pota, "frequency", {{"", "x"}}, "0.0"},
        {Feed::pota, "reference", {{"short"}}, ""},
        {Feed::sota, "frequency2", {{"", "", "14.062"}}, "14062.0"},
        {Feed::sota, "activatorName", {{"", "Not recognised"}}, "--"},
        {Feed::sota, "name2", {{"", "", "", "", "", "", "Summit not recognised"}}, "--"},
        {Feed::netLogger, "freq", {{"", "14300"}}, "14300.0"},
        {Feed::netLogger, "freq", {{"", "7.0.7"}}, ""},
        {Feed::mediumWave, "power", {{"", "", "", "50"}}, "50 kW"},
    };
    for (const auto& cell : cases) EXPECT_EQ(feedCell(cell.feed, cell.column, cell.row), cell.shown) << cell.column;
}

}  // namespace
}  // namespace corvane

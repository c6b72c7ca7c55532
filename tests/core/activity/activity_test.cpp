// What of the lists is shown, how they are kept fresh, and what is watched.
#include <gmock/gmock.h>

#include "activity/row_order.h"
#include "activity/watch_list.h"
#include "tests/support/test_bench.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

FeedRow park(const std::string& call, const std::string& kilohertz, const std::string& mode, const std::string& age) {
    return {{call, kilohertz, mode, "cq", "A Park", age, "45.0", "-69.5", "US-ME", "US-0001"}};
}
FeedRow summit(const std::string& call, const std::string& megahertz, const std::string& mode,
               const std::string& comment, const std::string& age) {
    return {{call, "Pat", megahertz, mode, comment, "G/LD-001", "Some Fell", "900m", "8 points", age}};
}
std::string spot(const std::string& call, const std::string& kilohertz) {
    return R"({"activator":")" + call + R"(","frequency":")" + kilohertz +
           R"(","mode":"SSB","comments":"","name":"A Park","spotTime":"2026-11-23T00:00:00","locationDesc":"US-ME",)"
           R"("reference":"US-0001"})";
}

struct ActivityBench : TestBench {
    explicit ActivityBench(MapSettingsStore::Values stored = {}) : TestBench(std::move(stored)) {
        receive("VS0;FA014250000;");
        advance(2s);  // the refreshes at the start end
        around.http = {};
        forgetWhatHappened();
    }
    void put(Feed feed, FeedList rows) { controller.lists.setRows(listFeed(feed), std::move(rows)); }
    // The first column that tells of a row, as the table shows its rows.
    std::vector<std::string> shown(const TableView& table, std::string_view column) const {
        std::vector<std::string> texts;
        for (const int row : table.rowOrder()) texts.push_back(table.cell(row, table.columnWithIdentifier(column)));
        return texts;
    }
    std::vector<std::string> parks() const { return shown(display.potaTable, "activator"); }
    std::size_t entriesOnMap() {
        std::size_t number = 0;
        for (const BandEntries& band : controller.bandMap.entries()->bands) number += band.size();
        return number;
    }
    void answerLast(const HttpResponse& response) { around.http.decode(around.http.requests.size() - 1, response)(); }
    // A refresh of the parks by its key.
    void answerParks(const std::string& body) {
        press(811);
        answerLast({body, ""});
        takeSounds();
    }
    std::vector<std::string> takeNotices() {
        std::vector<std::string> texts;
        for (const UserNotification& notice : std::exchange(around.notices.shown, {}))
            texts.push_back(notice.title + ": " + notice.informativeText);
        return texts;
    }
};

TEST(Activity, ChipsChooseForTablesAndMapAlike) {
    ActivityBench bench;
    bench.put(Feed::pota,
              {park("K1SSB", "14285", "SSB", "1"), park("K2CW", "14030", "CW", "2"), park("K3DATA", "7074", "FT8", "3"),
               park("K4NONE", "14285", "", "4"), park("K5BAD", "QRT", "CW", "5")});
    const struct {
        std::vector<Chip> pressed;
        std::vector<std::string> parks;
        std::size_t onMap;
    } cases[] = {
        {{}, {"K1SSB", "K2CW", "K3DATA", "K4NONE", "K5BAD"}, 4},
        {{Chip::thisBand}, {"K1SSB", "K2CW", "K4NONE"}, 3},
        {{Chip::thisBand, Chip::cw}, {"K2CW"}, 1},
        {{Chip::cw, Chip::data}, {"K2CW", "K3DATA"}, 2},
        {{Chip::phone, Chip::all}, {"K1SSB", "K2CW", "K3DATA", "K4NONE", "K5BAD"}, 4},
        {{Chip::phone, Chip::phone}, {"K1SSB", "K2CW", "K3DATA", "K4NONE", "K5BAD"}, 4},
        {{Chip::pota, Chip::phone}, {"K1SSB"}, 1},
        {{Chip::sota}, {"K1SSB", "K2CW", "K3DATA", "K4NONE", "K5BAD"}, 0},  // a table has one kind
    };
    for (const auto& each : cases) {
        bench.display.chip(Chip::all).performClick();
        for (const Chip chip : each.pressed) bench.display.chip(chip).performClick();
        const std::string kept = bench.around.settings.values["chips"];
        EXPECT_EQ(bench.parks(), each.parks) << kept;
        EXPECT_EQ(bench.entriesOnMap(), each.onMap) << kept;
        EXPECT_EQ(bench.display.chip(Chip::all).checked(), kept.empty());
    }
    bench.display.chip(Chip::all).performClick();
    bench.display.chip(Chip::thisBand).performClick();
    bench.receive("FA007100000;");
    EXPECT_THAT(bench.parks(), ElementsAre("K3DATA")) << "follows the VFO";
    EXPECT_EQ(bench.entriesOnMap(), 1U);
    ActivityBench next(bench.around.settings.values);
    EXPECT_TRUE(next.display.chip(Chip::thisBand).checked()) << "kept between runs";
}

TEST(Activity, HeadersSortAndWhatHasClosedComesLast) {
    ActivityBench bench;
    bench.put(Feed::sota, {summit("G4A/P", "14.285", "SSB", "cq", "12"), summit("G4B/P", "7.032", "CW", "qrt tnx", "2"),
                           summit("G4C/P", "14.062", "CW", " ", ""), summit("G4D/P", "7.1", "SSB", "", "9")});
    TableView& table = bench.display.sotaTable;
    const auto sorted = [&](std::string_view column) {
        table.pressHeader(table.columnWithIdentifier(column));
        return bench.shown(table, "activator2");
    };
    EXPECT_THAT(bench.shown(table, "activator2"), ElementsAre("G4A/P", "G4C/P", "G4D/P", "G4B/P"));
    EXPECT_THAT(sorted("last2"), ElementsAre("G4D/P", "G4A/P", "G4C/P", "G4B/P")) << "9 before 12, no age after both";
    EXPECT_THAT(sorted("last2"), ElementsAre("G4A/P", "G4D/P", "G4C/P", "G4B/P"));
    EXPECT_THAT(sorted("frequency2"), ElementsAre("G4D/P", "G4C/P", "G4A/P", "G4B/P"));
    EXPECT_EQ(table.sortDirection(table.columnWithIdentifier("last2")), SortDirection::unknown);
    EXPECT_EQ(table.view(1, 1), TableCell(TextCell{"G4B/P", true})) << "grey";
    EXPECT_EQ(table.view(0, 1), TableCell(TextCell{"G4A/P"}));
    // The row of a Tune key is that of the list.
    table.pressCell(2, 0);
    EXPECT_THAT(bench.takeWrites(), testing::Contains(HasSubstr("FA014062000;")));
}

TEST(Activity, AgesCountUpBetweenRefreshes) {
    ActivityBench bench;
    bench.put(Feed::pota, {park("K1ABC", "14285", "SSB", "4"), park("N0AGE", "14285", "SSB", "")});
    bench.takeChanges();
    bench.advance(3min);
    EXPECT_THAT(bench.shown(bench.display.potaTable, "last"), ElementsAre("7 min", ""));
    EXPECT_THAT(bench.takeChanges(), testing::Contains("potaTable")) << "the window is told";
}

// The refreshes that were asked for by nobody, as seconds between them.
TEST(Activity, ListsInSightAreRefreshedAtTheirInterval) {
    ActivityBench bench;
    const auto& requests = bench.around.http.requests;
    const auto waitForRequest = [&] {
        const std::size_t before = requests.size();
        auto waited = 0s;
        for (; requests.size() == before && waited < 1h; waited += 1s) bench.advance(1s);
        return waited;
    };
    bench.advance(1h);
    EXPECT_THAT(requests, IsEmpty()) << "off at first";
    bench.display.refreshEveryPopUpButton.choose(2);  // 2 min
    bench.advance(1h);
    EXPECT_THAT(requests, IsEmpty()) << "nobody looks";
    bench.display.mainTab.selectItem(Display::listsPage);
    ASSERT_EQ(requests.size(), 1U) << "it is overdue";
    EXPECT_THAT(requests.back().url, HasSubstr("/spot/activator"));
    bench.put(Feed::pota, {park("K1ABC", "14285", "SSB", "4")});
    bench.answerLast({"[" + spot("K1ABC", "14285") + "]", ""});
    EXPECT_THAT(bench.display.potaStatusField.stringValue(), HasSubstr(": 1 spot \u2014 next at 02:0"));
    EXPECT_THAT(waitForRequest(), testing::AllOf(testing::Ge(120s), testing::Le(133s)));
    EXPECT_THAT(bench.parks(), ElementsAre("K1ABC")) << "stays while it is fetched";
    // Each failure doubles the wait, up to 30 min.
    for (const auto wait : {240s, 480s, 960s, 1800s, 1800s}) {
        bench.answerLast({"", "no network"});
        EXPECT_THAT(bench.display.potaStatusField.stringValue(), HasSubstr("no network; the list is that of 02:0"));
        EXPECT_THAT(waitForRequest(), testing::AllOf(testing::Ge(wait), testing::Le(wait * 11 / 10 + 1s)));
    }
    EXPECT_THAT(bench.parks(), ElementsAre("K1ABC")) << "old spots are better than none";
    bench.answerLast({"[]", ""});
    EXPECT_THAT(bench.parks(), IsEmpty());
    EXPECT_THAT(waitForRequest(), testing::Le(133s)) << "an answer ends the longer waits";
    bench.answerLast({"[]", ""});
    bench.around.scheduler.setClock(-3h);
    EXPECT_THAT(waitForRequest(), testing::Le(133s)) << "the clock has been set";
    bench.controller.standingRefresh.setInSight(false);
    EXPECT_EQ(waitForRequest(), 1h) << "minimized";
    bench.display.refreshEveryPopUpButton.choose(0);
    bench.controller.standingRefresh.setInSight(true);
    EXPECT_EQ(waitForRequest(), 1h) << "off again";
    EXPECT_THAT(bench.display.potaStatusField.stringValue(), testing::Not(HasSubstr("next")));
}

TEST(Watching, TakesCallsAndReferences) {
    WatchList list = WatchList::from("k1abc, US-1234 W7W/* x * a,b bad_call");
    EXPECT_THAT(list.entries(), ElementsAre("K1ABC", "US-1234", "W7W/*"));
    const struct {
        std::string_view call, reference;
        bool watched;
    } cases[] = {
        {"K1ABC", "", true},        {"EA8/K1ABC/P", "", true},   {"K1ABCD", "", false}, {"N0A", "US-1234", true},
        {"N0A", "US-12345", false}, {"N0A", "W7W/LC-001", true}, {"W7W", "", false},    {"", "", false}};
    for (const auto& each : cases) EXPECT_EQ(list.watches(each.call, each.reference), each.watched) << each.call;
    for (const std::string_view refused : {"", "K", "*", "A*", "K1 ABC", "K1ABC**", "AAAAAAAAAAAAAAAAAAAAA"})
        EXPECT_NE(list.add(refused), "") << refused;
    EXPECT_EQ(list.add("k1abc "), "") << "there already";
    EXPECT_EQ(list.entries().size(), 3U);
}

TEST(Watching, TellsOnceOfWhoAppearsOrMoves) {
    ActivityBench bench(MapSettingsStore::Values{{"watched", "K1ABC N0*"}});
    bench.answerParks("[" + spot("K1ABC", "14285") + "," + spot("W1AW", "14290") + "]");
    EXPECT_THAT(bench.takeNotices(), ElementsAre("K1ABC: K1ABC is on 14.285 MHz, SSB, US-0001."));
    EXPECT_THAT(bench.takeSpoken(), ElementsAre("K1ABC is on 14.285 MHz, SSB, US-0001"));
    bench.answerParks("[" + spot("K1ABC", "14285.4") + "]");
    EXPECT_THAT(bench.takeNotices(), IsEmpty()) << "the same frequency, more or less";
    bench.answerParks("[" + spot("K1ABC", "7185") + "," + spot("N0A", "7185") + "]");
    EXPECT_THAT(bench.takeNotices(),
                ElementsAre("N0A, K1ABC: N0A is on 7.185 MHz, SSB, US-0001. K1ABC has gone to 7.185 MHz, SSB, "
                            "US-0001."));
    bench.answerParks("[]");
    bench.answerParks("[" + spot("K1ABC", "7185") + "]");
    EXPECT_THAT(bench.takeNotices(), IsEmpty()) << "a gap in the list";
    bench.answerParks("[]");
    bench.advance(31min);
    bench.answerParks("[" + spot("K1ABC", "7185") + "]");
    EXPECT_EQ(bench.takeNotices().size(), 1U) << "on the air again";
    bench.answerParks("[" + spot("N0A", "7185") + "," + spot("N0B", "7185") + "," + spot("N0C", "7185") + "," +
                      spot("N0D", "7185") + "]");
    EXPECT_THAT(bench.takeNotices(),
                ElementsAre("4 watched stations: 4 watched stations have come on the air or moved."));
}

TEST(Watching, ListsWhoIsOnTheAirWithATuneKey) {
    ActivityBench bench;
    bench.put(Feed::pota, {park("W1AW", "14290", "SSB", "1"), park("K1ABC", "14285", "SSB", "9")});
    bench.put(Feed::sota, {summit("G4A/P", "7.032", "CW", "QRT", "1"), summit("G4A/P", "7.1", "SSB", "cq", "5"),
                           summit("G4B/P", "14.062", "CW", "", "3")});
    const auto watch = [&](std::string_view entry) {
        bench.display.watchField.edit(entry);
        bench.display.watchField.performReturn();
    };
    watch("k1abc");
    watch("G/LD-*");
    EXPECT_EQ(bench.display.watchField.stringValue(), "");
    watch("no good");
    EXPECT_THAT(bench.display.watchNoticeField.stringValue(), HasSubstr("letters, digits"));
    EXPECT_EQ(bench.display.watchField.stringValue(), "no good") << "to be mended";
    TableView& table = bench.display.watchTable;
    EXPECT_THAT(bench.shown(table, "activator"), ElementsAre("G4B/P", "K1ABC")) << "G4A/P has closed";
    EXPECT_THAT(bench.takeNotices(), IsEmpty()) << "the operator is looking";
    const auto watched = [&] {
        std::vector<std::string> names;
        for (const BandEntries& band : bench.controller.bandMap.entries()->bands)
            for (const MapEntry& entry : band)
                if (entry.watched) names.push_back(entry.name);
        return names;
    };
    EXPECT_THAT(watched(), testing::UnorderedElementsAre("G4B/P", "G4A/P", "G4A/P", "K1ABC"));
    bench.display.potaTable.pressCell(1, 0);
    const Writes byItsRow = bench.takeWrites();
    table.pressCell(1, 0);
    EXPECT_EQ(bench.takeWrites(), byItsRow);
    bench.put(Feed::pota, {});
    table.pressCell(1, 0);
    EXPECT_THAT(bench.takeWrites(), IsEmpty()) << "it has gone";
    EXPECT_EQ(bench.around.settings.values["watched"], "G/LD-* K1ABC");
    bench.display.watchListTable.pressCell(0, 1);
    EXPECT_THAT(bench.shown(bench.display.watchListTable, "entry"), ElementsAre("K1ABC"));
    EXPECT_EQ(bench.around.settings.values["watched"], "K1ABC");
}

}  // namespace
}  // namespace corvane

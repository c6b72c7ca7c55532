// The band map: what is on it, where it stands, what it says, walking over it, and going to an entry.
#include "band_map/band_map.h"

#include <gmock/gmock.h>

#include <numeric>

#include "band_map/map_layout.h"
#include "band_map/map_texts.h"
#include "band_map/map_walk.h"
#include "band_map/net_time.h"
#include "band_map/tuning_steps.h"
#include "controls/operator_classes.h"
#include "tests/support/test_bench.h"
#include "wire/cat_command.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr std::size_t meters80 = 1;
constexpr std::size_t meters40 = 3;
constexpr std::size_t meters20 = 5;

FeedRow potaSpot(const std::string& call, const std::string& kilohertz, const std::string& mode,
                 const std::string& age) {
    return {{call, kilohertz, mode, "cq", "A Park", age, "45.0", "-69.5", "US-ME", "US-0001"}};
}

// The clock stands at 00:00 UTC on a Monday.
struct MapBench : TestBench {
    MapBench() {
        advance(2s);  // the refreshes at the start end
        put(Feed::pota, {potaSpot("K1ABC", "14285", "SSB", "4"),
                         potaSpot("W9OLD", "7031.5", "CW", "50"),
                         potaSpot("N0AGE", "14285", "FT8", ""),
                         potaSpot("K5OUT", "13560", "CW", "1"),
                         potaSpot("K6BAD", "QRT", "CW", "1"),
                         {{"short", "14000"}}});
        put(Feed::sota, {{{"G4XYZ/P", "Pat", "14.062", "CW", "", "G/LD-001", "Some Fell", "900m", "8 points", "7"}},
                         {{"S5/ODD", "Pat", "10.101", "SSB", "", "S5/TK-001", "Hill", "", "", "-1"}}});
        put(Feed::netLogger, {{{"Noon Net", "7.255", "SSB", "12"}},
                              {{"Late Net", "14300", "SSB", "1"}},
                              {{"Unreadable", "", "SSB", "3"}}});
        put(Feed::nets, {{{"On Now", "3.94", "23:30 Sun", "LSB", "", "", "7"}},
                         {{"Soon", "14.3", "00:20", "USB", "", "", "8"}},
                         {{"Other Day", "3.95", "00:20 Tue-Sun", "LSB", "", "", "9"}}});
        put(Feed::mediumWave, {{{"WAAA", "640", "Town", "50", ""}}});
        keepAutoMemory(controller, "VS0;FB007074000;VS0;MD02;FA014074000;");
        putChannel(controller.memories, 4, {"014250000", "2", "CALLING     "});
        forgetWhatHappened();
    }
    void put(Feed feed, FeedList rows) { controller.lists.setRows(listFeed(feed), std::move(rows)); }
    const MapEntries& entries() { return *controller.bandMap.entries(); }
    std::string line() const { return display.bandMapField.stringValue(); }
};

TEST(BandMapNets, AreOnForAnHourAndShownAnHourAhead) {
    const auto monday = std::chrono::sys_days{std::chrono::year{2026} / 11 / 23};
    const struct {
        std::string_view utc;
        std::chrono::seconds now;  // since the beginning of Monday
        std::optional<int> minutes;
    } cases[] = {
        {"17:00", 16h, 60},
        {"17:00", 16h - 1s, {}},
        {"17:00", 16h + 59min + 1s, 1},
        {"17:00", 17h, 0},
        {"17:00", 17h + 59min + 59s, -59},
        {"17:00", 18h, {}},
        {" 17:00  Mon ", 17h, 0},
        {"17:00 Tue", 17h, {}},
        {"17:00 Tue Sat-Mon", 17h, 0},
        {"17:00 Fri-Sun", 17h, {}},
        {"00:10", 23h + 30min, 40},
        {"00:10 Tue", 23h + 30min, 40},
        {"00:10 Mon", 23h + 30min, {}},
        {"23:30 Sun", 10min, -40},
        {"23:30 Mon", 10min, {}},
        {"24:00", 23h + 30min, {}},
        {"7:00", 7h, {}},
        {"0700", 7h, {}},
        {"17:00 daily", 17h, {}},
        {"", 0h, {}},
    };
    for (const auto& [utc, now, minutes] : cases)
        EXPECT_EQ(minutesToNet(utc, monday + now), minutes) << utc << now.count();
}

TEST(BandMap, SaysOfEachEntryWhatItsTableSays) {
    MapBench bench;
    std::vector<std::string> lines;
    for (const BandEntries& band : bench.entries().bands)
        for (const MapEntry& entry : band) lines.push_back(entryLine(entry));
    EXPECT_THAT(
        lines,
        ElementsAre("Net On Now, on now, 3.940 MHz, LSB, General, 23:30 Sun UTC",
                    "POTA W9OLD, US-0001, 7.0315 MHz, CW, 50 minutes ago, Technician CW, A Park, US-ME, cq",
                    "NetLogger Noon Net, 12 subscribers, 7.255 MHz, LSB, General",
                    "SOTA S5/ODD, S5/TK-001, 10.101 MHz, USB, just now, General, Hill",
                    "SOTA G4XYZ/P, G/LD-001, 14.062 MHz, CW, 7 minutes ago, General CW, Some Fell, 900m, 8 points",
                    "Auto memory 14.074, 14.074 MHz, USB, General CW", "Memory M-05 CALLING, 14.250 MHz, USB, General",
                    "POTA K1ABC, US-0001, 14.285 MHz, USB, 4 minutes ago, General, A Park, US-ME, cq",
                    "POTA N0AGE, US-0001, 14.285 MHz, FT8, age unknown, General, A Park, US-ME, cq",
                    "NetLogger Late Net, 1 subscriber, 14.300 MHz, USB, General",
                    "Net Soon, in 20 minutes, 14.300 MHz, USB, General, 00:20 UTC",
                    "Station WAAA, Town, 640 kHz, AM, 50 kW"));
    EXPECT_EQ(bench.entries().outside, 1);
    EXPECT_EQ(countText(bench.entries().bands[meters20]), "3 spots, 4 min");
    EXPECT_EQ(countText(bench.entries().bands[meters80]), "1 entry");
    bench.advance(19min);
    EXPECT_THAT(entryText(bench.entries().bands[meters20].back()), HasSubstr("Net Soon, in 1 minute,"));
    bench.advance(12min);
    EXPECT_EQ(bandText(meters80, bench.entries().bands[meters80]), "80 meters, 0 entries") << "the net is over";
    EXPECT_EQ(countText(bench.entries().bands[meters20]), "3 spots, 35 min") << "ages count up";
    bench.display.chip(Chip::sota).performClick();
    EXPECT_EQ(bandText(meters20, bench.entries().bands[meters20]), "20 meters, 1 entry");
}

// The map and the tables agree: the same bytes for each entry, to the frequency that the map shows.
TEST(BandMap, TunesAsTheKeyOfTheRowDoes) {
    MapBench bench;
    int compared = 0;
    const MapEntries entries = bench.entries();
    for (const BandEntries& band : entries.bands) {
        for (const MapEntry& entry : band) {
            const MapKind& kind = mapKind(entry.kind);
            bench.controller.bandMap.tune(entry);
            const Writes fromMap = bench.takeWrites();
            const auto saidByMap = bench.takeSpoken();
            if (entry.kind == EntryKind::memory) {
                bench.display.memPopUpButton.choose(entry.row);
            } else {
                TableView& table = bench.display.*kind.table;
                table.pressCell(entry.row, table.columnWithIdentifier(kind.tuneColumn));
                const std::string all = std::accumulate(fromMap.begin(), fromMap.end(), std::string());
                EXPECT_THAT(all, HasSubstr("FA" + zeroPadded(entry.hertz, 9) + ';')) << entry.name;
            }
            EXPECT_EQ(fromMap, bench.takeWrites()) << entry.name;
            EXPECT_EQ(saidByMap, bench.takeSpoken()) << entry.name;
            EXPECT_THAT(fromMap, testing::Not(IsEmpty())) << entry.name;
            ++compared;
        }
    }
    EXPECT_EQ(compared, 12);
    const MapEntry gone = entries.bands[meters20].back();
    ASSERT_EQ(gone.name, "Soon");
    bench.advance(1min);
    bench.controller.bandMap.tune(gone);
    EXPECT_THAT(bench.takeWrites(), testing::Not(IsEmpty())) << "a minute later the net is the same";
    bench.put(Feed::nets, {});
    bench.controller.bandMap.tune(gone);
    EXPECT_THAT(bench.takeWrites(), IsEmpty()) << "its row is another one now";
}

TEST(BandMap, TunesToAFreePlaceInTheStepOfTheMode) {
    MapBench bench;
    BandMap& map = bench.controller.bandMap;
    const struct {
        const char* mode;
        long long hertz;
        Writes writes;
    } cases[] = {
        {"MD02;", 14'210'260, {"FA014210500;"}},
        {"MD03;", 14'010'260, {"FA014010300;"}},
        {"MD05;", 1'100'499, {"FA001100000;"}},
        {"MD04;", 5'404'999, {"FA005404999;"}},
        {"MD01;", 13'999'999, {}},
    };
    for (const auto& [mode, hertz, writes] : cases) {
        bench.receive(mode);
        bench.takeWrites();
        map.tuneNear(hertz);
        EXPECT_EQ(bench.takeWrites(), writes) << mode << hertz;
    }
    map.step(-3);
    EXPECT_THAT(bench.takeWrites(), ElementsAre("FA014072500;"));
    map.step(0);
    bench.display.openCloseButton.performClick();
    bench.takeWrites();
    for (const auto& act :
         std::initializer_list<std::function<void()>>{[&] { map.tune(bench.entries().bands[meters20][0]); },
                                                      [&] { map.tuneNear(7'100'000); }, [&] { map.step(1); }}) {
        bench.display.bandMapField.setStringValue("");
        act();
        EXPECT_THAT(bench.takeWrites(), IsEmpty());
        EXPECT_EQ(bench.line(), "Not connected: nothing is sent.");
    }
    map.say("20 meters");
    EXPECT_THAT(bench.line(), HasSubstr("nothing is sent"));
}

TEST(BandMap, ReadsOutTheFiveNewestOfTheActiveBand) {
    MapBench bench;
    bench.display.readOutBandButton.performClick();
    const std::string text =
        "20 meters, 7 entries. NetLogger Late Net, 1 subscriber, 14.300 MHz, USB, General. "
        "Net Soon, in 20 minutes, 14.300 MHz, USB, General. POTA K1ABC, US-0001, 14.285 MHz, USB, 4 minutes ago, "
        "General. "
        "SOTA G4XYZ/P, G/LD-001, 14.062 MHz, CW, 7 minutes ago, General CW. "
        "POTA N0AGE, US-0001, 14.285 MHz, FT8, age unknown, General.";
    EXPECT_THAT(bench.takeSpoken(), ElementsAre(text));
    EXPECT_EQ(bench.line(), text);
    bench.receive("FA013000000;");
    bench.takeSpoken();
    bench.display.readOutBandButton.performClick();
    EXPECT_THAT(bench.takeSpoken(), ElementsAre("The active VFO is outside the bands of the map."));
}

TEST(BandMap, FollowsBothSidesAndKeepsTheOperatorsClass) {
    MapBench bench;
    BandMap& map = bench.controller.bandMap;
    EXPECT_EQ(map.needle('A'), 14'074'000);
    EXPECT_EQ(map.needle('B'), 7'074'000);
    EXPECT_EQ(map.activeBand(), meters20);
    bench.receive("FB007100000;");
    EXPECT_EQ(map.activeBand(), meters40);
    EXPECT_EQ(map.ownClass(), classNotSet);
    EXPECT_EQ(bench.display.ownClassPopUpButton.titleOfSelectedItem(), "Not set");
    bench.display.ownClassPopUpButton.choose(2);
    TestBench next({{"operatorClass", bench.around.settings.values.at("operatorClass")}});
    EXPECT_EQ(next.display.ownClassPopUpButton.titleOfSelectedItem(), "General");
    EXPECT_EQ(licenceClasses[next.controller.bandMap.ownClass()], "General");
}

TEST(ClassSegments, AreThoseThatTheFrequencyDisplayNames) {
    std::size_t segments = 0;
    for (std::size_t band = 0; band < mapBands.size(); ++band) {
        for (const ClassSegment& segment : segmentsOf(band)) {
            ++segments;
            const std::string title = std::string(licenceClasses[segment.lowestClass]) + (segment.onlyCw ? " CW" : "");
            for (const long long hertz : {segment.lower, segment.upper - 100})
                EXPECT_EQ(operatorClass(static_cast<float>(static_cast<double>(hertz) / 1e6)).title, title) << hertz;
            EXPECT_TRUE(mayUse(segment, classNotSet) && mayUse(segment, 3));
            EXPECT_EQ(mayUse(segment, 1), title.starts_with("Technician") || title.starts_with("General"));
        }
    }
    EXPECT_EQ(segments, operatorClasses.size());
}

BandEntries spotsAt(int count, int hertz, int apart) {
    BandEntries entries;
    for (int i = 0; i < count; ++i)
        entries.push_back({.hertz = hertz + i * apart, .name = "K" + std::to_string(i), .minutes = count - i});
    return entries;
}

TEST(MapLayout, LabelsNeverCoverEachOtherAndTheNewestComeFirst) {
    const auto width = [](const MapEntry& entry) { return 15.0 + 7 * static_cast<double>(entry.name.size()); };
    for (const auto& [count, apart] : {std::pair{0, 0}, {1, 0}, {300, 0}, {1000, 350}, {12, 500}}) {
        BandEntries entries = spotsAt(count, 14'000'000, apart);
        if (count > 1) entries[0].watched = true;  // the oldest
        const MapRow row = layoutRow(meters20, entries, {1000, 120, 14}, width);
        EXPECT_EQ(row.marks.size(), entries.size());
        EXPECT_EQ(row.labels.size() + static_cast<std::size_t>(row.unlabelled), entries.size());
        EXPECT_EQ(row.labels.empty(), entries.empty());
        for (const PlacedLabel& label : row.labels) {
            EXPECT_GE(label.left, 0);
            EXPECT_LE(label.left + label.width, row.width);
            EXPECT_GE(row.laneTop(label.lane), 0);
            for (const PlacedLabel& other : row.labels) {
                const bool apartInLane =
                    label.left + label.width <= other.left || other.left + other.width <= label.left;
                EXPECT_TRUE(&label == &other || label.lane != other.lane || apartInLane);
            }
        }
        if (count < 2) continue;
        EXPECT_EQ(row.labels[0].entry, 0U) << "watched";
        EXPECT_EQ(row.labels[1].entry, entries.size() - 1) << "the newest";
        EXPECT_EQ(row.unlabelled > 0, count >= 300);
    }
}

TEST(MapLayout, WhatIsUnderAPointIsALabelAMarkOrAPlaceOnTheScale) {
    MapEntries entries;
    entries.bands[meters20] = spotsAt(3, 14'100'000, 100'000);
    const auto rows = layoutMap(entries, {1000, 560, 14}, meters20, [](const MapEntry&) { return 50.0; });
    ASSERT_EQ(rows.size(), mapBands.size());
    const MapRow& row = rows[meters20];
    EXPECT_GT(row.height, 2 * rows[meters40].height);
    EXPECT_DOUBLE_EQ(rows.back().top + rows.back().height, 560);
    const auto at = [&](double x, double y) { return placeAt(rows, entries, x, y); };
    const double mark = row.xOf(14'200'000);
    EXPECT_EQ(at(mark + 4, row.markTop + 2), (MapPlace{meters20, 14'200'000, 1}));
    EXPECT_EQ(at(mark + 40, row.laneTop(0) + 2), (MapPlace{meters20, 14'200'000, 1}));
    EXPECT_EQ(at(mark, row.stripTop + 2), (MapPlace{meters20, 14'200'000, {}}));
    EXPECT_EQ(at(0, rows[0].top + 1), (MapPlace{0, 1'800'000, {}}));
    EXPECT_EQ(at(1000, rows[0].top + 1), (MapPlace{0, 2'000'000, {}}));
    EXPECT_EQ(at(-20, 10), std::nullopt);
    EXPECT_EQ(at(500, 561), std::nullopt);
    for (std::size_t band = 0; band < mapBands.size(); ++band) EXPECT_GE(ticksOf(band).size(), 3U) << band;
}

TEST(MapWalk, GoesFromEntryToEntryAndFromBandToBand) {
    MapEntries entries;
    entries.bands[meters20] = spotsAt(2, 14'100'000, 100'000);
    const struct {
        MapStep step;
        MapCursor cursor;
        const char* spoken;
    } steps[] = {
        {MapStep::right, {meters20, 1}, "POTA K0, 14.100 MHz, 2 minutes ago, General CW"},
        {MapStep::right, {meters20, 2}, "POTA K1, 14.200 MHz, 1 minute ago, Advanced"},
        {MapStep::right, {meters20, 3}, "Upper edge of 20 meters, 14.350 MHz"},
        {MapStep::right, {meters20, 3}, "Upper edge of 20 meters, 14.350 MHz"},
        {MapStep::home, {meters20, 0}, "Lower edge of 20 meters, 14.000 MHz"},
        {MapStep::left, {meters20, 0}, "Lower edge of 20 meters, 14.000 MHz"},
        {MapStep::end, {meters20, 3}, "Upper edge of 20 meters, 14.350 MHz"},
        {MapStep::down, {6}, "17 meters, 0 entries"},
        {MapStep::left, {6, 0}, "Lower edge of 17 meters, 18.068 MHz"},
        {MapStep::right, {6, 1}, "Upper edge of 17 meters, 18.168 MHz"},
        {MapStep::up, {meters20}, "20 meters, 2 entries"},
        {MapStep::left, {meters20, 2}, "POTA K1, 14.200 MHz, 1 minute ago, Advanced"},
    };
    MapCursor cursor{meters20};
    for (const auto& [step, next, spoken] : steps) {
        cursor = walked(cursor, step, entries);
        EXPECT_EQ(cursor, next) << spoken;
        EXPECT_EQ(spokenPlace(cursor, entries), spoken);
    }
    const MapEntry on = entries.bands[meters20][1];
    entries.bands[meters20] = spotsAt(1, 14'050'000, 0);
    entries.bands[meters20].push_back(on);
    entries.bands[meters20].push_back({.hertz = 14'300'000, .name = "K9"});
    EXPECT_EQ(followed({meters20, 1}, on, entries), (MapCursor{meters20, 2}));
    entries.bands[meters20].erase(entries.bands[meters20].begin() + 1);
    EXPECT_EQ(followed({meters20, 1}, on, entries), (MapCursor{meters20, 2})) << "the next one";
    EXPECT_EQ(followed({meters20, 3}, {}, entries), (MapCursor{meters20, 3})) << "the upper edge";
}

}  // namespace
}  // namespace corvane

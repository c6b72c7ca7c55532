#include <gmock/gmock.h>
#include <sys/resource.h>

#include "feeds/band_conditions.h"
#include "feeds/hertz.h"
#include "feeds/scrape_tags.h"
#include "feeds/spot_time.h"
#include "feeds/spots.h"
#include "feeds/tagged_lists.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Texts = std::vector<std::string>;

const Instant now = std::chrono::sys_days{std::chrono::year{2026} / 11 / 23} + 14h;

Texts column(const FeedList& rows, std::size_t position) {
    Texts texts;
    for (const FeedRow& row : rows) texts.push_back(row[position]);
    return texts;
}

std::string replaced(std::string text, std::string_view part, std::string_view by) {
    const std::size_t at = text.find(part);
    EXPECT_NE(at, std::string::npos) << part;
    return text.replace(at, part.size(), by);
}

TEST(ScrapeTags, TakesOneValueATagAndLine) {
    constexpr std::array<std::string_view, 3> tags{"NetName", "Frequency", "Mode"};
    const auto lists = scrapeTags(
        "<NetName>X</NetName><Mode>SSB</Mode>\n"
        "  <Frequency>14.300 MHz</Frequency>\r\n"
        "<Frequency>7,185</Frequency><NetName>Y</NetName><NetName>Z</NetName>\n"
        "<Mode>CW\n</Mode><Mode></Mode>\n"
        "<mode>no</mode><NetName>unfinished</Mode>\n"
        "<NetName>last</NetName>",
        tags);
    EXPECT_THAT(lists, ElementsAre(Texts{"X", "Y", "last"}, Texts{"14.300", "7185"}, Texts{"SSB", ""}));
    EXPECT_THAT(scrapeTags("", tags), ElementsAre(IsEmpty(), IsEmpty(), IsEmpty()));
    EXPECT_EQ(rowsOf({{"a", "b", "c"}, {"1", "2"}}), (FeedList{{{"a", "1"}}, {{"b", "2"}}}));
}

TEST(SpotTime, IsReadExactly) {
    ASSERT_TRUE(spotTime("2026-11-23T13:59:01"));
    for (const auto& [seconds, minutes] : {std::pair{0, 0}, {59, 0}, {60, 1}, {119, 1}, {120, 2}, {-59, 0}, {-60, -1}})
        EXPECT_EQ(spotAgeMinutes(
                      now, std::chrono::time_point_cast<std::chrono::seconds>(now) - std::chrono::seconds(seconds)),
                  minutes);
    EXPECT_EQ(spotAgeMinutes(now + 500ms, std::chrono::floor<std::chrono::seconds>(now) + 61s), -1);
    EXPECT_EQ(spotAgeMinutes(now + 500ms, std::chrono::floor<std::chrono::seconds>(now) + 60s), 0);
    EXPECT_LT(spotAgeMinutes(now, *spotTime("9999-12-31T00:00:00")), -4'000'000'000);
    for (const char* text :
         {"", "2026-11-23", "2026-11-23T13:59:01Z", "2026-11-23T13:59:01.5", "2026-02-30T00:00:00",
          "2026-11-23T24:00:00", "2026-11-23T13:60:00", "2026-11-23 13:59:01", "2026-11-23T1a:59:01"})
        EXPECT_FALSE(spotTime(text)) << text;
}

TEST(ListedFrequency, IsCutToHertzInSinglePrecision) {
    EXPECT_EQ(hertz("2.001", 1e6F), 2000999);
    EXPECT_EQ(hertz("2.002", 1e6F), 2002000);
    EXPECT_EQ(hertz("+7185.5", 1e3F), 7185500);
    for (const char* text : {"", " 7", "-5", "1e30"}) EXPECT_FALSE(hertz(text, 1e6F)) << text;
}

std::string potaSpot(const std::string& activator, const std::string& time, const std::string& comments) {
    return R"({"spotId":1,"extra":[[{}]],"activator":")" + activator +
           R"(","frequency":"14074","mode":"FT8","comments":")" + comments + R"(","name":"Some Park","spotTime":")" +
           time + R"(","latitude":45,"longitude":-1.5,"locationDesc":"US-ME","reference":"US-0001"})";
}

TEST(PotaSpots, BecomeRowsYoungestFirstWithoutThoseThatEnded) {
    const DecodedFeed spots = decodePotaSpots(
        '[' + potaSpot("A", "2026-11-23T13:55:00", "cq") + ',' + potaSpot("B", "2026-11-23T13:59:30", "Q R T") + ',' +
            potaSpot("gone", "2026-11-23T13:59:00", "now qRt, 73") + ',' + potaSpot("C", "2026-11-23T13:48:00", "") +
            ',' + potaSpot("D", "2026-11-23T13:54:59", "") + ',' + potaSpot("E", "yesterday", "") + ']',
        now);
    EXPECT_EQ(spots.problem, "");
    EXPECT_THAT(column(spots.rows, 0), ElementsAre("B", "A", "D", "C", "E"));
    EXPECT_THAT(column(spots.rows, 5), ElementsAre("0", "5", "5", "12", ""));
    EXPECT_EQ(spots.rows[1],
              (FeedRow{{"A", "14074", "FT8", "cq", "Some Park", "5", "45.0", "-1.5", "US-ME", "US-0001"}}));
    EXPECT_EQ(decodePotaSpots("[]", now), (DecodedFeed{}));
}

TEST(PotaSpots, AreReadExactlyOrNotAtAll) {
    const std::string spot = potaSpot("A", "2026-11-23T13:55:00", "cq");
    for (const auto& [part, by, row] :
         {std::tuple{R"("latitude":45,)", "", "0.0"}, std::tuple{R"("latitude":45)", R"("latitude":null)", "0.0"},
          std::tuple{R"("latitude":45)", R"("latitude":4.5e1)", "45.0"}}) {
        const DecodedFeed spots = decodePotaSpots('[' + replaced(spot, part, by) + ']', now);
        ASSERT_EQ(spots.rows.size(), 1U) << by;
        EXPECT_EQ(spots.rows[0][6], row) << by;
    }
    for (const auto& [part, by] : {std::pair{R"("name":"Some Park",)", ""},
                                   {R"("name":"Some Park")", R"("name":null)"},
                                   {R"("frequency":"14074")", R"("frequency":14074)"},
                                   {R"("latitude":45)", R"("latitude":"45")"},
                                   {R"("latitude":45)", R"("latitude":1e39)"},
                                   {R"("reference")", R"("Reference")"}}) {
        const DecodedFeed spots = decodePotaSpots('[' + spot + ',' + replaced(spot, part, by) + ']', now);
        EXPECT_THAT(spots.rows, IsEmpty()) << by;
        EXPECT_THAT(spots.problem, HasSubstr("unreadable: record 2 has no")) << by;
    }
    const Texts bodies{"{}",
                       "[1]",
                       "[[]]",
                       "null",
                       '[' + spot,
                       "<html>",
                       "",
                       "[\"\xff\"]",
                       "[1e400]",
                       std::string(3'000'000, '['),
                       '[' + std::string(1'000'000, '{')};
    for (const std::string& body : bodies) {
        const DecodedFeed spots = decodePotaSpots(body, now);
        EXPECT_THAT(spots.rows, IsEmpty());
        EXPECT_THAT(spots.problem, HasSubstr("unreadable")) << body.substr(0, 20);
    }
}

std::string sotaSpot(const std::string& frequency, const std::string& rest) {
    return R"({"activatorCallsign":"N0CALL","activatorName":"Jo","mode":"CW","summitCode":"W4C/CM-001","frequency":")" +
           frequency + "\"," + rest + '}';
}

TEST(SotaSpots, KeepTheirOrderAndTheBandsOfTheTransceiver) {
    const std::string known =
        R"("timeStamp":"2026-11-23T13:57:03.221","comments":"qrp","summitDetails":"Big Hill, 1234m, 6 points, more")";
    const std::string unknown = R"("timeStamp":"","comments":null,"summitDetails":"Summit not recognised")";
    std::string body = "[";
    for (const char* frequency : {"1.843", "70.2", "144.2", "nan", "-7", "", "69.99", "50.125", "14.062"})
        body += sotaSpot(frequency, known) + ',';
    const DecodedFeed spots = decodeSotaSpots(body + sotaSpot("2.0", unknown) + ']', now);
    EXPECT_EQ(spots.problem, "");
    EXPECT_THAT(column(spots.rows, 2), ElementsAre("69.99", "50.125", "14.062", "2.0"));
    EXPECT_EQ(spots.rows[2],
              (FeedRow{{"N0CALL", "Jo", "14.062", "CW", "qrp", "W4C/CM-001", "Big Hill", "1234m", "6 points", "2"}}));
    EXPECT_EQ(spots.rows[3],
              (FeedRow{{"N0CALL", "Jo", "2.0", "CW", " ", "W4C/CM-001", "Summit not recognised", " ", " ", ""}}));
    EXPECT_THAT(decodeSotaSpots(R"([{"comments":"x"}])", now).problem, HasSubstr("has no text"));
}

long mostMemory() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

TEST(JsonRecords, KeepOnlyTheFieldsOfARow) {
    constexpr std::size_t size = 2 * 1024 * 1024;
    std::string others;
    others.reserve(size + 1000);
    others = potaSpot("A", "2026-11-23T13:55:00", "cq");
    others.insert(0, 1, '[').back() = ',';
    while (others.size() < size - 100) others += "\"\":1,";
    others += R"("activator":"B"}])";
    const long before = mostMemory();
    const DecodedFeed spots = decodePotaSpots(others, now);
    EXPECT_LT(mostMemory() - before, 4 * 1024) << "KiB";
    EXPECT_THAT(column(spots.rows, 0), ElementsAre("B")) << "the last of two";
}

std::string net(const std::string& name, const std::string& mode, const std::string& count) {
    return "<NetName>" + name + "</NetName>\n<Frequency>7.255 MHz</Frequency>\n<Mode>" + mode +
           "</Mode>\n<SubscriberCount>" + count + "</SubscriberCount>\n";
}

TEST(NetLogger, ListsSideBandNetsBusiestFirst) {
    const DecodedFeed nets = decodeNetLoggerNets(net("A", "SSB", "12") + net("cw", "CW", "99") + net("B", "SSB", "40") +
                                                 net("C", "SSB", "3") + net("ssb", "ssb", "99") +
                                                 net("D", "SSB", "n/a") + net("E", "SSB", "12") + net("F", "SSB", ""));
    EXPECT_THAT(column(nets.rows, 0), ElementsAre("D", "F", "B", "A", "E", "C"));
    EXPECT_EQ(nets.rows[2], (FeedRow{{"B", "7.255", "SSB", "40"}}));
    EXPECT_EQ(decodeNetLoggerNets("<NetName>\xff</NetName>").problem, "unreadable: not text");
    EXPECT_EQ(decodeNetLoggerNets("<NetName>" + std::string(5'000'000, 'x')), (DecodedFeed{}));
}

TEST(Directory, ListsNetsAndStationsInTheirOrder) {
    const DecodedFeed nets = decodeNets(
        "<NetName>Noon</NetName><Frequency>3.940 MHz</Frequency><UTC>17:00</UTC><Mode>LSB</Mode><URL></URL>"
        "<Confirmed>yes</Confirmed><NetID>7</NetID>\r\n<NetName>half a record</NetName>");
    EXPECT_EQ(nets.rows, (FeedList{{{"Noon", "3.940", "17:00", "LSB", "", "yes", "7"}}}));
    std::string body;
    for (const char* station : {"WAAA", "WBBB", "WCCC"})
        body += std::string("<Station>") + station +
                "</Station>\n<Frequency>1000 kHz</Frequency>\n<City>X</City>\n<Power>50</Power>\n<URL>u</URL>\n";
    const std::string address = "http://" + std::string(1993, 'x');
    EXPECT_EQ(decodeMWStations(replaced(body, ">u<", '>' + address + '<')).rows[0][4], address);
    EXPECT_EQ(decodeMWStations(replaced(body, ">u<", '>' + address + "x<")).rows[0][4], "");
    const DecodedFeed stations = decodeMWStations(body);
    EXPECT_THAT(column(stations.rows, 0), ElementsAre("WAAA", "WBBB", "WCCC"));
    EXPECT_EQ(stations.rows[0], (FeedRow{{"WAAA", "1000", "X", "50", "u"}}));
}

TEST(BandConditions, AreTheValuesOfCertainLines) {
    std::string body;
    for (int line = 0; line < 40; ++line) body += "\t\t<v>value " + std::to_string(line) + "</v>\r\n";
    const BandConditions conditions = decodeBandConditions(body);
    EXPECT_EQ(conditions.heading, "value 4");
    EXPECT_EQ(conditions.solarFlux, "value 5");
    EXPECT_THAT(conditions.bands, ElementsAre("value 20", "value 21", "value 22", "value 23", "value 24", "value 25",
                                              "value 26", "value 27"));
    EXPECT_EQ(conditions.magicBand, "value 33");
    EXPECT_EQ(conditions.signalNoise, "value 37");
    EXPECT_EQ(decodeBandConditions("\r\n\r\n\r\n\r\n<v>" + std::string(41, 'x')).heading, std::string(40, 'x'));
    std::erase(body, '\r');
    EXPECT_EQ(decodeBandConditions(body), BandConditions{}) << "one single line";
    const BandConditions cut = decodeBandConditions("\r\n\r\n\r\n\r\nno tag\r\n<a>cut");
    EXPECT_EQ(cut.heading, "");
    EXPECT_EQ(cut.solarFlux, "cut");
}

}  // namespace
}  // namespace corvane

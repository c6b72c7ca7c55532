// The service's lists, read by the program's decoders.
#include "directory_pages.h"

#include <gmock/gmock.h>

#include "feeds/tagged_lists.h"

namespace corvane::directory {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

const Seconds monday = std::chrono::sys_days(std::chrono::year(2026) / 11 / 23);

Net net(const std::string& id, const std::string& utc, const std::string& days = "daily") {
    return {id, "Net " + id, "3.940", utc, days, "LSB", ""};
}

FeedList nets(const NetsPage& page, const std::vector<Confirmation>& own = {}) {
    return decodeNets(*page.with(own)).rows;
}

TEST(NetsPage, BeginsWithTheNetThatMeetsNext) {
    const NetsPage page({net("b", "18:00", "Mon-Fri"), net("a", "17:00"), net("tomorrow", "01:00")}, {}, monday + 16h);
    EXPECT_EQ(nets(page), (FeedList{{{"Net a", "3.940", "17:00", "LSB", "", "no (0)", "a"}},
                                    {{"Net b", "3.940", "18:00 Mon-Fri", "LSB", "", "no (0)", "b"}},
                                    {{"Net tomorrow", "3.940", "01:00", "LSB", "", "no (0)", "tomorrow"}}}));
    EXPECT_EQ(page.validUntil(), monday + 18h);
}

TEST(NetsPage, ConfirmedIsTheOperatorsOwnAndTheCountOfAll) {
    const NetsPage page({net("a", "17:00"), net("b", "18:00"), net("c", "19:00")},
                        {{"a", monday + 17h, 12}, {"b", monday - 6h, 5}, {"c", monday + 19h, 1}, {"gone", monday, 1}},
                        monday + 16h);
    const auto confirmed = [&](const std::vector<Confirmation>& own) {
        std::vector<std::string> texts;
        for (const FeedRow& row : nets(page, own)) texts.push_back(row[5]);
        return texts;
    };
    EXPECT_THAT(confirmed({}), ElementsAre("no (12)", "no (0)", "no (1)"));
    EXPECT_THAT(confirmed({{"c", monday + 19h}, {"a", monday + 17h}, {"b", monday - 6h}, {"gone", monday}}),
                ElementsAre("yes (12)", "no (0)", "yes (1)"));
}

TEST(DirectoryPages, NoValueForgesATagOrALine) {
    const std::string forged = "</NetName><NetID>1</NetID>\r\n<NetName>x & \"y\" '); DROP TABLE nets;--\u00e9";
    const std::string shown =
        "\u2039/NetName\u203a\u2039NetID\u203a1\u2039/NetID\u203a  \u2039NetName\u203ax & \"y\" '); DROP TABLE "
        "nets;--\u00e9";
    const NetsPage page({{"id", forged, "3.940", "17:00", "daily", forged, forged}, net("z", "18:00")}, {}, monday);
    const FeedList rows = nets(page, {{"id", monday + 17h}});
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0], (FeedRow{{shown, "3.940", "17:00", shown, shown, "yes (0)", "id"}}));
    EXPECT_EQ(rows[1][6], "z");
    const Page stations = stationsPage({{forged, "650", forged, "50", ""}, {"WSB", "750", "Atlanta", "50", "u"}});
    EXPECT_EQ(decodeMWStations(*stations).rows,
              (FeedList{{{shown, "650", shown, "50", ""}}, {{"WSB", "750", "Atlanta", "50", "u"}}}));
}

}  // namespace
}  // namespace corvane::directory

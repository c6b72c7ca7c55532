#include "catalogue_file.h"

#include <gmock/gmock.h>

namespace corvane::directory {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

const std::string netHeader = "id,name,frequency_mhz,utc,days,mode,url\n";
const std::string stationHeader = "call_sign,frequency_khz,city,power_kw,url\n";

TEST(CatalogueFile, GivesBackWhatItWasWrittenFrom) {
    const std::vector<Net> nets{{"noon-net", "The \"Noon\" Net, all <welcome>", "3.940", "17:00", "Mon-Fri Sun", "LSB",
                                 "https://example.org/a?b=c,d"},
                                {"2", "Nacht\u00fcbertragung", "14.3", "00:00", "daily", "FT8", ""}};
    EXPECT_EQ(readNets(writeNets(nets)), (CatalogueFile<Net>{nets, {}}));
    const std::vector<Station> stations{{" WXYZ ", "650", "Nashville, TN", "0.25", ""}};
    EXPECT_EQ(readStations(writeStations(stations)), (CatalogueFile<Station>{stations, {}}));
    EXPECT_EQ(readNets("\xef\xbb\xbf" + netHeader + "\r\n a , b ,7.2,10:00,daily,LSB,\r\n"),
              (CatalogueFile<Net>{{{"a", "b", "7.2", "10:00", "daily", "LSB", ""}}, {}}));
}

TEST(CatalogueFile, ListsEveryProblemWithItsLineAndGivesNothing) {
    const CatalogueFile<Net> nets = readNets(netHeader +
                                             "a,\"Two\nlines\",7.2,10:00,daily,LSB,\n"
                                             "b,Good,7.2,10:00,daily,LSB,\n"
                                             "B b,,7_2,25:00,weekly,,ftp://x\n"
                                             "b,Again,1e1,10:00,daily,LSB,\n"
                                             "c,short,7.2\n"
                                             "d,\xff,-1,10:00,daily,LSB,javascript:alert(1)\n"
                                             "e,\x1b]0;x\a\xc2\x9b,75.1,10:00,Mon Mon Mon Mon Mon Mon Mon Mon,AM,\n");
    EXPECT_THAT(nets.entries, IsEmpty());
    EXPECT_THAT(nets.problems,
                ElementsAre(StartsWith("line 2: name \"Two\\u000alines\""), StartsWith("line 5: id \"B b\""),
                            "line 5: name \"\": 1 to 200 bytes of text", StartsWith("line 5: frequency_mhz \"7_2\""),
                            StartsWith("line 5: utc"), StartsWith("line 5: days"), StartsWith("line 5: mode"),
                            StartsWith("line 5: url"), StartsWith("line 6: frequency_mhz \"1e1\""),
                            "line 6: id \"b\": comes twice", "line 7: 3 values, not 7", StartsWith("line 8: name"),
                            StartsWith("line 8: frequency_mhz"), StartsWith("line 8: url"),
                            StartsWith(R"(line 9: name "\u001b]0;x\u0007\u009b")"), StartsWith("line 9: frequency_mhz"),
                            StartsWith("line 9: days"), StartsWith("line 9: mode \"AM\"")));
    for (const char* const bad : {"", "id,name\n", "WSM,650,Nashville,50,\n"})
        EXPECT_THAT(readStations(bad).problems, ElementsAre(StartsWith("line 1: the columns must be call_sign,")))
            << bad;
    EXPECT_THAT(readStations(stationHeader + "WSM,650,\"Nash\"ville,50,\n").problems,
                ElementsAre("line 2: wrong double quotes"));
    EXPECT_THAT(readStations(stationHeader + "WSM,650,\"Nashville,50,\nWSB,750,Atlanta,50,\n").problems,
                ElementsAre("line 2: wrong double quotes"));
    EXPECT_THAT(readStations(stationHeader + "WSM,650,N,50,\nWSM,651,N,50,\nWSM,650,N,50,\nX,99,N,nan,\n").problems,
                SizeIs(3));
}

}  // namespace
}  // namespace corvane::directory

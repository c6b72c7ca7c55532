// Answers of the greatest size, and untrusted servers, in the whole program.
#include <gtest/gtest.h>

#include <algorithm>

#include "heartbeat.h"
#include "lists_station.h"
#include "test_certificate.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;

constexpr double slower = 0.05;  // 2 s take 40 s: all the time that a slow machine needs

// As many of the smallest records as fit into the bound.
struct LargeList {
    const char* path;
    const char* opening;
    const char* record;
    const char* separator;
    const char* closing;
    void (SerialPortDemoController::*fetch)();
    TableView Display::*table;
    TextField Display::*status;

    std::size_t records() const {
        return (largestBody - 2) / (std::string_view(record).size() + std::string_view(separator).size());
    }
    std::string body(std::size_t count) const {
        std::string text = opening;
        for (std::size_t i = 0; i < count; ++i) text.append(i == 0 ? "" : separator).append(record);
        return text + closing;
    }
};

constexpr LargeList largeLists[] = {
    {"/spot/activator", "[",
     R"({"activator":"","frequency":"","mode":"","comments":"","name":"","spotTime":"","locationDesc":"","reference":""})",
     ",", "]", &SerialPortDemoController::fetchPotaSpots, &Display::potaTable, &Display::potaStatusField},
    {"/api/spots/-3/all", "[",
     R"({"timeStamp":"","activatorCallsign":"","activatorName":"","frequency":"7","mode":"","summitCode":"","summitDetails":""})",
     ",", "]", &SerialPortDemoController::fetchSotaSpots, &Display::sotaTable, &Display::sotaStatusField},
    {"/api/GetActiveNets.php", "",
     "<NetName></NetName><Frequency></Frequency><Mode>SSB</Mode><SubscriberCount></SubscriberCount>", "\n", "",
     &SerialPortDemoController::fetchNetLoggerNets, &Display::netLoggerTable, &Display::netLoggerStatusField},
    {"/nets.php", "",
     "<NetName></NetName><Frequency></Frequency><UTC></UTC><Mode></Mode><URL></URL><Confirmed></Confirmed>"
     "<NetID></NetID>",
     "\n", "", &SerialPortDemoController::fetchNets, &Display::netsTable, &Display::netsStatusField},
    {"/mw.php", "", "<Station></Station><Frequency></Frequency><City></City><Power></Power><URL></URL>", "\n", "",
     &SerialPortDemoController::fetchMWStations, &Display::mwTable, &Display::mwStatusField},
};

TEST(LargeLists, HoldUpNothingAndLeaveNothingBehind) {
    constexpr auto mostLate = 250ms;  // a release build on an idle machine stays below 50
    std::string body;
    ListsStation station(slower,
                         [&](QTcpSocket& client, const std::string&) { client.write(LocalServer::ok(body).c_str()); });
    station.lists.display.mainTab.selectItem(Display::listsPage);
    station.showWindow();
    for (const LargeList& list : largeLists) {
        TextField& status = station.lists.display.*list.status;
        TableView& table = station.lists.display.*list.table;
        const auto fetch = [&](std::size_t count) {
            body = list.body(count);
            ASSERT_LE(body.size(), largestBody);
            (station.lists.*list.fetch)();
            const std::string counted = count > mostRows ? std::to_string(mostRows) + " of " : ": ";
            const std::string end = counted + std::to_string(count) + ' ';
            EXPECT_TRUE(eventually([&] { return status.stringValue().find(end) != std::string::npos; }, 60s))
                << status.stringValue() << " instead of " << end;
        };
        std::chrono::milliseconds latest = mostLate + 1ms;
        for (int attempt = 0; attempt < 3 && latest > mostLate; ++attempt) {
            Heartbeat heartbeat;
            fetch(list.records());
            EXPECT_EQ(table.rows(), mostRows);
            fetch(2);
            EXPECT_EQ(table.rows(), 2);
            latest = heartbeat.latest();
        }
        EXPECT_LE(latest, mostLate) << list.path;
        std::printf("%s: %zu records, at most %lld ms late\n", list.path, list.records(),
                    static_cast<long long>(latest.count()));
    }
}

TEST(LargeLists, ComeFromNoServerThatCannotBeTrusted) {
    const TestCertificate certificate("IP:127.0.0.1");
    ListsStation station(
        slower,
        [](QTcpSocket& client, const std::string&) { client.write(LocalServer::ok(largeLists[4].body(2)).c_str()); },
        certificate.ofServer());
    const std::string& status = station.lists.display.mwStatusField.stringValue();
    station.lists.fetchMWStations();
    EXPECT_TRUE(eventually([&] { return status.ends_with("UTC: the server's certificate is not trusted"); })) << status;
    EXPECT_TRUE(station.server.requests.empty());
}

}  // namespace
}  // namespace corvane

// Answers of the greatest size, and untrusted servers, in the whole program.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <algorithm>

#include "local_server.h"
#include "station.h"
#include "test_certificate.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;

// The program with one server for all services, and enough time for a slow machine.
struct ListsStation : Station {
    static constexpr double slower = 0.05;  // 2 s take 40 s

    explicit ListsStation(LocalServer::Answer answer, const std::optional<QSslConfiguration>& tls = std::nullopt)
        : Station(slower), server(std::move(answer), tls) {}

    LocalServer server;
    SerialPortDemoController lists{platform, ServiceHosts::from(server.url())};
    MainWindow listsWindow{lists};
};

// The longest delay of the event loop, measured every 10 ms.
class Heartbeat {
public:
    Heartbeat() {
        timer_.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { beat(); });
        timer_.start(10ms);
        since_.start();
    }
    qint64 latest() {
        beat();
        return latest_;
    }

private:
    void beat() { latest_ = std::max(latest_, since_.restart() - 10); }

    QTimer timer_;
    QElapsedTimer since_;
    qint64 latest_ = 0;
};

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
    constexpr qint64 mostLate = 250;  // ms; a release build on an idle machine stays below 50
    std::string body;
    ListsStation station([&](QTcpSocket& client, const std::string&) { client.write(LocalServer::ok(body).c_str()); });
    station.lists.display.mainTab.selectItem(Display::listsPage);
    station.listsWindow.show();
    runEventLoop(50ms);
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
        qint64 latest = mostLate + 1;
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
                    static_cast<long long>(latest));
    }
}

TEST(LargeLists, ComeFromNoServerThatCannotBeTrusted) {
    const TestCertificate certificate("IP:127.0.0.1");
    ListsStation station(
        [](QTcpSocket& client, const std::string&) { client.write(LocalServer::ok(largeLists[4].body(2)).c_str()); },
        certificate.ofServer());
    const std::string& status = station.lists.display.mwStatusField.stringValue();
    station.lists.fetchMWStations();
    EXPECT_TRUE(eventually([&] { return status.ends_with("UTC: the server's certificate is not trusted"); })) << status;
    EXPECT_TRUE(station.server.requests.empty());
}

}  // namespace
}  // namespace corvane

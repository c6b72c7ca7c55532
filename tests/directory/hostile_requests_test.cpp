// Requests that our program never sends.
#include <gmock/gmock.h>

#include <QFile>
#include <future>
#include <thread>

#include "running_service.h"

namespace corvane::directory {
namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::Not;

class HostileRequests : public testing::Test {
protected:
    HostileRequests() { prepareDatabase(database.location()); }

    const TestDatabase database{"SQLite"};
};

TEST_F(HostileRequests, AreRefusedAndLeaveNoTrace) {
    const RunningService running(database.location());
    const std::string before = running.nets();
    const struct {
        const char* method;
        std::string path;
        std::string body;
        int status;
    } rows[]{
        {"POST", "/netconf.php", "", 400},
        {"POST", "/netconf.php", "{", 400},
        {"POST", "/netconf.php", "[]", 400},
        {"POST", "/netconf.php", "null", 400},
        {"POST", "/netconf.php", std::string(16'000, '['), 400},
        {"POST", "/netconf.php", "\xff\xfe", 400},
        {"POST", "/netconf.php", R"({"key":"","net_id":"intercon","action":1})", 400},
        {"POST", "/netconf.php", checkIn(alice + "0", "intercon", 1), 400},
        {"POST", "/netconf.php", checkIn("0123456789ABCDEF0123456789ABCDEF", "intercon", 1), 400},
        {"POST", "/netconf.php", checkIn(alice, "intercon", 2), 400},
        {"POST", "/netconf.php", R"({"key":")" + alice + R"(","net_id":"intercon","action":"1"})", 400},
        {"POST", "/netconf.php", R"({"key":")" + alice + R"(","net_id":7,"action":1})", 400},
        {"POST", "/netconf.php", R"({"key":")" + alice + R"(","net_id":"intercon"})", 400},
        {"POST", "/netconf.php", checkIn(alice, "' OR 1=1; DROP TABLE nets; --", 1), 404},
        {"POST", "/netconf.php", checkIn(alice, std::string("intercon\0", 9), 1), 404},
        {"POST", "/netconf.php", checkIn(alice, "<NetID>", 1), 404},
        {"POST", "/netconf.php", checkIn(alice, std::string(15'000, 'n'), 1), 404},
        {"POST", "/netconf.php", checkIn(alice, std::string(17'000, 'n'), 1), 413},
        {"GET", "/nets.php?key=' OR '1'='1", "", 400},
        {"GET", "/nets.php?key=" + bob + "%00", "", 400},
        {"GET", "/netconf.php", "", 405},
        {"POST", "/nets.php", "x", 405},
        {"DELETE", "/mw.php", "", 405},
        {"GET", "/" + std::string(8'000, 'x'), "", 404},
    };
    for (const auto& row : rows) {
        std::string path = row.path;
        for (std::size_t at = 0; (at = path.find(' ')) != std::string::npos;) path.replace(at, 1, "%20");
        EXPECT_EQ(ask(running.port(), row.method, path, row.body).status, row.status)
            << row.method << ' ' << path.substr(0, 60) << ' ' << row.body.substr(0, 80);
    }
    const std::string piece = "4000\r\n" + std::string(0x4000, ' ') + "\r\n";
    EXPECT_EQ(
        ask(running.port(), "POST", "/netconf.php", "", "Transfer-Encoding: chunked\r\n\r\n" + piece + piece + "0\r\n")
            .status,
        413);
    EXPECT_EQ(running.nets(), before);
}

TEST_F(HostileRequests, TheLogHasNoKeysAndOneLineEach) {
    RunningService running(database.location());
    running.confirm(alice, "intercon");
    running.nets(alice);
    ask(running.port(), "GET", "/nets.php?key=" + alice.substr(1));
    ask(running.port(), "GET", "/nets.php", "", "Authorization: Bearer " + alice + "\r\n");
    ask(running.port(), "GET", "/x%0a%22forged%22%ff?" + alice);
    Client(running.port()).send("GET /nets.php?key=" + alice + " HTTP/1.1\r\n");  // and disconnects
    const std::string log = running.logged();
    EXPECT_THAT(log, Not(HasSubstr(alice.substr(1))));
    std::istringstream lines(log);
    int requests = 0;
    for (std::string line; std::getline(lines, line); ++requests) {
        const auto entry = nlohmann::json::parse(line);
        EXPECT_EQ(entry["event"], "request");
        EXPECT_EQ(entry["address"], "127.0.0.1");
    }
    EXPECT_EQ(requests, 5);
}

TEST_F(HostileRequests, OneAddressMayAskOnlySoOften) {
    const RunningService running(database.location(), 3);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(ask(running.port(), "GET", "/healthz").status, 200);
    const Received refused = ask(running.port(), "GET", "/nets.php");
    EXPECT_EQ(refused.status, 429);
    EXPECT_THAT(refused.head, HasSubstr("Retry-After: "));
}

TEST_F(HostileRequests, BehindATrustedProxyTheAddressIsTheOneItNames) {
    const auto statuses = [&](const char* proxy, const std::vector<std::string>& headers) {
        const RunningService running(database.location(), 1, {.proxies = {*Address::from(proxy)}});
        std::vector<int> found;
        for (const std::string& header : headers)
            found.push_back(ask(running.port(), "GET", "/healthz", "", header).status);
        return found;
    };
    const std::string line = "X-Forwarded-For: ";
    const std::string forged = line + std::string(5'000, 'x') + "\r\n";
    EXPECT_THAT(statuses("127.0.0.1", {line + "192.0.2.1\r\n", line + "192.0.2.1, 192.0.2.2\r\n",
                                       line + "192.0.2.4\r\nx-forwarded-for: 192.0.2.3,127.0.0.1\r\n",
                                       line + "192.0.2.3\r\n" + line + "192.0.2.1\r\n", forged, ""}),
                testing::ElementsAre(200, 200, 200, 429, 200, 429));
    EXPECT_THAT(statuses("192.0.2.9", {line + "192.0.2.1\r\n", line + "192.0.2.2\r\n"}),
                testing::ElementsAre(200, 429));
}

TEST(Address, IsWhatTheTextNames) {
    const struct {
        const char* text;
        const char* address;
        const char* network;
    } rows[]{
        {"192.0.2.1", "192.0.2.1", "192.0.2.1"},
        {"192.0.2.1:4711", "192.0.2.1", "192.0.2.1"},
        {"::ffff:192.0.2.1", "192.0.2.1", "192.0.2.1"},
        {"[::FFFF:c000:201]:80", "192.0.2.1", "192.0.2.1"},
        {"2001:DB8:0::1:2", "2001:db8::1:2", "2001:db8::"},
        {"[2001:db8::1]", "2001:db8::1", "2001:db8::"},
    };
    for (const auto& row : rows) {
        ASSERT_TRUE(Address::from(row.text)) << row.text;
        EXPECT_EQ(Address::from(row.text)->text(), row.address);
        EXPECT_EQ(Address::from(row.text)->network().text(), row.network);
    }
    for (const char* const bad :
         {"", "unknown", "192.0.2", "192.0.2.1 ", "192.0.2.1:x", "[::1", "[::1]x", "fe80::1%eth0"})
        EXPECT_FALSE(Address::from(bad)) << bad;
}

// Several requests on one connection; the last one closes it.
TEST_F(HostileRequests, OnlyUnclearRequestsCostTheConnection) {
    const RunningService running(database.location());
    const auto answers = [&](const std::string& bytes) {
        const Client client(running.port());
        client.send(bytes);
        const std::string all = client.receive();
        std::string statuses;
        for (std::size_t at = 0; (at = all.find("HTTP/1.", at)) != std::string::npos; ++at)
            statuses += all.substr(at + 9, 4);
        return statuses;
    };
    const std::string get = "GET /corvane/ HTTP/1.1\r\nHost: x\r\n";
    const std::string last = "GET /healthz HTTP/1.1\r\nHost: x\r\nConnection: close\r\n\r\n";
    EXPECT_EQ(
        answers(get +
                "\r\nGET /x HTTP/1.1\r\nHost: x\r\n\r\nPUT /mw.php HTTP/1.1\r\nHost: x\r\nContent-Length: 2\r\n\r\n{}" +
                last),
        "200 404 405 200 ");
    for (const std::string& unclear :
         {get + "Content-Length: 0\r\nContent-Length: 5\r\n\r\n",
          get + "Content-Length: 5\r\nTransfer-Encoding: chunked\r\n\r\n", get + "Content-Length : 0\r\n\r\n",
          get + "Host: y\r\n\r\n", std::string("GET /corvane/ HTTP/1.1\r\n\r\n")})
        EXPECT_EQ(answers(unclear + last), "400 ") << unclear;
}

TEST_F(HostileRequests, TheServiceListensWhereItIsTold) {
    const struct {
        const char* address;
        std::vector<int> families;
    } rows[]{{"::", {AF_INET, AF_INET6}}, {"localhost", {AF_INET}}, {"::1", {AF_INET6}}, {"0.0.0.0", {AF_INET}}};
    const bool hasIpv6 = QFile::exists("/proc/net/if_inet6");
    for (const auto& row : rows) {
        if (row.families.back() == AF_INET6 && !hasIpv6) continue;
        const RunningService running(database.location(), 0, {.address = row.address});
        for (const int family : row.families) EXPECT_TRUE(Client(running.port(), family).connected()) << row.address;
    }
    EXPECT_THROW(RunningService(database.location(), 0, {.address = "no such name"}), std::runtime_error);
}

TEST(RateLimit, FillsUpAgainOverAMinuteForEachHousehold) {
    RateLimit limit(2);
    RateLimit::Time now{};
    EXPECT_TRUE(limit.allows(*Address::from("192.0.2.1"), now));
    EXPECT_TRUE(limit.allows(*Address::from("192.0.2.1"), now));
    EXPECT_FALSE(limit.allows(*Address::from("192.0.2.1"), now + 29s));
    EXPECT_TRUE(limit.allows(*Address::from("192.0.2.1"), now + 31s));
    EXPECT_FALSE(limit.allows(*Address::from("192.0.2.1"), now + 32s));
    EXPECT_TRUE(limit.allows(*Address::from("2001:db8::1"), now));
    EXPECT_TRUE(limit.allows(*Address::from("2001:db8::ffff:2"), now));
    EXPECT_FALSE(limit.allows(*Address::from("2001:db8::3"), now));
    EXPECT_TRUE(limit.allows(*Address::from("2001:db8:0:1::3"), now));
    now += 10min;  // a long pause saves up no more than a minute's stock
    for (const bool allowed : {true, true, false}) EXPECT_EQ(limit.allows(*Address::from("192.0.2.1"), now), allowed);
}

// The others are served while many hold their connections and send nothing, or half a request.
TEST_F(HostileRequests, SlowClientsDelayNoOthersAndAreCutOff) {
    RunningService running(database.location());
    std::vector<std::unique_ptr<Client>> slow;
    for (int i = 0; i < 60; ++i) {
        slow.push_back(std::make_unique<Client>(running.port()));
        if (i % 2) slow.back()->send("POST /netconf.php HTTP/1.1\r\nHost: x\r\nContent-Length: 100\r\n\r\n{");
    }
    EXPECT_EQ(ask(running.port(), "GET", "/healthz").status, 200);

    OpenConnections watched;
    int ends[2]{};
    ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, ends), 0);
    int key = 0;
    auto* const connection = reinterpret_cast<MHD_Connection*>(&key);
    const OpenConnections::Time start{};
    char byte = 0;
    watched.opened(connection, ends[0], start);
    watched.closeLate(start + 15s);
    EXPECT_EQ(recv(ends[1], &byte, 1, MSG_DONTWAIT), -1);  // still open
    watched.answered(connection, start + 15s);
    watched.closeLate(start + 30s);
    EXPECT_EQ(recv(ends[1], &byte, 1, MSG_DONTWAIT), -1);
    watched.closeLate(start + 31s);
    EXPECT_EQ(recv(ends[1], &byte, 1, MSG_DONTWAIT), 0);  // closed
    watched.closed(connection);
    for (const int end : ends) close(end);
    watched.closeLate(start + 99s);
}

// Keeps its replies, as a database does that blocks.
struct SilentSite : WebSite {
    std::optional<Answer> answerAtOnce(const WebRequest&) override { return {}; }
    void answer(const WebRequest&, Reply reply) override { asked.set_value(std::move(reply)); }
    std::string_view lateText(const WebRequest&) const override { return "late"; }

    std::promise<Reply> asked;
};

TEST(WebServer, StopsWhileARequestWaitsAndAnswersItLate) {
    const LogFile lines;
    Log log(lines.file);
    SilentSite site;
    auto server = std::make_unique<WebServer>(WebServer::Options{.patience = 300ms}, site, log);
    const Client waiting(server->port());
    const Client keptAlive(server->port());
    waiting.send("GET /a HTTP/1.1\r\nHost: x\r\n\r\n");
    const Reply reply = site.asked.get_future().get();
    auto stopping = std::async([&] { server.reset(); });
    const std::string answer = waiting.receive();
    EXPECT_THAT(answer, testing::StartsWith("HTTP/1.1 503 "));
    EXPECT_THAT(answer, testing::AllOf(HasSubstr("Connection: close\r\n"), testing::EndsWith("late\n")));
    stopping.get();
    reply(textAnswer(200, "too late"));
}

}  // namespace
}  // namespace corvane::directory

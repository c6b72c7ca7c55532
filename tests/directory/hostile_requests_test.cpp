// Requests that our program never sends.
#include <gmock/gmock.h>

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
    EXPECT_EQ(requests, 4);
}

TEST_F(HostileRequests, OneAddressMayAskOnlySoOften) {
    const RunningService running(database.location(), 3);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(ask(running.port(), "GET", "/healthz").status, 200);
    const Received refused = ask(running.port(), "GET", "/nets.php");
    EXPECT_EQ(refused.status, 429);
    EXPECT_THAT(refused.head, HasSubstr("Retry-After: "));
}

// The last entry is the proxy's; the client can forge those before it.
TEST_F(HostileRequests, BehindAProxyTheAddressIsTheOneItNames) {
    const RunningService running(database.location(), 1, true);
    const auto status = [&](const std::string& addresses) {
        return ask(running.port(), "GET", "/healthz", "", "X-Forwarded-For: " + addresses + "\r\n").status;
    };
    EXPECT_EQ(status("192.0.2.1"), 200);
    EXPECT_EQ(status("192.0.2.1, 192.0.2.2"), 200);
    EXPECT_EQ(status("192.0.2.3, 192.0.2.1"), 429);
    EXPECT_EQ(ask(running.port(), "GET", "/healthz").status, 200);
}

TEST(RateLimit, FillsUpAgainOverAMinuteForEachHousehold) {
    RateLimit limit(2);
    RateLimit::Time now{};
    EXPECT_TRUE(limit.allows("192.0.2.1", now));
    EXPECT_TRUE(limit.allows("192.0.2.1", now));
    EXPECT_FALSE(limit.allows("192.0.2.1", now + 29s));
    EXPECT_TRUE(limit.allows("192.0.2.1", now + 31s));
    EXPECT_FALSE(limit.allows("192.0.2.1", now + 32s));
    EXPECT_TRUE(limit.allows("2001:db8::1", now));
    EXPECT_TRUE(limit.allows("2001:db8::ffff:2", now));
    EXPECT_FALSE(limit.allows("2001:db8::3", now));
    EXPECT_TRUE(limit.allows("2001:db8:0:1::3", now));
    now += 10min;  // a long pause saves up no more than a minute's stock
    for (const bool allowed : {true, true, false}) EXPECT_EQ(limit.allows("192.0.2.1", now), allowed);
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
    std::ostringstream lines;
    Log log(lines);
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

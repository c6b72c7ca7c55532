#include <gmock/gmock.h>

#include <thread>

#include "catalogue_file.h"
#include "running_service.h"

namespace corvane::directory {
namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::Not;

const std::vector<Net> twoNets{{"noon", "Noon Net", "3.940", "12:00", "daily", "LSB", ""},
                               {"tuesday", "Tuesday's", "7.2", "10:00", "Tue", "LSB", ""}};

// Each test runs on both kinds of database.
class DirectoryServiceTest : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        if (std::string_view(GetParam()) == "PostgreSQL" && TestDatabase::serverForTests().empty())
            GTEST_SKIP() << "CORVANE_TEST_POSTGRESQL names no server";
        database.emplace(GetParam());
        prepareDatabase(database->location());
    }
    void import(const std::vector<Net>& nets) const {
        DirectoryStore store(database->location());
        Transaction transaction(store.database());
        store.replace(nets);
        transaction.commit();
    }
    long long rows(const char* table) const {
        Database reading(database->location());
        Statement count(reading, (std::string("SELECT count(*) FROM ") + table).c_str());
        count.run().next();
        return count.number(0);
    }

    std::optional<TestDatabase> database;
};

INSTANTIATE_TEST_SUITE_P(On, DirectoryServiceTest, testing::Values("SQLite", "PostgreSQL"),
                         [](const auto& each) { return std::string(each.param); });

TEST_P(DirectoryServiceTest, BeginsWithTheStarterSetOnceAndImportsAreSeen) {
    DirectoryStore store(database->location());
    EXPECT_GE(store.nets().size(), 30U);
    EXPECT_GE(store.stations().size(), 40U);
    EXPECT_EQ(readNets(writeNets(store.nets())).entries, store.nets());

    RunningService running(database->location());
    EXPECT_THAT(running.nets(), HasSubstr("<NetID>maritime-mobile-service</NetID>\n"));
    EXPECT_THAT(ask(running.port(), "GET", "/mw.php").body,
                HasSubstr("<Station>WSM</Station><Frequency>650</Frequency>"));
    import(twoNets);
    running.now = running.now.load() + 1s;
    EXPECT_THAT(running.nets(), Not(HasSubstr("maritime")));
    prepareDatabase(database->location());  // as at the next start
    EXPECT_EQ(store.nets(), twoNets);
}

TEST_P(DirectoryServiceTest, ConfirmsAndRetractsForOneSession) {
    import(twoNets);
    RunningService running(database->location());
    EXPECT_EQ(running.confirm(alice, "noon"), 200);
    EXPECT_EQ(running.confirm(alice, "noon"), 200);  // once is enough
    EXPECT_EQ(running.confirm(bob, "noon"), 200);
    EXPECT_EQ(running.confirm(bob, "tuesday"), 200);
    EXPECT_EQ(running.confirm(bob, "no-such-net"), 404);
    EXPECT_THAT(running.nets(alice), HasSubstr("<Confirmed>yes (2)</Confirmed><NetID>noon</NetID>"));
    EXPECT_THAT(running.nets(alice), HasSubstr("<Confirmed>no (1)</Confirmed><NetID>tuesday</NetID>"));
    EXPECT_THAT(running.nets(), HasSubstr("<Confirmed>no (2)</Confirmed><NetID>noon</NetID>"));
    EXPECT_EQ(running.confirm(alice, "noon", 0), 200);
    EXPECT_EQ(running.confirm(alice, "noon", 0), 200);
    EXPECT_THAT(running.nets(alice), HasSubstr("<Confirmed>no (1)</Confirmed><NetID>noon</NetID>"));
    EXPECT_THAT(running.nets(bob), HasSubstr("<Confirmed>yes (1)</Confirmed><NetID>noon</NetID>"));

    running.now = running.now.load() + 12h + 59min;  // the net is still on
    EXPECT_THAT(running.nets(bob), HasSubstr("<Confirmed>yes (1)</Confirmed><NetID>noon</NetID>"));
    running.now = running.now.load() + 1min;
    EXPECT_THAT(running.nets(bob), HasSubstr("<Confirmed>no (0)</Confirmed><NetID>noon</NetID>"));
    EXPECT_THAT(running.nets(bob), HasSubstr("<Confirmed>yes (1)</Confirmed><NetID>tuesday</NetID>"));

    EXPECT_EQ(rows("confirmations"), 2);
    running.now = running.now.load() + 10 * 24h;
    running.service->forgetOldSessions();
    EXPECT_EQ(running.confirm(alice, "tuesday"), 200);  // so the request before has been carried out
    EXPECT_EQ(rows("confirmations"), 1);
}

TEST_P(DirectoryServiceTest, TakesTheKeyFromTheHeaderToo) {
    import(twoNets);
    const RunningService running(database->location());
    const auto withKey = [&](const char* method, const std::string& path, const std::string& header,
                             const std::string& body = "") {
        return ask(running.port(), method, path, body, "Authorization: " + header + "\r\n");
    };
    const std::string checkedIn = checkIn(alice, "noon", 1);
    EXPECT_EQ(withKey("POST", "/netconf.php", "Bearer " + bob, checkedIn).status, 400) << "two keys";
    EXPECT_EQ(withKey("POST", "/netconf.php", "Bearer " + alice, checkedIn).status, 200);
    EXPECT_THAT(withKey("GET", "/nets.php", "bearer " + alice).body, HasSubstr("yes (1)</Confirmed><NetID>noon"));
    EXPECT_THAT(withKey("GET", "/nets.php", "Bearer " + bob).body, HasSubstr("no (1)</Confirmed><NetID>noon"));
    EXPECT_THAT(withKey("GET", "/nets.php?key=" + alice, "Basic eDp5").body, HasSubstr("yes (1)"));
    EXPECT_EQ(withKey("GET", "/nets.php", "Bearer " + alice + "0").status, 400);
}

TEST_P(DirectoryServiceTest, AnImportKeepsTheConfirmationsOfItsNets) {
    import(twoNets);
    RunningService running(database->location());
    running.confirm(alice, "noon");
    running.confirm(alice, "tuesday");
    std::vector<Net> changed{twoNets[0]};
    changed[0].name = "Renamed";
    import(changed);
    running.now = running.now.load() + 1s;
    EXPECT_EQ(running.nets(alice),
              "<NetName>Renamed</NetName><Frequency>3.940</Frequency><UTC>12:00</UTC><Mode>LSB</Mode><URL></URL>"
              "<Confirmed>yes (1)</Confirmed><NetID>noon</NetID>\n");
    EXPECT_EQ(rows("confirmations"), 1);
}

TEST_P(DirectoryServiceTest, WhatWasAcknowledgedIsThereAtTheNextStart) {
    import(twoNets);
    constexpr int threads = 8;
    constexpr int each = 20;
    std::atomic<int> acknowledged = 0;
    {
        const RunningService running(database->location());
        std::vector<std::thread> operators;
        for (int thread = 0; thread < threads; ++thread)
            operators.emplace_back([&, thread] {
                for (int i = 0; i < each; ++i) {
                    std::string key = alice;
                    key[0] = "0123456789abcdef"[thread];
                    key.replace(1, 2, std::to_string(10 + i));
                    if (running.confirm(key, i % 2 ? "noon" : "tuesday") == 200) ++acknowledged;
                }
            });
        for (std::thread& one : operators) one.join();
    }
    EXPECT_EQ(acknowledged, threads * each);
    const RunningService again(database->location());
    EXPECT_EQ(rows("confirmations"), threads * each);
    EXPECT_THAT(again.nets(), HasSubstr("<Confirmed>no (80)</Confirmed><NetID>noon</NetID>"));
}

TEST_P(DirectoryServiceTest, TellsOfADatabaseThatFailsAndRecovers) {
    import(twoNets);
    RunningService running(database->location());
    EXPECT_EQ(ask(running.port(), "GET", "/healthz").status, 200);
    Database(database->location()).run("ALTER TABLE sessions RENAME TO elsewhere");
    EXPECT_EQ(running.confirm(alice, "noon"), 503);
    EXPECT_EQ(ask(running.port(), "GET", "/healthz").status, 503);
    Database(database->location()).run("ALTER TABLE elsewhere RENAME TO sessions");
    EXPECT_EQ(running.confirm(alice, "noon"), 200);
    EXPECT_EQ(ask(running.port(), "GET", "/healthz").status, 200);
    EXPECT_THAT(running.logged(), HasSubstr(R"("event":"database","problem":)"));
}

TEST(DirectoryDocuments, StandUnderTheirPathsAndNothingElseDoes) {
    const TestDatabase database("SQLite");
    prepareDatabase(database.location());
    const RunningService running(database.location());
    for (const char* const page : {"/corvane/", "/v/corvane/", "/corvane/product.html"}) {
        const Received answer = ask(running.port(), "GET", page);
        EXPECT_EQ(answer.status, 200) << page;
        EXPECT_THAT(answer.head, HasSubstr("Content-Type: text/html; charset=utf-8"));
        EXPECT_THAT(answer.body, HasSubstr("pages.css"));
    }
    EXPECT_EQ(ask(running.port(), "HEAD", "/v/corvane/pictures/radio-dark.png").status, 200);
    EXPECT_THAT(ask(running.port(), "GET", "/corvane").head, HasSubstr("Location: /corvane/"));
    for (const char* const path : {"/corvane/../../CMakeLists.txt", "/corvane/%2e%2e/%2e%2e/CMakeLists.txt",
                                   "/corvane//", "/corvane/decisions/0014-fetching-lists.md", "/nets.php/", "/x"})
        EXPECT_EQ(ask(running.port(), "GET", path).status, 404) << path;
}

}  // namespace
}  // namespace corvane::directory

#include "qt/platform/qt_http_client.h"

#include <gtest/gtest.h>

#include <QThread>
#include <QTimer>
#include <atomic>
#include <optional>
#include <semaphore>

#include "event_loop.h"
#include "local_server.h"
#include "test_certificate.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;

// The outcome of an exchange.
std::optional<HttpResponse> fetched(const HttpRequest& request, std::chrono::milliseconds patience = 5s) {
    QtHttpClient client;
    std::optional<HttpResponse> answer;
    client.send(request, [&](HttpResponse response) {
        return [&answer, response = std::move(response)] { answer = response; };
    });
    EXPECT_FALSE(answer) << "not before the call returns";
    eventually([&] { return answer.has_value(); }, patience);
    return answer;
}

HttpRequest get(const std::string& url) {
    HttpRequest request;
    request.url = url;
    return request;
}

TEST(QtHttpClientTest, SendsWhatIsAskedAndGivesTheBody) {
    LocalServer server(
        [](QTcpSocket& client, const std::string&) { client.write(LocalServer::ok("caf\xc3\xa9\xff").c_str()); });
    const auto answer = fetched(get(server.url("/nets.php")));
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->body, "caf\xc3\xa9\xff");
    EXPECT_EQ(answer->problem, "");
    ASSERT_EQ(server.requests.size(), 1U);
    EXPECT_TRUE(server.requests[0].starts_with("GET /nets.php HTTP/1.1\r\n"));
    for (const char* header : {"Cache-Control", "Content-Type", "Content-Length", "Authorization"})
        EXPECT_EQ(server.requests[0].find(header), std::string::npos) << header;

    HttpRequest post = get(server.url("/netconf.php"));
    post.method = "POST";
    post.ignoreCaches = true;
    post.contentType = "Application/json";
    post.key = "0123";
    post.body = R"({"action":1})";
    ASSERT_TRUE(fetched(post));
    EXPECT_TRUE(server.requests[1].starts_with("POST /netconf.php"));
    EXPECT_NE(server.requests[1].find("Content-Type: Application/json\r\n"), std::string::npos);
    EXPECT_NE(server.requests[1].find("Cache-Control: no-cache"), std::string::npos);
    EXPECT_NE(server.requests[1].find("Authorization: Bearer 0123\r\n"), std::string::npos);
    EXPECT_TRUE(server.requests[1].ends_with("\r\n\r\n{\"action\":1}"));
}

TEST(QtHttpClientTest, SaysInAFewWordsWhyThereIsNoGoodAnswer) {
    LocalServer server([](QTcpSocket& client, const std::string& request) {
        if (!request.starts_with("GET"))
            client.disconnectFromHost();
        else if (request.starts_with("GET /500"))
            client.write("HTTP/1.1 500 Oh\r\nContent-Length: 4\r\n\r\nbody");
        else if (request.starts_with("GET /half"))
            client.write("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nhalf"), client.disconnectFromHost();
        else if (request.starts_with("GET /round"))
            client.write("HTTP/1.1 302 Found\r\nLocation: /round\r\nContent-Length: 0\r\n\r\n");
        else if (request.starts_with("GET /there"))
            client.write("HTTP/1.1 302 Found\r\nLocation: /here\r\nContent-Length: 0\r\n\r\n");
        else if (request.starts_with("GET /here"))
            client.write(LocalServer::ok("here").c_str());
    });
    const auto problem = [&](const std::string& url) {
        const auto answer = fetched(get(url));
        return answer ? answer->problem : "no answer at all";
    };
    EXPECT_EQ(problem(server.url("/500")), "status 500");
    EXPECT_EQ(fetched(get(server.url("/500")))->body, "body");
    EXPECT_EQ(problem(server.url("/half")), "the server broke off");
    EXPECT_EQ(problem(server.url("/round")), "redirected in vain");
    EXPECT_EQ(problem("http://127.0.0.1:1/"), "the server does not answer");
    EXPECT_NE(problem("not a url"), "");
    EXPECT_EQ(fetched(get(server.url("/there")))->body, "here");
    HttpRequest unsafe = get("https" + server.url().substr(4));  // the server does not use TLS
    unsafe.timeout = 300ms;
    EXPECT_NE(fetched(unsafe)->problem, "");
    HttpRequest silent = get(server.url("/silent"));
    silent.timeout = 100ms;
    EXPECT_EQ(fetched(silent)->problem, "no answer in time");
}

TEST(QtHttpClientTest, NeitherAFloodNorATrickleGoesOnForEver) {
    LocalServer server([](QTcpSocket& client, const std::string& request) {
        client.write("HTTP/1.1 200 OK\r\n\r\n");
        auto* more = new QTimer(&client);
        const QByteArray piece(request.starts_with("GET /flood") ? 1 << 20 : 1, 'x');
        QObject::connect(more, &QTimer::timeout, &client, [&client, piece] {
            if (client.bytesToWrite() < 4 * piece.size()) client.write(piece);
        });
        more->start(1);
    });
    const auto flood = fetched(get(server.url("/flood")), 20s);
    ASSERT_TRUE(flood);
    EXPECT_EQ(flood->problem, "the answer is larger than 8 MiB");
    EXPECT_EQ(flood->body, "");
    HttpRequest trickle = get(server.url("/trickle"));
    trickle.timeout = 200ms;
    const auto answer = fetched(trickle);
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->problem, "no answer in time");
}

TEST(QtHttpClientTest, WhatIsCancelledIsNotHeardOfAgain) {
    int answered = 0;
    const auto count = [&](const HttpResponse&) { return [&] { ++answered; }; };
    LocalServer server([](QTcpSocket& client, const std::string&) { client.write(LocalServer::ok("x").c_str()); });
    HttpClient::Cancel cancelLater;
    {
        QtHttpClient client;
        const auto cancel = client.send(get(server.url()), count);
        cancel();
        cancel();
        cancelLater = client.send(get(server.url()), count);
        ASSERT_TRUE(eventually([&] { return answered == 1; }));
        cancelLater();
        client.send(get(server.url()), count);
    }
    ASSERT_TRUE(fetched(get(server.url())));  // by then they had come
    cancelLater();
    EXPECT_EQ(answered, 1);
}

TEST(QtHttpClientTest, AnAnswerIsReadBesideTheEventLoop) {
    LocalServer server([](QTcpSocket& client, const std::string&) { client.write(LocalServer::ok("x").c_str()); });
    std::atomic<int> begun = 0, read = 0;
    std::counting_semaphore<> go(0);
    int answered = 0;
    const auto slow = [&](const HttpResponse&) {
        EXPECT_NE(QThread::currentThread(), QCoreApplication::instance()->thread());
        ++begun;
        go.acquire();
        ++read;
        return [&] {
            EXPECT_EQ(QThread::currentThread(), QCoreApplication::instance()->thread());
            ++answered;
        };
    };
    {
        QtHttpClient client;
        client.send(get(server.url()), slow);
        const auto cancel = client.send(get(server.url()), slow);
        ASSERT_TRUE(eventually([&] { return begun == 2; }));
        cancel();  // while it is being read
        go.release(2);
        ASSERT_TRUE(eventually([&] { return answered == 1 && read == 2; }));
        client.send(get(server.url()), slow);
        ASSERT_TRUE(eventually([&] { return begun == 3; }));
        go.release();
    }
    ASSERT_TRUE(fetched(get(server.url())));  // by then it had come
    EXPECT_EQ(answered, 1) << "neither what was cancelled nor what outlives the client";
}

// For each certificate: the requests that its server gets, and the client's problem.
TEST(QtHttpClientTest, OnlyAServerThatIsWhoItSaysIsTrusted) {
    const auto here = [](QTcpSocket& client, const std::string&) { client.write(LocalServer::ok("here").c_str()); };
    const struct {
        TestCertificate certificate;
        bool trusted;
        std::string problem;
    } cases[] = {
        {TestCertificate("IP:127.0.0.1"), true, ""},
        {TestCertificate("IP:127.0.0.1"), false, "the server's certificate is not trusted"},
        {TestCertificate("DNS:elsewhere.example"), true, "the server's certificate is for another name"},
        {TestCertificate("IP:127.0.0.1", -1), true, "the server's certificate has expired"},
    };
    for (const auto& each : cases) {
        ASSERT_FALSE(each.certificate.certificate().isNull());
        std::optional<Trusted> trusted;
        if (each.trusted) trusted.emplace(each.certificate);
        LocalServer server(here, each.certificate.ofServer());
        const auto answer = fetched(get(server.url("/nets.php")));
        ASSERT_TRUE(answer);
        EXPECT_EQ(answer->problem, each.problem);
        EXPECT_EQ(answer->body, each.problem.empty() ? "here" : "");
        EXPECT_EQ(server.requests.size(), each.problem.empty() ? 1U : 0U);
    }
}

TEST(QtHttpClientTest, ARedirectLeadsToNoLessSafeAServer) {
    const TestCertificate certificate("IP:127.0.0.1");
    const Trusted trusted(certificate);
    std::string target;
    const auto redirect = [&](QTcpSocket& client, const std::string& request) {
        const std::string moved = "HTTP/1.1 302 Found\r\nContent-Length: 0\r\nLocation: " + target + "\r\n\r\n";
        client.write(request.starts_with("GET /moved") ? moved.c_str() : LocalServer::ok("here").c_str());
    };
    LocalServer plain(redirect);
    LocalServer safe(redirect, certificate.ofServer());
    target = plain.url();
    const auto down = fetched(get(safe.url("/moved")));
    ASSERT_TRUE(down);
    EXPECT_EQ(down->problem, "redirected to an unsafe address");
    EXPECT_EQ(down->body, "");
    EXPECT_TRUE(plain.requests.empty());
    target = safe.url();
    const auto up = fetched(get(plain.url("/moved")));
    ASSERT_TRUE(up);
    EXPECT_EQ(up->problem, "");
    EXPECT_EQ(up->body, "here");

    // A key stays with its host.
    const auto problemWithKey = [](const LocalServer& asked) {
        HttpRequest request = get(asked.url("/moved"));
        request.key = "0123";
        const auto answer = fetched(request);
        return answer ? answer->problem : "no answer at all";
    };
    plain.requests.clear(), safe.requests.clear();
    EXPECT_EQ(problemWithKey(plain), "");
    EXPECT_NE(safe.requests.at(0).find("Bearer 0123"), std::string::npos);
    target = plain.url();
    EXPECT_EQ(problemWithKey(safe), "redirected to an unsafe address");
    target = "http://localhost" + plain.url().substr(16);
    EXPECT_EQ(problemWithKey(plain), "redirected to another server");
    for (const std::string& request : plain.requests) EXPECT_TRUE(request.starts_with("GET /moved ")) << request;
}

}  // namespace
}  // namespace corvane

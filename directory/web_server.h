// Takes HTTP requests and lets a site answer them.
#pragma once

#include <atomic>
#include <condition_variable>
#include <optional>
#include <thread>
#include <vector>

#include "address.h"
#include "answer.h"
#include "log.h"
#include "open_connections.h"
#include "waiting_requests.h"

struct MHD_Connection;
struct MHD_Daemon;

namespace corvane::directory {

struct WebRequest {
    std::string method;  // "GET"; "HEAD" comes as "GET"
    std::string path;    // "/nets.php", decoded
    std::string key;     // from "Authorization: Bearer KEY", else the value of "key" in the query, or empty
    Address address;     // of the client
    std::string body;
};

class WebSite {
public:
    virtual ~WebSite() = default;
    // Called with the head of a request, from several threads. Gives an answer that needs neither body nor wait.
    virtual std::optional<Answer> answerAtOnce(const WebRequest& request) = 0;
    // Called for all others, once they are complete. Must not wait; `reply` is called when the answer is ready.
    virtual void answer(const WebRequest& request, Reply reply) = 0;
    // The text of the 503 for a request whose answer does not come in time.
    virtual std::string_view lateText(const WebRequest& request) const = 0;
};

// A request with two lengths, a blank before a colon, two hosts, or without the Host of HTTP/1.1 is answered with 400
// and its connection closed. A body of more than 16 KiB is answered with 413, and a request whose answer takes longer
// than the site's patience with 503. A connection is closed when a request is not complete within 15 s. Each request is
// logged, without its query and body.
class WebServer {
public:
    struct Options {
        std::string address = "127.0.0.1";  // or a name; "::" is all addresses, also IPv4
        int port = 0;                       // 0: one that is free
        std::vector<Address> proxies{};     // whose X-Forwarded-For is believed
        unsigned connectionsAnAddress = 64;
        std::chrono::milliseconds patience = answerPatience;  // with the site
    };

    // Throws std::runtime_error when the port is taken or may not be used.
    WebServer(const Options& options, WebSite& site, Log& log);
    // Stops, and closes all connections.
    ~WebServer();
    WebServer(const WebServer&) = delete;
    WebServer& operator=(const WebServer&) = delete;

    int port() const;
    // New requests are answered with 503 and their connections closed. Returns when all older ones have been answered,
    // by the site or for its lateness, and most of these answers sent.
    void stop();

private:
    struct Exchange;

    int take(MHD_Connection* connection, const char* path, const char* method, const char* version, const char* data,
             std::size_t* size, void** exchange);
    int begin(MHD_Connection* connection, Exchange& exchange, std::string_view version);
    std::optional<Answer> answerToHead(Exchange& exchange);
    int finish(MHD_Connection* connection, Exchange& exchange);
    int send(MHD_Connection* connection, Exchange& exchange, const Answer& answer, bool closes = false) const;
    void end(MHD_Connection* connection, Exchange* exchange, bool sent);

    const Options options_;
    WebSite& site_;
    Log& log_;
    void watch();

    OpenConnections connections_;
    const std::shared_ptr<WaitingRequests> waiting_ = std::make_shared<WaitingRequests>();
    std::mutex mutex_;
    std::condition_variable changed_;
    int admitted_ = 0;  // requests under way that came before the stop
    std::atomic<bool> stopping_ = false;
    bool stopped_ = false;
    MHD_Daemon* daemon_ = nullptr;
    std::thread watch_;
};

}  // namespace corvane::directory

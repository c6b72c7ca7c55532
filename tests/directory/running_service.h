// A service on its own database and a free port, and a client that sends it bytes.
#pragma once

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "directory_service.h"
#include "new_database.h"

namespace corvane::directory {

// A database that is removed after the test: a file, or a schema on the server that the environment names.
class TestDatabase {
public:
    explicit TestDatabase(const std::string& kind) {
        text_ = folder_.filePath("a folder/directory.sqlite").toStdString();
        if (kind != "PostgreSQL") return;
        const std::string server = serverForTests();
        server_ = DatabaseLocation::from(server);
        Database(*server_).run(("CREATE SCHEMA " + schema_).c_str());
        text_ = server + (server.find('?') == std::string::npos ? '?' : '&') + "options=-csearch_path%3D" + schema_;
    }
    ~TestDatabase() {
        if (server_) Database(*server_).run(("DROP SCHEMA " + schema_ + " CASCADE").c_str());
    }
    TestDatabase(const TestDatabase&) = delete;
    TestDatabase& operator=(const TestDatabase&) = delete;

    static std::string serverForTests() {
        const char* const server = std::getenv("CORVANE_TEST_POSTGRESQL");
        return server ? server : "";
    }
    DatabaseLocation location() const { return DatabaseLocation::from(text_); }
    // With more settings for the server: "-cdefault_transaction_read_only%3Don".
    DatabaseLocation locationWith(const std::string& settings) const {
        return DatabaseLocation::from(text_ + "%20" + settings);
    }

private:
    const QTemporaryDir folder_;
    const std::string schema_ = "corvane_test_" + std::to_string(getpid());
    std::optional<DatabaseLocation> server_;
    std::string text_;
};

// A connection to a port of this machine.
class Client {
public:
    explicit Client(int port, int family = AF_INET) : socket_(socket(family, SOCK_STREAM, 0)) {
        const timeval patience{30, 0};
        setsockopt(socket_, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
        sockaddr_in6 address{.sin6_family = AF_INET6,
                             .sin6_port = htons(static_cast<uint16_t>(port)),
                             .sin6_flowinfo = 0,
                             .sin6_addr = IN6ADDR_LOOPBACK_INIT,
                             .sin6_scope_id = 0};
        sockaddr_in four{
            .sin_family = AF_INET, .sin_port = address.sin6_port, .sin_addr = {htonl(INADDR_LOOPBACK)}, .sin_zero = {}};
        connected_ = family == AF_INET
                         ? connect(socket_, reinterpret_cast<const sockaddr*>(&four), sizeof four) == 0
                         : connect(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    }
    ~Client() { close(socket_); }
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    bool connected() const { return connected_; }
    void send(const std::string& bytes) const { ::send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL); }
    // All bytes until the server closes the connection.
    std::string receive() const {
        std::string all;
        char piece[4096];
        for (ssize_t size = 0; (size = recv(socket_, piece, sizeof piece, 0)) > 0;)
            all.append(piece, static_cast<std::size_t>(size));
        return all;
    }

private:
    const int socket_;
    bool connected_ = false;
};

struct Received {
    int status = 0;
    std::string head;
    std::string body;
};

inline Received ask(int port, const std::string& method, const std::string& path, const std::string& body = "",
                    const std::string& headers = "") {
    const Client client(port);
    client.send(method + ' ' + path + " HTTP/1.1\r\nHost: x\r\nConnection: close\r\n" + headers +
                (body.empty() ? "" : "Content-Length: " + std::to_string(body.size()) + "\r\n") + "\r\n" + body);
    const std::string all = client.receive();
    const std::size_t end = all.find("\r\n\r\n");
    if (!all.starts_with("HTTP/1.1 ") || end == std::string::npos) return {};
    return {std::stoi(all.substr(9)), all.substr(0, end), all.substr(end + 4)};
}

inline std::string checkIn(const std::string& key, const std::string& net, int action) {
    return nlohmann::json{{"key", key}, {"net_id", net}, {"action", action}}.dump();
}

// A file in memory.
struct LogFile {
    ~LogFile() { close(file); }
    std::string text() const {
        std::ifstream stream("/proc/self/fd/" + std::to_string(file));
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    const int file = memfd_create("log", 0);
};

struct RunningService {
    explicit RunningService(const DatabaseLocation& database, int requestsAMinute = 0,
                            const WebServer::Options& server = {}) {
        const DirectoryService::Options options{database, CORVANE_SOURCE "/docs", requestsAMinute, server};
        service.emplace(
            options, [this] { return now.load(); }, log);
    }

    int port() const { return service->port(); }
    std::string nets(const std::string& key = "") const {
        return ask(port(), "GET", "/nets.php" + (key.empty() ? "" : "?key=" + key)).body;
    }
    int confirm(const std::string& key, const std::string& net, int action = 1) const {
        return ask(port(), "POST", "/netconf.php", checkIn(key, net, action)).status;
    }

    std::atomic<Seconds> now = Seconds(std::chrono::sys_days(std::chrono::year(2026) / 11 / 23));  // a Monday
    // Stops it and returns its log.
    std::string logged() {
        service.reset();
        log.close();
        return lines.text();
    }

    LogFile lines;
    Log log{lines.file};
    std::optional<DirectoryService> service;
};

inline const std::string alice = "0123456789abcdef0123456789abcdef";
inline const std::string bob = "fedcba9876543210fedcba9876543210";

}  // namespace corvane::directory

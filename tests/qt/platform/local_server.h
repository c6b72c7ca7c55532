// A web server on this machine that answers as a test says.
#pragma once

#include <QTcpServer>
#include <QTcpSocket>
#include <functional>
#include <string>
#include <vector>

namespace corvane {

class LocalServer {
public:
    // What to answer a request, its bytes on the line; called once its head and body have come. Without an answer the
    // connection stays silent.
    using Answer = std::function<void(QTcpSocket& client, const std::string& request)>;

    explicit LocalServer(Answer answer) : answer_(std::move(answer)) {
        server_.listen(QHostAddress::LocalHost);
        QObject::connect(&server_, &QTcpServer::newConnection, &server_,
                         [this] { take(*server_.nextPendingConnection()); });
    }

    std::string url(const std::string& path = "") const {
        return "http://127.0.0.1:" + std::to_string(server_.serverPort()) + path;
    }
    static std::string ok(const std::string& body, const std::string& head = "") {
        return "HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(body.size()) + "\r\n" + head + "\r\n" + body;
    }

    std::vector<std::string> requests;

private:
    void take(QTcpSocket& client) {
        QObject::connect(&client, &QTcpSocket::disconnected, &client, &QTcpSocket::deleteLater);
        QObject::connect(&client, &QTcpSocket::readyRead, &client, [this, &client, received = std::string()]() mutable {
            received += client.readAll().toStdString();
            const std::size_t head = received.find("\r\n\r\n");
            if (head == std::string::npos) return;
            const std::size_t at = received.find("Content-Length: ");
            const std::size_t length = at < head ? std::stoul(received.substr(at + 16)) : 0;
            if (received.size() < head + 4 + length) return;
            requests.push_back(std::exchange(received, {}));
            answer_(client, requests.back());
        });
    }

    QTcpServer server_;
    Answer answer_;
};

}  // namespace corvane

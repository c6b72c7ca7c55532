// A web server on this machine that gives the answers of a test.
#pragma once

#include <QSslConfiguration>
#include <QSslServer>
#include <QTcpSocket>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace corvane {

class LocalServer {
public:
    // Called with the bytes of a request once its head and body have come; answers it, or lets the connection stay
    // silent.
    using Answer = std::function<void(QTcpSocket& client, const std::string& request)>;

    // With `tls` the server speaks https.
    explicit LocalServer(Answer answer, const std::optional<QSslConfiguration>& tls = std::nullopt)
        : scheme_(tls ? "https" : "http"),
          server_(tls ? std::unique_ptr<QTcpServer>(new QSslServer) : std::make_unique<QTcpServer>()),
          answer_(std::move(answer)) {
        if (auto* safe = qobject_cast<QSslServer*>(server_.get())) safe->setSslConfiguration(*tls);
        server_->listen(QHostAddress::LocalHost);
        QObject::connect(server_.get(), &QTcpServer::pendingConnectionAvailable, server_.get(), [this] {
            while (QTcpSocket* client = server_->nextPendingConnection()) take(*client);
        });
    }

    std::string url(const std::string& path = "") const {
        return scheme_ + "://127.0.0.1:" + std::to_string(server_->serverPort()) + path;
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

    std::string scheme_;
    std::unique_ptr<QTcpServer> server_;
    Answer answer_;
};

}  // namespace corvane

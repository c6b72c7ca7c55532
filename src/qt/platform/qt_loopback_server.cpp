#include "qt/platform/qt_loopback_server.h"

#include <QTcpSocket>
#include <QTimer>

namespace corvane {

namespace {

constexpr qint64 readBuffer = 4096;  // bytes; what is beyond waits at the other program

class Connection final : public TcpConnection {
public:
    explicit Connection(QTcpSocket* socket) : socket_(socket) {
        socket_->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        socket_->setReadBufferSize(readBuffer);
        // A socket tells of what it has written from within write().
        QObject::connect(socket_, &QTcpSocket::readyRead, &calls_, [this] { onReadable(); });
        const auto later = Qt::QueuedConnection;
        QObject::connect(
            socket_, &QTcpSocket::bytesWritten, &calls_, [this] { onWritten(); }, later);
        QObject::connect(
            socket_, &QTcpSocket::disconnected, &calls_, [this] { onClosed(); }, later);
    }
    // From within a signal of the socket, too.
    ~Connection() override {
        QObject::disconnect(socket_, nullptr, &calls_, nullptr);
        QTcpSocket* socket = socket_;
        QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        socket->disconnectFromHost();
        if (socket->state() == QAbstractSocket::UnconnectedState)
            socket->deleteLater();
        else  // a program that takes nothing more must not keep the socket
            QTimer::singleShot(1000, socket, [socket] { socket->abort(); });
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    std::string read(std::size_t limit) override { return socket_->read(static_cast<qint64>(limit)).toStdString(); }
    void write(std::string_view bytes) override {
        socket_->write(bytes.data(), static_cast<qint64>(bytes.size()));
        socket_->flush();
    }
    std::size_t backlog() const override { return static_cast<std::size_t>(socket_->bytesToWrite()); }
    std::string peer() const override { return "port " + std::to_string(socket_->peerPort()); }

private:
    QTcpSocket* socket_;
    QObject calls_;  // what waits to be called ends with the connection
};

}  // namespace

// Qt's own queue of connections is not used: a refused one must not wait in it.
class QtLoopbackServer::Door final : public QTcpServer {
public:
    explicit Door(QtLoopbackServer& owner) : owner_(owner) {}

protected:
    void incomingConnection(qintptr descriptor) override {
        auto* socket = new QTcpSocket;
        if (!socket->setSocketDescriptor(descriptor) || !owner_.onConnection) {
            delete socket;
            return;
        }
        owner_.onConnection(std::make_unique<Connection>(socket));
    }

private:
    QtLoopbackServer& owner_;
};

QtLoopbackServer::QtLoopbackServer() {
    for (auto& door : doors_) door = std::make_unique<Door>(*this);
}

LoopbackServer::Listening QtLoopbackServer::listen(int port) {
    stop();
    const QHostAddress addresses[] = {QHostAddress::LocalHost, QHostAddress::LocalHostIPv6};
    for (std::size_t i = 0; i < std::size(doors_); ++i) {
        if (doors_[i]->listen(addresses[i], static_cast<quint16>(port))) continue;
        const bool taken = doors_[i]->serverError() == QAbstractSocket::AddressInUseError;
        if (i > 0 && !taken) break;  // a machine without ::1
        stop();
        return taken ? Listening::portTaken : Listening::failed;
    }
    return Listening::yes;
}

void QtLoopbackServer::stop() {
    for (auto& door : doors_) door->close();
}

}  // namespace corvane

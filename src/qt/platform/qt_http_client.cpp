#include "qt/platform/qt_http_client.h"

#include <QCoreApplication>
#include <QNetworkReply>
#include <QPointer>
#include <QTimer>
#include <utility>

namespace corvane {

namespace {

// Why a reply is none, in words for the operator.
std::string problemOf(const QNetworkReply& reply) {
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    switch (reply.error()) {
        case QNetworkReply::NoError:
            return {};
        case QNetworkReply::HostNotFoundError:
        case QNetworkReply::TemporaryNetworkFailureError:
        case QNetworkReply::NetworkSessionFailedError:
        case QNetworkReply::UnknownNetworkError:
            return "no network";
        case QNetworkReply::ConnectionRefusedError:
            return "the server does not answer";
        case QNetworkReply::RemoteHostClosedError:
            return "the server broke off";
        case QNetworkReply::TimeoutError:
        case QNetworkReply::OperationCanceledError:
            return "no answer in time";
        case QNetworkReply::SslHandshakeFailedError:
            return "no safe connection (certificate)";
        case QNetworkReply::TooManyRedirectsError:
        case QNetworkReply::InsecureRedirectError:
            return "redirected in vain";
        default:
            return status != 0 ? "status " + std::to_string(status) : "no answer";
    }
}

// One exchange; deletes itself at its end.
class Exchange : public QObject {
public:
    Exchange(QNetworkReply* reply, std::chrono::milliseconds timeout, std::function<void(HttpResponse)> completed)
        : QObject(reply), reply_(reply), completed_(std::move(completed)) {
        connect(reply, &QNetworkReply::readyRead, this, [this] { collect(); });
        connect(reply, &QNetworkReply::finished, this, [this] { end(problemOf(*reply_)); });
        // The transfer time-out of Qt starts anew with every byte, which a trickle outlives.
        deadline_.setSingleShot(true);
        connect(&deadline_, &QTimer::timeout, this, [this] { end("no answer in time"); });
        deadline_.start(timeout);
    }

    void cancel() {
        completed_ = {};
        end({});
    }

private:
    void collect() {
        body_ += reply_->readAll();
        if (static_cast<std::size_t>(body_.size()) <= largestBody) return;
        body_.clear();
        end("the answer is larger than 8 MiB");
    }

    void end(std::string problem) {
        const auto completed = std::exchange(completed_, {});
        disconnect(reply_, nullptr, this, nullptr);
        deadline_.stop();
        if (reply_->isOpen() && problem != "the answer is larger than 8 MiB") body_ += reply_->readAll();
        if (static_cast<std::size_t>(body_.size()) > largestBody) body_.clear();
        HttpResponse response{body_.toStdString(), std::move(problem)};
        body_.clear();
        if (reply_->isRunning() && reply_->error() == QNetworkReply::NoError) reply_->abort();
        reply_->deleteLater();
        if (completed) completed(std::move(response));
    }

    QNetworkReply* reply_;
    std::function<void(HttpResponse)> completed_;
    QByteArray body_;
    QTimer deadline_;
};

}  // namespace

HttpClient::Cancel QtHttpClient::send(const HttpRequest& request, std::function<void(HttpResponse)> completed) {
    QNetworkRequest asked(QUrl(QString::fromStdString(request.url), QUrl::StrictMode));
    asked.setHeader(QNetworkRequest::UserAgentHeader, "Corvane/" + QCoreApplication::applicationVersion());
    asked.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    if (request.ignoreCaches) {
        asked.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
        asked.setRawHeader("Cache-Control", "no-cache");
        asked.setRawHeader("Pragma", "no-cache");
    }
    if (!request.contentType.empty())
        asked.setRawHeader("Content-Type", QByteArray::fromStdString(request.contentType));
    QNetworkReply* reply = request.method == "POST" ? manager().post(asked, QByteArray::fromStdString(request.body))
                                                    : manager().get(asked);
    const QPointer<Exchange> exchange = new Exchange(reply, request.timeout, std::move(completed));
    return [exchange] {
        if (exchange) exchange->cancel();
    };
}

QNetworkAccessManager& QtHttpClient::manager() {
    if (!manager_) manager_ = std::make_unique<QNetworkAccessManager>();
    return *manager_;
}

}  // namespace corvane

#include "qt/platform/qt_http_client.h"

#include <QCoreApplication>
#include <QNetworkReply>
#include <QPointer>
#include <QTimer>

#include <malloc.h>

#include <algorithm>
#include <array>
#include <mutex>
#include <utility>

namespace corvane {

namespace {

constexpr int mostReaders = 2;
constexpr std::size_t largeBody = 1024 * 1024;

struct CertificateFault {
    QSslError::SslError error;
    const char* text;
};

// The faults that the operator or the service can mend, the most important first.
constexpr std::array certificateFaults{
    CertificateFault{QSslError::CertificateNotYetValid, "the server's certificate is not valid yet: check the clock"},
    CertificateFault{QSslError::CertificateExpired, "the server's certificate has expired"},
    CertificateFault{QSslError::CertificateRevoked, "the server's certificate is revoked"},
    CertificateFault{QSslError::HostNameMismatch, "the server's certificate is for another name"},
};

std::string problemOf(const QList<QSslError>& errors) {
    if (errors.isEmpty()) return "no safe connection";
    const auto fault = std::ranges::find_if(certificateFaults, [&](const CertificateFault& each) {
        return std::ranges::any_of(errors, [&](const QSslError& error) { return error.error() == each.error; });
    });
    return fault == certificateFaults.end() ? "the server's certificate is not trusted" : fault->text;
}

// Why a reply failed, in words for the operator; empty for a good one.
std::string problemOf(const QNetworkReply& reply, const QList<QSslError>& sslErrors) {
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
            return problemOf(sslErrors);
        case QNetworkReply::TooManyRedirectsError:
            return "redirected in vain";
        case QNetworkReply::InsecureRedirectError:
            return "redirected to an unsafe address";
        default:
            return status != 0 ? "status " + std::to_string(status) : "no answer";
    }
}

// What passes from one thread to the next through a queue of Qt. The queue has locks of its own, but ThreadSanitizer
// cannot see them; with this one it can tell an orderly handover from a race.
template <typename Value>
class Handover {
public:
    explicit Handover(Value value) {
        const std::lock_guard lock(mutex_);
        value_ = std::move(value);
    }
    // On the thread that lets go last.
    ~Handover() { take(); }
    Handover(const Handover&) = delete;
    Handover& operator=(const Handover&) = delete;

    Value take() {
        const std::lock_guard lock(mutex_);
        return std::exchange(value_, {});
    }

private:
    std::mutex mutex_;
    Value value_;
};

struct Answer {
    HttpResponse response;
    HttpClient::Completed completed;
};

// One exchange; deletes itself at its end.
class Exchange : public QObject {
public:
    Exchange(QNetworkReply* reply, std::chrono::milliseconds timeout, std::function<void(HttpResponse)> ended)
        : QObject(reply), reply_(reply), at_(reply->url()), ended_(std::move(ended)) {
        connect(reply, &QNetworkReply::readyRead, this, [this] { collect(); });
        connect(reply, &QNetworkReply::finished, this, [this] { end(problemOf(*reply_, sslErrors_)); });
        connect(reply, &QNetworkReply::sslErrors, this,
                [this](const QList<QSslError>& errors) { sslErrors_ = errors; });
        connect(reply, &QNetworkReply::redirected, this, [this](const QUrl& target) { redirect(target); });
        // Qt's transfer time-out restarts with every byte, so a slow trickle would never end.
        deadline_.setSingleShot(true);
        connect(&deadline_, &QTimer::timeout, this, [this] { end("no answer in time"); });
        deadline_.start(timeout);
    }

    void cancel() {
        ended_ = {};
        end({});
    }

private:
    void collect() {
        body_ += reply_->readAll();
        if (static_cast<std::size_t>(body_.size()) <= largestBody) return;
        body_.clear();
        end("the answer is larger than 8 MiB");
    }

    // Asked only for a request with a key: Qt would send the key on to wherever a redirect leads.
    void redirect(const QUrl& target) {
        const QNetworkRequest& asked = reply_->request();
        if (asked.attribute(QNetworkRequest::RedirectPolicyAttribute) != QNetworkRequest::UserVerifiedRedirectPolicy)
            return;
        const bool lessSafe = at_.scheme() == QLatin1String("https") && target.scheme() != QLatin1String("https");
        if (lessSafe) return end("redirected to an unsafe address");
        const auto portOf = [](const QUrl& url) { return url.port(url.scheme() == QLatin1String("https") ? 443 : 80); };
        const bool moved =
            target.host() != at_.host() || (target.scheme() == at_.scheme() && portOf(target) != portOf(at_));
        if (moved) return end("redirected to another server");
        at_ = target;
        emit reply_->redirectAllowed();
    }

    void end(std::string problem) {
        const auto ended = std::exchange(ended_, {});
        disconnect(reply_, nullptr, this, nullptr);
        deadline_.stop();
        if (reply_->isOpen() && problem != "the answer is larger than 8 MiB") body_ += reply_->readAll();
        if (static_cast<std::size_t>(body_.size()) > largestBody) body_.clear();
        HttpResponse response{body_.toStdString(), std::move(problem)};
        body_.clear();
        if (reply_->isRunning() && reply_->error() == QNetworkReply::NoError) reply_->abort();
        reply_->deleteLater();
        if (ended) ended(std::move(response));
    }

    QNetworkReply* reply_;
    QUrl at_;  // the reply itself tells the target before it has been allowed
    std::function<void(HttpResponse)> ended_;
    QList<QSslError> sslErrors_;
    QByteArray body_;
    QTimer deadline_;
};

}  // namespace

QtHttpClient::QtHttpClient() { readers_.setMaxThreadCount(mostReaders); }
QtHttpClient::~QtHttpClient() { readers_.clear(); }

HttpClient::Cancel QtHttpClient::send(const HttpRequest& request, Completed completed) {
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
    if (!request.key.empty()) {
        asked.setRawHeader("Authorization", "Bearer " + QByteArray::fromStdString(request.key));
        asked.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::UserVerifiedRedirectPolicy);
    }
    QNetworkReply* reply = request.method == "POST" ? manager().post(asked, QByteArray::fromStdString(request.body))
                                                    : manager().get(asked);
    const auto wanted = std::make_shared<std::atomic<bool>>(true);
    const QPointer<Exchange> exchange =
        new Exchange(reply, request.timeout, [this, completed = std::move(completed), wanted](HttpResponse response) {
            handOver(std::move(response), completed, wanted);
        });
    return [exchange, wanted] {
        *wanted = false;
        if (exchange) exchange->cancel();
    };
}

void QtHttpClient::handOver(HttpResponse response, Completed completed, Wanted wanted) {
    // Shared, so that the rows of a large answer are not copied with a functor.
    const auto answer = std::make_shared<Handover<Answer>>(Answer{std::move(response), std::move(completed)});
    readers_.start([this, answer, wanted = std::move(wanted)] {
        if (!*wanted) return;
        Answer taken = answer->take();
        const bool large = taken.response.body.size() > largeBody;
        const auto rest = std::make_shared<Handover<Rest>>(taken.completed(std::move(taken.response)));
        const auto run = [rest, wanted] {
            if (!*wanted) return;
            if (const Rest show = rest->take()) show();
        };
        QMetaObject::invokeMethod(&eventLoop_, run, Qt::QueuedConnection);
        // Reading takes many times the body's memory; the allocator would keep it for a thread that rarely runs.
        if (large) malloc_trim(0);
    });
}

QNetworkAccessManager& QtHttpClient::manager() {
    if (!manager_) manager_ = std::make_unique<QNetworkAccessManager>();
    return *manager_;
}

}  // namespace corvane

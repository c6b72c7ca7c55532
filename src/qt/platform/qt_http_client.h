// Web requests over Qt's network access.
#pragma once

#include <QNetworkAccessManager>
#include <QThreadPool>
#include <atomic>
#include <memory>

#include "platform/http_client.h"

namespace corvane {

// Lives on the thread of the application object. Connections stay open between requests. Exchanges still pending when
// the client is destroyed end without a call.
class QtHttpClient final : public HttpClient {
public:
    QtHttpClient();
    ~QtHttpClient() override;

    Cancel send(const HttpRequest& request, Completed completed) override;

private:
    using Wanted = std::shared_ptr<std::atomic<bool>>;

    QNetworkAccessManager& manager();
    void handOver(HttpResponse response, Completed completed, Wanted wanted);

    QObject eventLoop_;  // runs the rest of an exchange on this thread
    std::unique_ptr<QNetworkAccessManager>
        manager_;          // made for the first request: it is not needed for the first paint
    QThreadPool readers_;  // ends first
};

}  // namespace corvane

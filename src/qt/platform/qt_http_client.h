// Web requests over Qt's network access.
#pragma once

#include <QNetworkAccessManager>
#include <memory>

#include "platform/http_client.h"

namespace corvane {

// Lives on the thread of the application object. Connections stay open between requests; exchanges under way end with
// the client, without a call.
class QtHttpClient final : public HttpClient {
public:
    Cancel send(const HttpRequest& request, std::function<void(HttpResponse)> completed) override;

private:
    QNetworkAccessManager& manager();

    std::unique_ptr<QNetworkAccessManager>
        manager_;  // made for the first request: it is not needed for the first paint
};

}  // namespace corvane

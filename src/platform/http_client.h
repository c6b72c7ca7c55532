// Requests to web services.
#pragma once

#include <chrono>
#include <functional>
#include <string>

namespace corvane {

struct HttpRequest {
    std::string method = "GET";                // or "POST"
    std::string url;                           // "https://api.pota.app/spot/activator"
    std::chrono::milliseconds timeout{60000};  // for the whole exchange
    bool ignoreCaches = false;                 // neither a local nor a remote cache may answer
    std::string contentType;                   // of the body; empty: no such header
    std::string key;                           // sent as "Authorization: Bearer KEY"; empty: no such header
    std::string body;

    bool operator==(const HttpRequest&) const = default;
};

// The answer. A body may come with a problem, e.g. that of an error page.
struct HttpResponse {
    std::string body;
    std::string problem;  // what went wrong, for the operator: "no network"; empty: nothing did
};

inline constexpr std::size_t largestBody = 8 * 1024 * 1024;  // a larger one is refused: no body and a problem

class HttpClient {
public:
    using Cancel = std::function<void()>;
    using Rest = std::function<void()>;
    using Completed = std::function<Rest(HttpResponse)>;

    virtual ~HttpClient() = default;

    // Starts the exchange and returns at once. `completed` is called once, on a thread of the client, where decoding a
    // large answer does not block the window; it may use only what it owns. It returns the rest of the work, if any,
    // which is called once from the event loop.
    //
    // The returned Cancel ends the exchange early; then the rest is not called. After the exchange has ended it does
    // nothing. Certificates are checked; redirects are followed to the same scheme or a safer one, and with a key only
    // to the same host.
    virtual Cancel send(const HttpRequest& request, Completed completed) = 0;
};

}  // namespace corvane

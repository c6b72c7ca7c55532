#include "directory_site.h"

#include <algorithm>
#include <array>

#include "check_in_request.h"

namespace corvane::directory {

namespace {

constexpr std::string_view healthPath = "/healthz";

}  // namespace

struct DirectorySite::Route {
    std::string_view path;
    std::string_view method;
    void (*answer)(DirectorySite& site, const WebRequest& request, Reply reply);
};

const DirectorySite::Route* DirectorySite::routeOf(const std::string& path) {
    static constexpr std::array routes{
        Route{"/nets.php", "GET",
              [](DirectorySite& site, const WebRequest& request, Reply reply) {
                  site.reader_.nets(request.key, std::move(reply));
              }},
        Route{"/mw.php", "GET",
              [](DirectorySite& site, const WebRequest&, Reply reply) { site.reader_.stations(std::move(reply)); }},
        Route{"/netconf.php", "POST",
              [](DirectorySite& site, const WebRequest& request, Reply reply) {
                  auto checkIn = checkInFrom(request.body);
                  const bool oneKey = checkIn && (request.key.empty() || request.key == checkIn->operatorKey);
                  if (oneKey)
                      site.writer_.record(std::move(*checkIn), std::move(reply));
                  else
                      reply(textAnswer(400, "The body is not a check-in."));
              }},
        Route{healthPath, "GET",
              [](DirectorySite& site, const WebRequest&, Reply reply) { site.writer_.health(std::move(reply)); }},
    };
    const auto* const route = std::ranges::find(routes, path, &Route::path);
    return route == routes.end() ? nullptr : route;
}

std::optional<Answer> DirectorySite::answerAtOnce(const WebRequest& request) {
    if (!limit_.allows(request.address, std::chrono::steady_clock::now())) {
        Answer answer = textAnswer(429, "Too many requests from this address.");
        answer.headerName = "Retry-After";
        answer.headerValue = "60";
        return answer;
    }
    const Answer* const document = documents_.find(request.path);
    const Route* const route = routeOf(request.path);
    if (!document && !route) return textAnswer(404, "There is nothing here.");
    const std::string_view method = document ? "GET" : route->method;
    if (request.method != method) {
        Answer answer = textAnswer(405, "This method is not allowed here.");
        answer.headerName = "Allow";
        answer.headerValue = method;
        return answer;
    }
    if (document) return *document;
    if (!request.key.empty() && !isOperatorKey(request.key)) return textAnswer(400, "This is not an operator's key.");
    return {};
}

void DirectorySite::answer(const WebRequest& request, Reply reply) {
    routeOf(request.path)->answer(*this, request, std::move(reply));
}

std::string_view DirectorySite::lateText(const WebRequest& request) const {
    return request.path == healthPath ? "blocked" : "The database does not answer in time.";
}

}  // namespace corvane::directory

// What is answered under which path.
#pragma once

#include "check_in_writer.h"
#include "directory_reader.h"
#include "documents.h"
#include "rate_limit.h"
#include "web_server.h"

namespace corvane::directory {

// GET /nets.php?key=KEY, GET /mw.php, POST /netconf.php, GET /healthz, and the documents. 400 for a key or a body that
// no program of ours makes, 404 for other paths, 405 for other methods, 429 for an address that asks too often.
class DirectorySite : public WebSite {
public:
    DirectorySite(CheckInWriter& writer, DirectoryReader& reader, const Documents& documents, int requestsAMinute)
        : writer_(writer), reader_(reader), documents_(documents), limit_(requestsAMinute) {}

    std::optional<Answer> answerAtOnce(const WebRequest& request) override;
    void answer(const WebRequest& request, Reply reply) override;

private:
    struct Route;
    static const Route* routeOf(const std::string& path);

    CheckInWriter& writer_;
    DirectoryReader& reader_;
    const Documents& documents_;
    RateLimit limit_;
};

}  // namespace corvane::directory

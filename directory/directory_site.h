// Which path gives which answer.
#pragma once

#include "check_in_writer.h"
#include "directory_reader.h"
#include "documents.h"
#include "rate_limit.h"
#include "web_server.h"

namespace corvane::directory {

// GET /nets.php, GET /mw.php, POST /netconf.php, GET /healthz, and the documents. An operator's key comes in the header
// "Authorization: Bearer KEY" and, of a check-in, also in its body; of older programs as /nets.php?key=KEY, and in the
// body only. Answers 400 to a malformed key or body, and to a check-in with two different keys, 404 to other paths, 405
// to other methods, 429 to an address that asks too often.
class DirectorySite : public WebSite {
public:
    DirectorySite(CheckInWriter& writer, DirectoryReader& reader, const Documents& documents, int requestsAMinute)
        : writer_(writer), reader_(reader), documents_(documents), limit_(requestsAMinute) {}

    std::optional<Answer> answerAtOnce(const WebRequest& request) override;
    void answer(const WebRequest& request, Reply reply) override;
    std::string_view lateText(const WebRequest& request) const override;

private:
    struct Route;
    static const Route* routeOf(const std::string& path);

    CheckInWriter& writer_;
    DirectoryReader& reader_;
    const Documents& documents_;
    RateLimit limit_;
};

}  // namespace corvane::directory

// Where the services live that the program talks to or opens in the web browser.
#pragma once

#include <string>

namespace corvane {

struct ServiceHosts {
    std::string webSite = "http://127.0.0.1:8073";  // help and product pages; no "/" at the end

    std::string helpPage() const { return webSite + "/corvane/"; }
    std::string productPage() const { return webSite + "/v/corvane/"; }

    // The default hosts; with `services` ("http://127.0.0.1:9000") that one server for all of them.
    static ServiceHosts from(std::string services) {
        while (services.ends_with('/')) services.pop_back();
        ServiceHosts hosts;
        if (!services.empty()) hosts.webSite = std::move(services);
        return hosts;
    }
};

}  // namespace corvane

// The addresses of the services that the program uses or opens in the web browser.
#pragma once

#include <string>

namespace corvane {

// Each with its scheme and without a "/" at the end.
struct ServiceHosts {
    std::string pota = "https://api.pota.app";            // parks on the air: spots
    std::string potaSite = "https://pota.app";            // and pages
    std::string sota = "https://api2.sota.org.uk";        // summits on the air
    std::string netLogger = "https://www.netlogger.org";  // active nets
    std::string solarData = "https://www.hamqsl.com";     // band conditions
    std::string map = "https://maps.google.com";
    std::string directory = "http://127.0.0.1:8073";  // nets, check-ins, medium-wave stations
    std::string webSite = "http://127.0.0.1:8073";    // help and product pages

    std::string helpPage() const { return webSite + "/corvane/"; }
    std::string productPage() const { return webSite + "/v/corvane/"; }

    // The default hosts, or the one server `services` ("http://127.0.0.1:9000") for all of them.
    static ServiceHosts from(std::string services) {
        while (services.ends_with('/')) services.pop_back();
        if (services.empty()) return {};
        return {services, services, services, services, services, services, services, services};
    }
};

}  // namespace corvane

// The addresses of the services that the program uses or opens in the web browser.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

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
    bool directoryIsGiven = false;                    // by the environment, which wins over the operator's setting

    std::string helpPage() const { return webSite + "/corvane/"; }
    std::string productPage() const { return webSite + "/v/corvane/"; }

    // "https://club.example/" serves the directory and the help; an empty text stands for this computer. False, and
    // nothing changed, for what is no address of a web server.
    bool setDirectory(std::string_view server) {
        while (server.ends_with('/')) server.remove_suffix(1);
        const std::size_t scheme = server.starts_with("https://") ? 8 : 7;
        const bool isServer = (scheme == 8 || server.starts_with("http://")) && server.size() > scheme &&
                              std::ranges::all_of(server, [](char c) { return c > ' ' && c < '\x7f'; });
        if (!server.empty() && !isServer) return false;
        directory = webSite = server.empty() ? ServiceHosts{}.directory : server;
        return true;
    }

    // The default hosts, or the one server `services` ("http://127.0.0.1:9000") for all of them; and for the directory
    // and the help the server `club`, if it is one.
    static ServiceHosts from(std::string services, std::string_view club = {}) {
        while (services.ends_with('/')) services.pop_back();
        ServiceHosts hosts;
        if (!services.empty())
            hosts = {services, services, services, services, services, services, services, services, true};
        if (!club.empty() && hosts.setDirectory(club)) hosts.directoryIsGiven = true;
        return hosts;
    }
};

}  // namespace corvane

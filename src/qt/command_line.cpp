#include "qt/command_line.h"

#include <fmt/core.h>

#include "qt/platform/serial_device.h"

namespace corvane {

namespace {

constexpr std::string_view help =
    "Usage: corvane [OPTION]\n"
    "Operates an HF transceiver from the desktop.\n"
    "\n"
    "  --list-ports   print the serial ports and end\n"
    "  --version      print the version and end\n"
    "  --help         print this text and end\n"
    "\n"
    "If Corvane runs already, its window comes to the front.\n"
    "\n"
    "Environment:\n"
    "  CORVANE_EXTRA_PORTS   more serial ports for the list: paths, \":\" between them\n"
    "  CORVANE_SERVICES      one host for all on-line services, such as http://127.0.0.1:8073\n";

std::string portList() {
    std::string list;
    for (const SerialDevice& device : attachedSerialDevices())
        list += fmt::format("{:<12} {}\n", device.name, device.details);
    return list.empty() ? "There is no serial port.\n" : list;
}

}  // namespace

std::optional<Printout> printoutFor(const std::vector<std::string>& arguments) {
    if (arguments.empty()) return std::nullopt;
    const std::string& option = arguments.front();
    if (arguments.size() > 1 || (option != "--help" && option != "--version" && option != "--list-ports")) {
        const std::string& wrong = arguments.size() > 1 ? arguments[1] : option;
        return Printout{fmt::format("corvane: unknown option \"{}\"; try --help\n", wrong), 2};
    }
    if (option == "--help") return Printout{std::string(help), 0};
    if (option == "--version") return Printout{"Corvane " CORVANE_VERSION "\n", 0};
    return Printout{portList(), 0};
}

}  // namespace corvane

#include <exception>
#include <iostream>
#include <span>

#include "simulator/program_options.h"
#include "simulator/radio_program.h"

int main(int count, char* arguments[]) {
    try {
        const std::span<const char* const> all(arguments, static_cast<std::size_t>(count));
        const auto options = simulator::parseOptions(all.empty() ? all : all.subspan(1));
        if (!options.fault.empty()) {
            std::cerr << "corvane-radio: " << options.fault << " (--help lists the options)\n";
            return 2;
        }
        if (options.version) {
            std::cout << "Corvane " CORVANE_VERSION "\n";
            return 0;
        }
        if (options.help) {
            std::cout << simulator::usageText();
            return 0;
        }
        simulator::RadioProgram(options).run();
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "corvane-radio: " << error.what() << "\n";
        return 1;
    }
}

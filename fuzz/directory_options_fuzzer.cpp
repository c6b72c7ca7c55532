// Any command line of the directory service, one argument a line; the last line is also a client's address.
#include <stdexcept>
#include <string>
#include <vector>

#include "directory/options.h"
#include "fuzz/fuzz_target.h"

namespace corvane {

void fuzz(std::string_view input) {
    std::vector<std::string> words{"corvane-directory"};
    for (const char c : input) {
        if (c == '\n')
            words.emplace_back();
        else if (c != '\0')
            words.back() += c;
    }
    const auto address = directory::Address::from(words.back());
    if (address) INVARIANT(directory::Address::from(address->text()) == address);
    std::vector<char*> arguments;
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    try {
        const auto options = directory::optionsFrom(static_cast<int>(words.size()), arguments.data());
        INVARIANT(options.service.server.port >= 0 && options.service.server.port <= 65535);
        INVARIANT(!options.service.database.name().empty());
    } catch (const std::invalid_argument& error) {
        INVARIANT(*error.what() != '\0');
    }
}

}  // namespace corvane

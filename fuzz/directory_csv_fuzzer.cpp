// Any file of nets or stations. Its entries survive an export, its problems can be shown on a terminal.
#include <algorithm>

#include "directory/catalogue_file.h"
#include "directory/net_schedule.h"
#include "fuzz/fuzz_target.h"

namespace corvane {

namespace {

template <class Entry>
void check(const directory::CatalogueFile<Entry>& file) {
    INVARIANT(file.problems.empty() || file.entries.empty());
    for (const std::string& problem : file.problems)
        INVARIANT(problem.size() < 2'000 &&
                  std::ranges::none_of(problem, [](char c) { return (c >= 0 && c < ' ') || c == '\x7f'; }));
}

}  // namespace

void fuzz(std::string_view input) {
    const auto nets = directory::readNets(input);
    check(nets);
    for (const directory::Net& net : nets.entries) INVARIANT(directory::scheduleOf(net.utc, net.days));
    if (nets.problems.empty()) INVARIANT(directory::readNets(directory::writeNets(nets.entries)) == nets);
    const auto stations = directory::readStations(input);
    check(stations);
    if (stations.problems.empty())
        INVARIANT(directory::readStations(directory::writeStations(stations.entries)) == stations);
}

}  // namespace corvane

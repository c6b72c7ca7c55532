// How fast the bodies of the on-line lists are read, compared with a bare parse of the same JSON.
#include <benchmark/benchmark.h>

#include <nlohmann/json.hpp>
#include <string>

#include "feeds/spots.h"
#include "feeds/tagged_lists.h"

namespace corvane {
namespace {

std::string potaBody() {
    std::string body = "[";
    for (int spot = 0; spot < 10'000; ++spot) {
        if (spot > 0) body += ',';
        body += R"({"spotId":)" + std::to_string(40'000'000 + spot) + R"(,"activator":"N)" + std::to_string(spot) +
                R"(CALL","frequency":"14074.5","mode":"FT8","reference":"US-)" + std::to_string(spot) +
                R"(","parkName":null,"spotTime":"2026-11-23T13:)" + std::to_string(10 + spot % 50) +
                R"(:12","spotter":"N0CALL","comments":"FT8 -12 dB from EN34 1205 Hz","source":"RBN","invalid":null,)" +
                R"("name":"Some State Park","locationDesc":"US-ME","grid4":"EN34","grid6":"EN34jt",)" +
                R"("latitude":44.8103,"longitude":-93.2148,"count":12,"expire":1793})";
    }
    return body + ']';
}

std::string netsBody() {
    std::string body;
    for (int net = 0; net < 10'000; ++net)
        body += "<NetName>Net " + std::to_string(net) +
                "</NetName><Frequency>3.940 MHz</Frequency><UTC>17:00</UTC><Mode>LSB</Mode>"
                "<URL>https://net.example/</URL><Confirmed>0</Confirmed><NetID>7</NetID>\n";
    return body;
}

void report(benchmark::State& state, const std::string& body) {
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * body.size()));
}

void bareJson(benchmark::State& state) {
    const std::string body = potaBody();
    for (auto unused : state) benchmark::DoNotOptimize(nlohmann::json::parse(body, nullptr, false));
    report(state, body);
}

void potaSpots(benchmark::State& state) {
    const std::string body = potaBody();
    for (auto unused : state) benchmark::DoNotOptimize(decodePotaSpots(body, Instant::clock::now()));
    report(state, body);
}

void nets(benchmark::State& state) {
    const std::string body = netsBody();
    for (auto unused : state) benchmark::DoNotOptimize(decodeNets(body));
    report(state, body);
}

BENCHMARK(bareJson)->Unit(benchmark::kMillisecond);
BENCHMARK(potaSpots)->Unit(benchmark::kMillisecond);
BENCHMARK(nets)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace corvane

BENCHMARK_MAIN();

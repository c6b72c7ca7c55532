// How many responses a second the program takes, from the port's bytes to the controls, with and without showing the
// controls.
#include <benchmark/benchmark.h>

#include <cstdio>

#include "controller/serial_port_demo_controller.h"
#include "line/line_view.h"
#include "radio/line_record.h"
#include "radio/response_assembler.h"
#include "tests/support/surroundings.h"

namespace corvane {
namespace {

struct Traffic {
    std::string bytes;
    int responses = 0;

    void add(std::string_view response) {
        bytes += response;
        ++responses;
    }
};

std::string numbered(const char* format, int value) {
    char response[40];
    std::snprintf(response, sizeof response, format, value);
    return response;
}

// Eight seconds of a knob that is turned fast: 330 frequencies, 272 meter readings, 243 information records and 34
// others, mixed evenly.
Traffic spin() {
    struct Kind {
        int count;
        std::string (*response)(int frequency, int step);
    };
    const Kind kinds[] = {
        {330, [](int frequency, int) { return numbered("FA%09d;", frequency); }},
        {272, [](int, int step) { return numbered("RM1%03d000;", 30 + step % 90); }},
        {243, [](int frequency, int) { return numbered("IF000%09d+000000200000;", frequency); }},
        {34, [](int, int) { return std::string("FD0;"); }},
    };
    constexpr int total = 330 + 272 + 243 + 34;
    Traffic traffic;
    for (int step = 0; step < total; ++step)
        for (const Kind& kind : kinds)
            if ((step + 1) * kind.count / total > step * kind.count / total)
                traffic.add(kind.response(14250000 + step * 10, step));
    return traffic;
}

// The answers to all read commands that the program sends after a port has opened.
Traffic synchronisation() {
    Traffic traffic;
    for (const std::string_view answer : {"PS1;",
                                          "AI1;",
                                          "AG0128;",
                                          "IF000014250000+000000200000;",
                                          "OI000007074000+000000200000;",
                                          "VS1;",
                                          "MD02;",
                                          "NB01;",
                                          "NR01;",
                                          "PC100;",
                                          "FA014250000;",
                                          "FB007074000;",
                                          "BC00;",
                                          "BI1;",
                                          "PA01;",
                                          "BP00000;",
                                          "CO000000;",
                                          "GT04;",
                                          "RA00;",
                                          "RF03;",
                                          "SF03;",
                                          "SF1H;",
                                          "SS0010000;",
                                          "SS0120000;",
                                          "SS0210000;",
                                          "SS03A0000;",
                                          "SS04+10.5;",
                                          "SS0570000;",
                                          "SS06B0000;",
                                          "MS50;",
                                          "EX040101N0CALL;"})
        traffic.add(answer);
    return traffic;
}

enum class Watching { nobody, everyControl };

void receive(benchmark::State& state, const Traffic& traffic, Watching watching) {
    constexpr int responsesPerRefresh = 20;  // about six repaints a second of a fast spin
    ChangeQueue changes;
    std::vector<ViewHandle> views;
    long shown = 0;
    Surroundings around;
    const auto port = std::make_shared<FakeSerialPort>("ttyUSB0");
    SerialPortDemoController controller(around.platform(), {});
    controller.awakeFromNib();
    controller.setSerialPort(port);
    port->open();
    if (watching == Watching::everyControl)
        for (Control* control : controller.display.controls())
            views.push_back(control->addView(changes, [&shown] { ++shown; }));

    int sinceRefresh = 0;
    ResponseAssembler assembler([&](std::string_view response) {
        port->receive(response);
        if (++sinceRefresh < responsesPerRefresh) return;
        sinceRefresh = 0;
        changes.refresh();
    });
    constexpr std::size_t chunk = 64;  // bytes, as from a serial driver
    for (auto unused : state) {
        for (std::size_t at = 0; at < traffic.bytes.size(); at += chunk)
            assembler.feed(std::string_view(traffic.bytes).substr(at, chunk));
        port->written.clear();
    }
    state.SetItemsProcessed(state.iterations() * traffic.responses);
    state.SetBytesProcessed(state.iterations() * static_cast<long>(traffic.bytes.size()));
    state.counters["shown"] = benchmark::Counter(static_cast<double>(shown), benchmark::Counter::kAvgIterations);
}

// What the record of the traffic adds to each response, its clock not included.
void record(benchmark::State& state) {
    LineRecord lines;
    const auto now = std::chrono::system_clock::now();
    for (auto unused : state) lines.add(LineDirection::received, "IF000014250000+000000200000;", now);
}

// One look at ten thousand new lines through a filter, which puts them all into words.
void filtered(benchmark::State& state) {
    LineRecord lines;
    for (std::size_t line = 0; line < LineRecord::capacity; ++line)
        lines.add(LineDirection::received, "IF000014250000+000000200000;", {});
    LineView view(lines);
    for (auto unused : state) {
        view.setFilter("usb");
        benchmark::DoNotOptimize(view.look());
    }
}

BENCHMARK(record);
BENCHMARK(filtered)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(receive, spin_unwatched, spin(), Watching::nobody);
BENCHMARK_CAPTURE(receive, spin_watched, spin(), Watching::everyControl);
BENCHMARK_CAPTURE(receive, synchronisation, synchronisation(), Watching::nobody);

}  // namespace
}  // namespace corvane

BENCHMARK_MAIN();

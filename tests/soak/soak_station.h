// The program at a simulated transceiver, on a line with its own speed and faults, by one clock that is moved by hand.
#pragma once

#include <random>

#include "radio/response_assembler.h"
#include "simulator/simulated_transceiver.h"
#include "tests/support/test_bench.h"

namespace corvane {

class SoakStation : public TestBench {
public:
    using Milliseconds = Scheduler::Duration;

    explicit SoakStation(unsigned seed) : dice_(seed) {
        transceiver.seedNoise(seed);
        transceiver.transmit = [this](std::string_view bytes) { arrived_ += bytes; };
        port->onWrite = [this](std::string_view bytes) {
            note("  > ", bytes);
            transceiver.receive(bytes, time());
        };
        around.files.choice = "/channels.csv";
    }
    ~SoakStation() { controller.link.setSerialPort(nullptr); }

    int dice(int first, int last) { return std::uniform_int_distribution(first, last)(dice_); }
    bool chance(int percent) { return dice(1, 100) <= percent; }
    template <class List>
    auto& oneOf(List& list) {
        return list[static_cast<std::size_t>(dice(0, static_cast<int>(std::size(list)) - 1))];
    }

    // Every event of the line and of the program falls at its own time.
    void pass(Milliseconds duration) {
        for (Milliseconds left = duration; left >= Milliseconds{0};) {
            deliver();
            Milliseconds step = std::max(left, Milliseconds{1});
            if (const auto task = around.scheduler.nextDue()) step = std::min(step, *task);
            if (const auto event = transceiver.nextEvent())
                step = std::min(step, std::max(Milliseconds{0}, std::chrono::ceil<Milliseconds>(*event - time())));
            if (left == Milliseconds{0} && step > left) break;
            advance(step);
            transceiver.advanceTo(time());
            left -= step;
        }
    }

    void unplug() {
        fault(&simulator::Faults::unplugged, true);
        arrived_.clear();
        assembler_.clear();
        port->unplug();
        around.portManager.disconnect({port});
    }
    void plug() {
        fault(&simulator::Faults::unplugged, false);
        around.portManager.connect({port});
    }
    void fault(bool simulator::Faults::*which, bool on) {
        simulator::Faults faults = transceiver.faults();
        faults.*which = on;
        transceiver.setFaults(faults);
    }
    // What the surroundings have recorded is no part of the program's memory.
    void forgetRecords() {
        forgetWhatHappened();
        display.announcements.take();
        around.notices.shown.clear();
        around.notices.removed.clear();
        around.alerts.shown.clear();
        around.log.lines.clear();
        around.http.requests.clear();
        around.http.pending.clear();
        around.http.cancelled.clear();
        around.dataFolder.files.clear();
        around.files.files.clear();
        around.browser.opened.clear();
        transceiver.clearReceived();
    }

    // What happened, to be printed when a check fails: acts and the bytes on the line, with their times in
    // milliseconds.
    void note(std::string_view what, std::string_view detail) {
        journal.push_back(std::to_string(time().count() / 1000) + ' ' + std::string(what).append(detail) + '\n');
    }

    simulator::SimulatedTransceiver transceiver;
    std::vector<std::string> journal;

private:
    simulator::Time time() const {
        return std::chrono::duration_cast<simulator::Time>(around.scheduler.now() - start_);
    }

    // Whole responses, one at a time, as a port hands them over.
    void deliver() {
        if (arrived_.empty()) return;
        assembler_.feed(std::exchange(arrived_, {}));
        const unsigned fed = ++fed_;
        if (assembler_.holdsTail())
            around.scheduler.after(Milliseconds(ResponseAssembler::patience), [this, fed] {
                if (fed == fed_) assembler_.expire();
            });
    }

    std::mt19937 dice_;
    const std::chrono::system_clock::time_point start_ = around.scheduler.now();
    std::string arrived_;
    ResponseAssembler assembler_{[this](std::string_view response) {
        note("  < ", response);
        receive(response);
    }};
    unsigned fed_ = 0;
};

}  // namespace corvane

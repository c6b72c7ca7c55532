#include "simulator/radio_program.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <iostream>

namespace simulator {

namespace {

constexpr std::size_t longestLine = 4'096;

void print(const std::string& text) { std::cout << text << std::flush; }

}  // namespace

RadioProgram::RadioProgram(const ProgramOptions& options) : options_(options) {
    transceiver_.setInstantAnswers(options.instant);
    transceiver_.setFaults({.silent = options.silent});
    transceiver_.transmit = [this](std::string_view bytes) {
        if (terminal_) terminal_->write(bytes);
    };
}

void RadioProgram::run() {
    followPlug();
    while (!console_.finished()) {
        waitAndServe();
        transceiver_.advanceTo(now());
        followPlug();
    }
}

Time RadioProgram::now() const { return std::chrono::duration_cast<Time>(std::chrono::steady_clock::now() - start_); }

std::optional<timespec> RadioProgram::timeToNextEvent() const {
    const auto event = transceiver_.nextEvent();
    if (!event) return std::nullopt;
    const auto left = std::chrono::nanoseconds(std::max(Time::zero(), *event - now()));
    const auto seconds = std::chrono::floor<std::chrono::seconds>(left);
    return timespec{seconds.count(), (left - seconds).count()};
}

void RadioProgram::waitAndServe() {
    // ppoll() skips negative descriptors: an unplugged port, an input that has ended.
    std::array<pollfd, 3> watched{pollfd{stopSignals_.descriptor(), POLLIN, 0},
                                  pollfd{inputEnded_ ? -1 : STDIN_FILENO, POLLIN, 0},
                                  pollfd{terminal_ ? terminal_->descriptor() : -1, POLLIN, 0}};
    const auto wait = timeToNextEvent();
    if (ppoll(watched.data(), watched.size(), wait ? &*wait : nullptr, nullptr) <= 0) return;
    if (watched[0].revents != 0) console_.finish();
    if (watched[1].revents != 0) readTyped();
    if (watched[2].revents != 0 && terminal_) transceiver_.receive(terminal_->read(), now());
}

void RadioProgram::followPlug() {
    const bool unplugged = transceiver_.faults().unplugged;
    if (unplugged && terminal_) {
        link_.reset();
        terminal_.reset();
        print("unplugged\n");
    } else if (!unplugged && !terminal_) {
        terminal_ = std::make_unique<PseudoTerminal>();
        if (!options_.link.empty()) link_ = std::make_unique<PortLink>(options_.link, terminal_->path());
        print("port " + terminal_->path() + "\n");
    }
}

void RadioProgram::readTyped() {
    std::array<char, 1'024> buffer{};
    const auto count = read(STDIN_FILENO, buffer.data(), buffer.size());
    if (count > 0) {
        typed_.append(buffer.data(), static_cast<std::size_t>(count));
        executeTyped();
        return;
    }
    inputEnded_ = true;
    if (isatty(STDIN_FILENO) != 0) console_.finish();
}

void RadioProgram::executeTyped() {
    for (auto end = typed_.find('\n'); end != std::string::npos; end = typed_.find('\n')) {
        transceiver_.advanceTo(now());
        print(console_.execute(std::string_view(typed_).substr(0, end)));
        typed_.erase(0, end + 1);
        followPlug();
    }
    if (typed_.size() > longestLine) typed_.clear();
}

}  // namespace simulator

// The simulated transceiver at the far end of a pseudo-terminal, served by the event loop of the test.
#pragma once

#include <QSocketNotifier>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "simulator/port_link.h"
#include "simulator/pseudo_terminal.h"
#include "simulator/simulated_transceiver.h"

namespace corvane {

class RadioOnLine {
public:
    RadioOnLine() {
        transceiver.setInstantAnswers(true);
        transceiver.transmit = [this](std::string_view bytes) {
            if (terminal) terminal->write(bytes);
        };
        next_.setSingleShot(true);
        QObject::connect(&next_, &QTimer::timeout, &next_, [this] { operate([](auto&) {}); });
        connect();
    }

    // Operates the transceiver, now.
    void operate(const std::function<void(simulator::SimulatedTransceiver&)>& action) {
        transceiver.advanceTo(now());
        action(transceiver);
        arm();
    }

    // Handles the bytes that the program has written so far.
    void serve() {
        for (std::string bytes = terminal->read(); !bytes.empty(); bytes = terminal->read())
            transceiver.receive(bytes, now());
        arm();
    }

    // The path under which the program finds the line, for any terminal.
    std::string path() const { return folder_.filePath("radio").toStdString(); }
    void unplug() {
        arrival_.reset();
        link_.reset();
        terminal.reset();
    }
    void plugIn() {
        terminal = std::make_unique<simulator::PseudoTerminal>();
        connect();
    }

    // The bytes received since the last call, as one text.
    std::string takeReceived() {
        if (terminal) serve();
        std::string text;
        for (const auto& command : transceiver.received().commands()) text += command.text;
        transceiver.clearReceived();
        return text;
    }

    simulator::SimulatedTransceiver transceiver;
    std::unique_ptr<simulator::PseudoTerminal> terminal = std::make_unique<simulator::PseudoTerminal>();

private:
    simulator::Time now() const {
        return std::chrono::duration_cast<simulator::Time>(std::chrono::steady_clock::now() - start_);
    }

    void connect() {
        link_ = std::make_unique<simulator::PortLink>(path(), terminal->path());
        arrival_ = std::make_unique<QSocketNotifier>(terminal->descriptor(), QSocketNotifier::Read);
        QObject::connect(arrival_.get(), &QSocketNotifier::activated, arrival_.get(), [this] { serve(); });
    }

    void arm() {
        const auto event = transceiver.nextEvent();
        if (event)
            next_.start(
                std::max(std::chrono::milliseconds(0), std::chrono::ceil<std::chrono::milliseconds>(*event - now())));
    }

    const std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
    const QTemporaryDir folder_;
    std::unique_ptr<simulator::PortLink> link_;
    std::unique_ptr<QSocketNotifier> arrival_;
    QTimer next_;
};

}  // namespace corvane

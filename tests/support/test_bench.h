// The program on a test bench: a controller with fake surroundings, awake and connected to an open port.
#pragma once

#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "controller/serial_port_demo_controller.h"
#include "tests/support/rows.h"
#include "tests/support/surroundings.h"

namespace corvane {

using Writes = std::vector<std::string>;
using ControlNames = std::set<std::string>;  // "m20Button", "tag2007"

class TestBench {
    ControlNames changed_;
    ChangeQueue changes_;
    std::vector<ViewHandle> views_;

public:
    explicit TestBench(MapSettingsStore::Values stored = {}) : controller(platformWith(std::move(stored)), hosts()) {
        controller.awakeFromNib();
        controller.setSerialPort(port);
        display.openCloseButton.performClick();
        for (Control* control : display.controls())
            views_.push_back(control->addView(changes_, [this, control] { changed_.insert(control->objectName()); }));
        forgetWhatHappened();
    }

    void receive(std::string_view bytes) { port->receive(bytes); }
    // Presses the key whose first tag this is.
    void press(int firstTag) { display.key(firstTag).performClick(); }
    // Sets the preference with this settings key, as if the operator had chosen the value.
    void switchTo(std::string_view key, std::string_view value) {
        around.settings.setText(key, value);
        controller.preferences.restore();
    }
    void advance(Scheduler::Duration time) { around.scheduler.advance(time); }

    // Lets the steps after the opening run without any answer.
    void outlastOpening() {
        advance(std::chrono::seconds(13));
        forgetWhatHappened();
    }

    // Each gives what has happened since its last call.
    Writes takeWrites() { return std::exchange(port->written, {}); }
    std::vector<std::string> takeSpoken() { return std::exchange(around.speech.spoken, {}); }
    std::vector<std::string> takeSounds() { return std::exchange(around.sounds.played, {}); }
    ControlNames takeChanges() {
        changes_.refresh();
        return std::exchange(changed_, {});
    }
    void forgetWhatHappened() {
        takeWrites();
        takeSpoken();
        takeSounds();
        takeChanges();
    }

    static ServiceHosts hosts() {
        ServiceHosts hosts;
        hosts.webSite = "https://site.example";
        return hosts;
    }

    // The band keys that are lit: at most one is right.
    std::vector<int> markedBands() const {
        std::vector<int> tags;
        for (const Button* button : display.bandButtons)
            if (button->bezelColor() != Color::none) tags.push_back(button->tag());
        return tags;
    }

    Surroundings around;
    const std::shared_ptr<FakeSerialPort> port = std::make_shared<FakeSerialPort>("ttyUSB0");
    SerialPortDemoController controller;
    Display& display = controller.display;
    const RadioState& radio = controller.mirror.state();

private:
    Platform platformWith(MapSettingsStore::Values stored) {
        around.settings.values = std::move(stored);
        around.portManager.ports = {port};
        return around.platform();
    }
};

}  // namespace corvane

// What is heard: the voice guide and the program's own sounds behind their switches, the named alerts in any case.
#include "controller/serial_port_demo_controller.h"

namespace corvane {

void SerialPortDemoController::speak(std::string_view text) {
    if (preferences.vqVoiceGuide == "1") synth.speak(text, synthVoice);
}

void SerialPortDemoController::playSound(std::string_view name) {
    if (preferences.vqSounds == "1") platform_.sounds.playFile(name);
}

void SerialPortDemoController::playSystemSound(std::string_view name) { platform_.sounds.playAlert(name); }

void SerialPortDemoController::showHelp() { platform_.browser.open(hosts_.helpPage()); }

}  // namespace corvane

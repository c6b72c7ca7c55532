#include <charconv>

#include "controller/serial_port_demo_controller.h"
#include "controls/operator_classes.h"

namespace corvane {

// Text that is no number is on no amateur band.
void SerialPortDemoController::showOperatorClass(std::string_view megahertz) {
    float frequency = 0;
    std::from_chars(megahertz.data(), megahertz.data() + megahertz.size(), frequency);
    const OperatorClass& allowed = operatorClass(frequency);
    display.licenseClassButton.setTitle(allowed.title);
    display.licenseClassButton.setBezelColor(allowed.color);
    display.licenseClassButton.setVisible(true);
}

}  // namespace corvane

#include "controls/operator_class_button.h"

#include <charconv>

#include "controls/operator_classes.h"

namespace corvane {

OperatorClassButton::OperatorClassButton(Display& display) : button_(display.licenseClassButton) {
    button_.setVisible(false);
}

void OperatorClassButton::showOperatorClass(std::string_view megahertz) {
    float frequency = 0;
    std::from_chars(megahertz.data(), megahertz.data() + megahertz.size(), frequency);
    const OperatorClass& allowed = operatorClass(frequency);
    button_.setTitle(allowed.title);
    button_.setBezelColor(allowed.color);
    button_.setVisible(true);
}

}  // namespace corvane

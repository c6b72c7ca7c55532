#include "controls/operator_class_button.h"

#include "controls/operator_classes.h"
#include "wire/decimal_number.h"

namespace corvane {

OperatorClassButton::OperatorClassButton(Display& display) : button_(display.licenseClassButton) {
    button_.setVisible(false);
}

void OperatorClassButton::showOperatorClass(std::string_view megahertz) {
    const OperatorClass& allowed = operatorClass(decimalNumber<float>(megahertz).value_or(0));
    button_.setTitle(allowed.title);
    button_.setBezelColor(allowed.color);
    button_.setVisible(true);
}

}  // namespace corvane

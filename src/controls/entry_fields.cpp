// What the operator types to be sent: a frequency and the call sign.
#include "controller/serial_port_demo_controller.h"
#include "controls/call_sign.h"
#include "controls/sendable_text.h"
#include "controls/typed_frequency.h"
#include "wire/cat_command.h"
#include "wire/tuning_range.h"

namespace corvane {

namespace {

// A VFO's title without its hertz: "14.250.000" gives "14.250".
std::string_view withoutHertz(std::string_view title) {
    return title.substr(0, title.size() > 4 ? title.size() - 4 : 0);
}

}  // namespace

void SerialPortDemoController::doTune(Button&) {
    TextField& field = display.freqTextField;
    const TypedFrequency typed = typedFrequency(field.stringValue());
    field.endEditing();
    // Whatever was typed, the field shows what is tuned; the transceiver's report brings the new frequency.
    showActiveFrequency();
    if (typed.verdict == TypedFrequency::Verdict::tooLowOrNoNumber)
        return showWarning(frequencyTooLow.message, frequencyTooLow.detail);
    if (typed.verdict == TypedFrequency::Verdict::tooHigh)
        return showWarning(frequencyTooHigh.message, frequencyTooHigh.detail);
    link.cmd = typed.upperSideBand ? "MD02;F" : "MD01;F";
    link.cmd += radio.vqAorB == "A" ? 'A' : 'B';
    link.cmd += zeroPadded(typed.hertz, 9) + ";SS0670000;";
    writeString(link.cmd);
    field.resignFirstResponder();
}

void SerialPortDemoController::showActiveFrequency() {
    const Button& active = radio.vqAorB == "A" ? display.vqFreqAButton : display.vqFreqBButton;
    display.freqTextField.setStringValue(withoutHertz(active.title()));
}

void SerialPortDemoController::returnPressedInFreqField(TextField& sender) {
    sender.resignFirstResponder();
    display.tuneButton.performClick();
}

void SerialPortDemoController::doCall(Button&) {
    TextField& field = display.callTextField;
    link.cmd = callSignCommand(field.stringValue());
    writeString(link.cmd);
    field.endEditing();
    field.setStringValue(upperCase(field.stringValue()));
    display.saveCallButton.setTitle("Saved");
    display.saveCallButton.setBezelColor(Color::green);
}

void SerialPortDemoController::returnPressedInCallField(TextField&) { display.saveCallButton.performClick(); }

// A text that the transceiver cannot hold is refused where it is typed, with the reason beside it.
bool SerialPortDemoController::acceptsText(const TextField& typed, TextField& notice) {
    const std::string reason = refusal(typed.stringValue());
    notice.setStringValue(reason);
    return reason.empty();
}

void SerialPortDemoController::showWarning(std::string_view message, std::string_view detail) {
    playSystemSound("Glass");
    platform_.alerts.warn(std::string(message).append("\n\n").append(detail));
}

}  // namespace corvane

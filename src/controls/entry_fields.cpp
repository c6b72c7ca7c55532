#include "controls/entry_fields.h"

#include "controls/call_sign.h"
#include "controls/typed_frequency.h"
#include "wire/cat_command.h"
#include "wire/letter_case.h"
#include "wire/tuning_range.h"

namespace corvane {

EntryFields::EntryFields(Display& display, Link& link, Mirror& mirror, Voice& voice)
    : display_(display), link_(link), mirror_(mirror), voice_(voice) {}

void EntryFields::doTune(Button&) {
    TextField& field = display_.freqTextField;
    const TypedFrequency typed = typedFrequency(field.stringValue());
    // The field goes back to the tuned frequency; the transceiver's report then brings the new one.
    mirror_.showActiveFrequency();
    if (typed.verdict == TypedFrequency::Verdict::tooLowOrNoNumber)
        return voice_.warn(frequencyTooLow.message, frequencyTooLow.detail);
    if (typed.verdict == TypedFrequency::Verdict::tooHigh)
        return voice_.warn(frequencyTooHigh.message, frequencyTooHigh.detail);
    const char vfo = mirror_.state().vqAorB == "A" ? 'A' : 'B';
    link_.write((typed.upperSideBand ? "MD02;F" : "MD01;F") + (vfo + zeroPadded(typed.hertz, 9)) + ";SS0670000;");
    display_.announcements.sayTuning();
    field.resignFirstResponder();
}

void EntryFields::returnPressedInFreqField(TextField& sender) {
    sender.resignFirstResponder();
    display_.tuneButton.performClick();
}

void EntryFields::doCall(Button&) {
    TextField& field = display_.callTextField;
    link_.write(callSignCommand(field.stringValue()));
    field.endEditing();
    field.setStringValue(upperCase(field.stringValue()));
    display_.saveCallButton.setTitle("Saved");
    display_.saveCallButton.setBezelColor(Color::green);
}

void EntryFields::returnPressedInCallField(TextField&) { display_.saveCallButton.performClick(); }

}  // namespace corvane

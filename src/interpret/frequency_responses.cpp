// The two VFOs as the transceiver reports them: frequencies, memory channels, mode, and which side is active.
#include "interpret/band_table.h"
#include "interpret/mirror.h"
#include "interpret/spoken_frequency.h"
#include "wire/memory_fields.h"
#include "wire/operating_modes.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

bool isFrequency(std::string_view digits) { return digits.size() == 9 && isAscii(digits); }

// "014250000" gives "14.250.000".
std::string dotted(std::string_view digits) {
    std::string shown = std::to_string(decimalOrZero(digits.substr(0, 3)));
    return shown.append(".").append(digits.substr(3, 3)).append(".").append(digits.substr(6, 3));
}

// A VFO's title without its hertz: "14.250.000" gives "14.250".
std::string_view withoutHertz(std::string_view title) {
    return title.substr(0, title.size() > 4 ? title.size() - 4 : 0);
}

}  // namespace

Mirror::Mirror(Display& display, Link& link, Voice& voice) : display_(display), link_(link), voice_(voice) {
    disableTextMemoryControls();
    setActiveVfo(state_.vqAorB);
}

struct Mirror::Side {
    std::string_view commandName;  // of its frequency report
    std::string& frequency;        // vqFreqA or vqFreqB
    std::string& tunedBy;          // vqModeA or vqModeB
    std::string& spoken;           // vqVFOA or vqVFOB
    std::string& received;
    Button& frequencyButton;
    Button& otherFrequencyButton;
    Color highlight;
    std::string_view vfo;
};

Mirror::Side Mirror::side(char vfo) {
    if (vfo == 'A')
        return {"FA",       state_.vqFreqA,         state_.vqModeA,         state_.vqVFOA,
                receivedA_, display_.vqFreqAButton, display_.vqFreqBButton, Color::red,
                "A"};
    return {"FB",       state_.vqFreqB,         state_.vqModeB,         state_.vqVFOB,
            receivedB_, display_.vqFreqBButton, display_.vqFreqAButton, Color::green,
            "B"};
}

void Mirror::takeFrequencyA(std::string_view response) { takeFrequency(response, 'A'); }
void Mirror::takeFrequencyB(std::string_view response) { takeFrequency(response, 'B'); }

void Mirror::takeFrequency(std::string_view response, char vfo) {
    const Side reported = side(vfo);
    reported.frequency = without(response, reported.commandName);
    const std::string_view digits = reported.frequency;
    if (!isFrequency(digits)) return;
    highlightBand(decimalOrZero(digits));
    reported.received = digits;

    const std::string shown = dotted(digits);
    std::string exact = shown;
    exact.erase(exact.rfind('.'), 1);
    display_.freqTextField.setStringValue(withoutHertz(shown));
    setActiveVfo(reported.vfo);
    if (reported.tunedBy == "vfo") {
        reported.spoken = spokenFrequency(digits);
        reported.frequencyButton.setTitle(shown);
    }
    showChannelFrequency(vfo);
    link_.sendCommand("GT0;RA0;RF0;");
    onFrequency(exact);
}

void Mirror::takeMemoryChannel(std::string_view response) {
    if (response.size() < 5 || !isAscii(lastOf(response, 3))) return;
    state_.vqMemCh = state_.vqMemChA = state_.vqMemChB = lastOf(response, 3);
    if (state_.vqAorB != "A") return;
    display_.vqMemAButton.setTitle("  M-" + state_.vqMemCh.substr(1) + ' ' + state_.vqMemATag);
}

void Mirror::takeInformation(std::string_view response) { takeSideInformation(response, 'A'); }
void Mirror::takeOppositeInformation(std::string_view response) { takeSideInformation(response, 'B'); }

// The VFO keys keep their titles meanwhile.
void Mirror::showChannelFrequency(char vfo) {
    const Side shown = side(vfo);
    TextField& field = vfo == 'A' ? display_.channelFrequencyAField : display_.channelFrequencyBField;
    const bool known = shown.tunedBy == "memory" && !shown.received.empty();
    field.setStringValue(known ? dotted(shown.received) : std::string());
}

void Mirror::takeSideInformation(std::string_view response, char vfo) {
    const std::string_view channel = positions(response, 3, 3);
    if (channel.size() != 3 || !isAscii(channel)) return;
    const Side reported = side(vfo);
    Button& memory = display_.vqMemAButton;
    if (channel == "000") {
        memory.setBezelColor(Color::none);
        reported.frequencyButton.setBezelColor(reported.highlight);
        reported.otherFrequencyButton.setBezelColor(Color::none);
        setTunedBy(vfo, "vfo");
        return;
    }
    if (const auto digits = positions(response, 6, 9); isFrequency(digits)) reported.received = digits;
    setTunedBy(vfo, "memory");
    const std::string number(channel.substr(1));
    if (channel.starts_with('5')) {
        memory.setTitle("  5-" + number);
        memory.setBezelColor(Color::brown);
    } else {
        const int index = decimal(number).value_or(1) - 1;
        if (index < 0 || index >= memoryChannels) return;
        memory.setTitle("  M-" + number + ' ' + tagOfChannel(index));
        memory.setBezelColor(Color::purple);
        display_.memPopUpButton.selectItem(index);
    }
    display_.vqFreqAButton.setBezelColor(Color::none);
    display_.vqFreqBButton.setBezelColor(Color::none);
}

void Mirror::takeMode(std::string_view response) {
    const char code = response.back();
    if (const auto name = modeName(code)) state_.vqMode = *name;
    display_.modeField.setStringValue(state_.vqMode);
    display_.modesPopUpButton.selectItem(modePopUpIndex(code));
    const ModeGroup* group = modeGroup(code);
    display_.sendBox.setTitle(group ? group->boxTitle : noModeGroupBoxTitle);
    if (group) {
        link_.sendCommand(group->memoryRequests);
        enableTextMemoryControls();
    } else {
        disableTextMemoryControls();
    }
}

void Mirror::takeVfoASelected(std::string_view) { setActiveVfo("A"); }
void Mirror::takeVfoBSelected(std::string_view) { setActiveVfo("B"); }

// Outside a read of all channels, the response is about the channel in use.
void Mirror::takeMemoryInUse(std::string_view response) {
    if (!isAscii(response)) return;
    state_.vqMemFreq = positions(response, 6, 9);
    std::string_view tag = lastOf(response, tagLength);
    while (!tag.empty() && trimmed(tag.substr(tag.size() - 1)).empty()) tag.remove_suffix(1);
    if (state_.vqAorB == "A") {
        state_.vqMemATag = tag;
        display_.vqMemAButton.setTitle("  M-" + std::string(lastOf(state_.vqMemChA, 2)) + ' ' + state_.vqMemATag);
        setTunedBy('A', state_.vqMemFreq == state_.vqFreqA ? "memory" : "vfo");
    } else if (state_.vqAorB == "B") {
        state_.vqMemBTag = tag;
        setTunedBy('B', state_.vqMemFreq == state_.vqFreqB ? "memory" : "vfo");
    }
}

void Mirror::setTunedBy(char vfo, std::string_view by) {
    side(vfo).tunedBy = by;
    showChannelFrequency(vfo);
}

void Mirror::showActiveFrequency() {
    const Button& active = state_.vqAorB == "A" ? display_.vqFreqAButton : display_.vqFreqBButton;
    display_.freqTextField.endEditing();
    display_.freqTextField.setStringValue(withoutHertz(active.title()));
}

void Mirror::setActiveVfo(std::string_view vfo) {
    state_.vqAorB = vfo;
    display_.activeVfoField.setStringValue(vfo);
}

void Mirror::clearBandButtons() {
    for (Button* button : display_.bandButtons) button->setBezelColor(Color::none);
}

void Mirror::highlightBand(int frequency) {
    const Button& marked = display_.key(bandKeyTag(frequency));
    for (Button* button : display_.bandButtons) button->setBezelColor(button == &marked ? Color::blue : Color::none);
}

void Mirror::enableTextMemoryControls() {
    for (Button* button : display_.textMemoryButtons) button->setEnabled(true);
    display_.textMemoryField.setEnabled(true);
    display_.sendTextMemoryButton.setEnabled(true);
    display_.sendTextMemoryButton.setBezelColor(Color::blue);
    display_.clearTextMemoryButton.setEnabled(true);
    display_.sendBox.setTitleColor(Color::none);
}

void Mirror::disableTextMemoryControls() {
    for (Button* button : display_.textMemoryButtons) button->setEnabled(false);
    display_.textMemoryField.setEnabled(false);
    display_.sendTextMemoryButton.setEnabled(false);
    display_.sendTextMemoryButton.setBezelColor(Color::darkGray);
    display_.clearTextMemoryButton.setEnabled(false);
    display_.sendBox.setTitleColor(Color::gray);
}

}  // namespace corvane

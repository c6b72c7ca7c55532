// The mirror of the transceiver: it keeps what the transceiver reports, and shows it in the controls. There is one
// operation for each kind of response; a response comes without its ";".
//
//   frequency and mode   FA FB MC IF OI MD VS, the channel in use   interpret/frequency_responses.cpp
//   operating state      meters, gains, switches, texts             interpret/operating_state_responses.cpp
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>

#include "app/voice.h"
#include "display/display.h"
#include "interpret/radio_state.h"
#include "radio/link.h"

namespace corvane {

class Mirror {
public:
    Mirror(Display& display, Link& link, Voice& voice);

    // Called by the mirror with the frequency in MHz: "14.250000".
    std::function<void(std::string_view megahertz)> onFrequency = [](std::string_view) {};
    // Gives the tag of a memory channel; rows count from 0. The mirror and the memory pop-up ask.
    std::function<std::string(int row)> tagOfChannel = [](int) { return std::string(); };

    const RadioState& state() const { return state_; }
    // The frequency of the active VFO, nine digits of hertz; empty before the first report.
    const std::string& activeFrequency() const { return state_.vqAorB == "A" ? state_.vqFreqA : state_.vqFreqB; }

    // --- frequency and mode
    void takeFrequencyA(std::string_view response);           // "FA014250000"
    void takeFrequencyB(std::string_view response);           // "FB007074000"
    void takeMemoryChannel(std::string_view response);        // "MC006"
    void takeInformation(std::string_view response);          // "IF000014155000+012010200000", side A
    void takeOppositeInformation(std::string_view response);  // the same with "OI", side B
    void takeMode(std::string_view response);                 // "MD02"
    void takeVfoASelected(std::string_view response);         // "VS0"
    void takeVfoBSelected(std::string_view response);         // "VS1"
    void takeMemoryInUse(std::string_view response);          // "MR001014250000+000000210000" outside a read
    void setActiveVfo(std::string_view vfo);                  // "A" or "B"
    void setTunedBy(char vfo, std::string_view by);           // 'A' or 'B'; "vfo" or "memory"
    void showActiveFrequency();         // in the field for a typed frequency, in place of what was typed
    void highlightBand(int frequency);  // hertz
    void clearBandButtons();
    void enableTextMemoryControls();
    void disableTextMemoryControls();

    // --- operating state
    void takeSignal(std::string_view chunk);                   // every "RM1100000" in "RM1100000;FA014250000;"
    void takeKeyerMemory(std::string_view response);           // "KM2CQ CQ DE N0CALL"
    void takeTextMemory(std::string_view response);            // "EM15TEXT"
    void takePreAmplifier(std::string_view response);          // "PA01"
    void takeNoiseBlankerLevel(std::string_view response);     // "NL0005"
    void takeNoiseReductionLevel(std::string_view response);   // "RL012"
    void takeAgc(std::string_view response);                   // "GT04"
    void takeAttenuator(std::string_view response);            // "RA00"
    void takeMeter(std::string_view response);                 // "RM1100000"
    void takeAFGain(std::string_view response);                // "AG0128"
    void takeRFGain(std::string_view response);                // "RG0255"
    void takeMeterSelection(std::string_view response);        // "MS50"
    void takePower(std::string_view response);                 // "PC050"
    void takeMultiKnob(std::string_view response);             // "SF03"
    void takeFunctionKnob(std::string_view response);          // "SF1H"
    void takeScopeSpeed(std::string_view response);            // "SS0010000"
    void takeScopePeak(std::string_view response);             // "SS0120000"
    void takeScopeColor(std::string_view response);            // "SS03A0000"
    void takeScopeLevel(std::string_view response);            // "SS04+10.5"
    void takeScopeSpan(std::string_view response);             // "SS0570000"
    void takeSpectrumMode(std::string_view response);          // "SS06B0000"
    void takeSwitchedOff(std::string_view response);           // "PS0"
    void takeNoiseReductionSwitch(std::string_view response);  // "NR01": asks for the level; "NR00": shows OFF
    void takeNoiseBlankerSwitch(std::string_view response);    // "NB01", likewise
    void takeSwitch(std::string_view response);                // "BC01", "CO000001", "BP00001", "BI1"
    void setMuted(bool muted) { state_.vqMuted = muted ? 1 : 0; }
    // Remembers the text of memory 5 of this mode group, if it has been reported: typed texts are sent through that
    // memory, which then gets its own text back.
    void rememberScratchMemory(const ModeGroup& group);

private:
    struct Side;  // the fields and controls of VFO A or B
    Side side(char vfo);
    void takeFrequency(std::string_view response, char vfo);
    void takeSideInformation(std::string_view response, char vfo);
    void showChannelFrequency(char vfo);
    void takeMemoryText(const ModeGroup& group, int memory, std::string_view text);

    Display& display_;
    Link& link_;
    Voice& voice_;
    RadioState state_;
    // What side A and side B receive, nine digits of hertz, by their latest report of any kind.
    std::string receivedA_;
    std::string receivedB_;
};

}  // namespace corvane

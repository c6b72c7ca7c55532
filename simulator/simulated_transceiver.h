#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <random>
#include <string>
#include <string_view>

#include "simulator/command_assembler.h"
#include "simulator/command_set.h"
#include "simulator/knob_spin.h"
#include "simulator/radio_state.h"
#include "simulator/received_log.h"
#include "simulator/reports.h"
#include "simulator/transmission.h"
#include "simulator/transmit_line.h"

namespace simulator {

// What is wrong with the link. Silent: neither answers nor reports. Cut: each in two pieces. Late: each a second late.
// Noise: bursts of random bytes, never a ";", between what is sent. Unplugged: nothing goes either way.
struct Faults {
    bool silent = false;
    bool cutAnswers = false;
    bool lateAnswers = false;
    bool noise = false;
    bool unplugged = false;

    bool operator==(const Faults&) const = default;
};

// A transceiver on the other end of a serial line. Commands go in by receive(), answers and reports come out by
// `transmit`. It has no clock of its own: times count from its start, never run back, and come in with receive() and
// advanceTo(); whoever runs it calls advanceTo() at nextEvent(). Anything may be called from within `transmit`.
class SimulatedTransceiver {
public:
    explicit SimulatedTransceiver(RadioState state);
    SimulatedTransceiver();

    // Called with the bytes that go out, "FA014250000;" or a piece of it. Set by the owner.
    std::function<void(std::string_view)> transmit;

    // Takes bytes from the line, cut anywhere.
    void receive(std::string_view bytes, Time now);
    // When advanceTo() has something to do; nothing while the transceiver only waits.
    std::optional<Time> nextEvent() const;
    void advanceTo(Time now);

    // Answers within receive(), without delay, for tests that have no clock.
    void setInstantAnswers(bool instant);

    const Faults& faults() const { return faults_; }
    void setFaults(const Faults& faults);
    void loseNextAnswer() { loseNextAnswer_ = true; }
    // The series of random bytes that noise takes.
    void seedNoise(unsigned seed) { random_.seed(seed); }
    // Puts bytes on the line as they are.
    void sendRaw(std::string_view bytes);

    // A hand on the front panel, at the time last told. Changes are reported while auto information is on. What returns
    // false was refused, as a switched-off transceiver refuses everything but its power key.
    bool tune(int hertz);
    bool tuneBy(int hertz);
    bool setMode(char code);
    bool setPower(int watts);
    bool setAfGain(int gain);
    // One or more commands, "NB01;PA02;", carried out as if by its own keys: not logged and not answered.
    bool operate(std::string_view commands);
    // Makes a signal heard, level 0 to 255 (others are cut to that), so many hertz beside the dial.
    void hear(int level, int offset = 0);
    bool spin(Time duration);
    bool programChannel(int number, const MemoryChannel& channel);
    bool clearChannel(int number);
    void setPowered(bool powered);

    // What a read would be answered: "AG0;" gives "AG0080;"; "?;" for what it does not know.
    std::string ask(std::string_view command) const;

    const RadioState& state() const { return state_; }
    const ReceivedLog& received() const { return received_; }
    void clearReceived() { received_.clear(); }
    // The texts that went over the air, oldest first, the last 1,000. One is listed when its sending begins.
    const std::deque<std::string>& textsOnAir() const { return textsOnAir_; }

private:
    class Turn;

    bool byHand(const std::function<bool()>& action);
    Reply carryOut(std::string_view command, Time ready);
    void handle(std::string_view command);
    void answer(std::string text, Time ready);
    void reportChanges(bool reporting, Time ready);
    void report(const std::string& text, Time ready);
    void catchUp(Time now);
    void handlePending();
    void fireEvents();
    void sendDue();
    void send(std::string_view bytes);
    void beginTransmission();
    void endTransmission();
    void stopEverything();
    void spinOn();
    void sendNoise();

    RadioState state_;
    Reports reports_;
    CommandAssembler assembler_;
    TransmitLine line_;
    ReceivedLog received_;
    KnobSpin spin_;
    int spinStep_ = 10;
    Faults faults_;
    bool loseNextAnswer_ = false;
    bool busy_ = false;
    Time now_{};
    std::string pending_;
    std::deque<Transmission> transmissions_;
    std::optional<Time> transmissionEnd_;
    std::deque<std::string> textsOnAir_;
    std::optional<Time> nextNoise_;
    std::minstd_rand random_{7};
};

}  // namespace simulator

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

// Faults of the link. Silent: no answers and no reports. Cut: each in two pieces. Late: each a second late. Noise:
// bursts of random bytes, never a ";", between messages. Lossy: one answer or report in eight is lost. Unplugged: no
// bytes in either direction.
struct Faults {
    bool silent = false;
    bool cutAnswers = false;
    bool lateAnswers = false;
    bool noise = false;
    bool lossy = false;
    bool unplugged = false;

    bool operator==(const Faults&) const = default;
};

// A transceiver on the other end of a serial line. Commands go in through receive(), answers and reports come out
// through `transmit`. It has no clock: the owner passes the time, counted from the start, to receive() and advanceTo(),
// and calls advanceTo() at nextEvent(). Times never go back. Anything may be called from within `transmit`.
class SimulatedTransceiver {
public:
    explicit SimulatedTransceiver(RadioState state);
    SimulatedTransceiver();

    // Called with the bytes that go out, "FA014250000;" or a piece of it. Set by the owner.
    std::function<void(std::string_view)> transmit;

    // Takes bytes from the line, cut anywhere.
    void receive(std::string_view bytes, Time now);
    // The next time at which advanceTo() has something to do; nothing while the transceiver only waits for commands.
    std::optional<Time> nextEvent() const;
    void advanceTo(Time now);

    // Answers within receive(), without delay, for tests that have no clock.
    void setInstantAnswers(bool instant);

    const Faults& faults() const { return faults_; }
    void setFaults(const Faults& faults);
    void loseNextAnswer() { loseNextAnswer_ = true; }
    // The seed of the random bytes of noise, and of what is lost.
    void seedNoise(unsigned seed) { random_.seed(seed); }
    // Sends bytes unchanged.
    void sendRaw(std::string_view bytes);

    // The operator at the front panel, at the time last passed. Changes are reported while auto information is on.
    // False means refused: a switched-off transceiver refuses everything but its power key.
    bool tune(int hertz);
    bool tuneBy(int hertz);
    bool setMode(char code);
    bool setPower(int watts);
    bool setAfGain(int gain);
    // Carries out one or more commands, "NB01;PA02;", as if by its own keys: not logged and not answered.
    bool operate(std::string_view commands);
    // Puts a signal on the air: level clamped to 0 to 255, `offset` in hertz from the dial frequency.
    void hear(int level, int offset = 0);
    bool spin(Time duration);
    bool programChannel(int number, const MemoryChannel& channel);
    bool clearChannel(int number);
    void setPowered(bool powered);

    // The answer to a read command: "AG0;" gives "AG0080;"; an unknown command gives "?;".
    std::string ask(std::string_view command) const;

    const RadioState& state() const { return state_; }
    const ReceivedLog& received() const { return received_; }
    void clearReceived() { received_.clear(); }
    // The last 1,000 texts sent over the air, oldest first. A text is listed when its sending begins.
    const std::deque<std::string>& textsOnAir() const { return textsOnAir_; }

private:
    class Turn;

    bool byHand(const std::function<bool()>& action);
    Reply carryOut(std::string_view command, Time ready);
    void handle(std::string_view command);
    void answer(std::string text, Time ready);
    void reportChanges(bool reporting, Time ready);
    void report(const std::string& text, Time ready);
    bool loses();
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

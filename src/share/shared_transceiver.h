// The transceiver as other programs see it: what it has reported, what they set, and which of them has keyed it.
// Reading what is known costs the line nothing; what is not known is asked for once. The doors to other programs stand
// on it: the rigctl server and the virtual port; the switch "may transmit" holds for both.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/tasks.h"
#include "radio/link.h"
#include "share/paced_commands.h"
#include "share/shared_item.h"
#include "share/shared_values.h"

namespace corvane {

class SharedTransceiver {
public:
    enum class Contact { closed, off, silent, present };

    static constexpr ShareTime beat{50};             // the room's clock stands still while nobody needs it
    static constexpr ShareTime patience{450};        // for the answer to a question
    static constexpr ShareTime retry{1000};          // before a question without an answer is asked again
    static constexpr std::size_t mostWaiting = 128;  // bytes on their way to the line beyond which settings wait

    SharedTransceiver(Link& link, Scheduler& scheduler);
    ~SharedTransceiver() { unkey(); }

    // Called by it:
    std::function<void()> onAnswered = [] {};  // a question has been answered, or will not be
    std::function<void()> onVfoChanged = [] {
    };                                      // at the front panel, by the operator here, or by a report that came late
    std::function<void()> onKeyed = [] {};  // who has keyed the transceiver has changed
    std::function<void()> onBeat = [] {};   // every 50 ms while something is going on

    // --- what happens on the line
    void takeResponse(std::string_view response);  // each, without its ";"
    void noteSent(std::string_view command);
    void portOpened();
    void portClosing();  // commands still leave: a program's transmission ends
    void portClosed();

    // --- reading
    Contact contact();  // asks a transceiver that was silent or off, at most once a second, whether it is back
    std::optional<int> value(Item item) const { return values_.value(item, now_); }
    // As the transceiver itself has reported it, not as a program has set it. Nothing while it is out of reach or does
    // not report changes: then the value may be another one by now.
    std::optional<int> reported(Item item) const;
    // Asks for a value that is not known; false when nothing more will come.
    bool ask(Item item);
    bool reportsChanges() const { return values_.reporting(); }  // by itself: what is known is certain
    bool asked(Item item) const { return questions_[index(item)].asked.has_value(); }

    // --- setting, as fast as the line carries
    void set(Item item, int value, std::string command);
    void assume(Item item, int value);          // what a command changes along with its own item
    void send(Item kind, std::string command);  // nothing is known of it beforehand
    void forget(Item item) { values_.forget(item); }
    bool settingsWait() const { return !paced_.empty(); }  // for their turn on the line
    bool congested() const { return link_.waitingBytes() > mostWaiting; }

    // --- transmitting
    void key(unsigned program);
    void release(unsigned program);          // unkeys if this program has keyed
    void tune() { send(tuning, "AC002;"); }  // the antenna tuner, which transmits
    void cancelTuning();                     // one that has not left yet
    void unkey();                            // at once, whoever has keyed; nothing is sent if no program has
    std::optional<unsigned> keyedBy() const { return keyedBy_; }
    bool onAir() const { return value(Item::transmit).value_or(0) != 0; }

    ShareTime now() const { return now_; }
    void noteActivity();  // keeps the clock going for a second

private:
    // In the queue the tuner has a place of its own: a signal report is never sent, so that nothing else takes it.
    static constexpr Item tuning = Item::signal;

    struct Question {
        std::optional<ShareTime> asked;
        unsigned heard = 0;  // what had been heard by then
        ShareTime again{};   // not before this time
    };
    void take(Item item, int value);
    void comeBack();
    void wake();
    void tick();
    bool busy() const;
    void pump();
    void expireQuestions();
    void doubtReporting();
    void setKeyedBy(std::optional<unsigned> program);

    Link& link_;
    Tasks tasks_;
    SharedValues values_;
    PacedCommands paced_;
    std::array<Question, itemCount> questions_{};
    std::optional<unsigned> keyedBy_;
    bool unkeyOwed_ = false;  // "TX0;" may not have reached the transceiver: the next opening sends it
    bool open_ = false;
    bool reportingInDoubt_ = true;
    bool silent_ = false;
    bool off_ = false;
    bool ticking_ = false;
    ShareTime now_{0};
    unsigned heard_ = 0;  // responses
    ShareTime activeUntil_{0};
    ShareTime nextProbe_{0};
};

}  // namespace corvane

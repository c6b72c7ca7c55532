// Splits chunks of bytes into responses, and passes each response to the one handler of its command name.
#include <algorithm>
#include <array>
#include <variant>

#include "controller/serial_port_demo_controller.h"
#include "wire/cat_command.h"
#include "wire/utf8.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

struct EndOfChunk {};  // the rest of the chunk is ignored

// An operation of one of the rooms.
using Handler = std::variant<EndOfChunk, void (Mirror::*)(std::string_view), void (SetupMenu::*)(std::string_view),
                             void (MemoryChannels::*)(std::string_view)>;

struct ResponseRow {
    enum class Test { prefix, equals };

    std::string_view text;
    Test test;
    Handler handler;
};

constexpr ResponseRow::Test prefix = ResponseRow::Test::prefix;
constexpr ResponseRow::Test equals = ResponseRow::Test::equals;

constexpr std::array responseTable{
    ResponseRow{"AG", prefix, &Mirror::takeAFGain},
    ResponseRow{"BC00", equals, &Mirror::takeSwitch},
    ResponseRow{"BC01", equals, &Mirror::takeSwitch},
    ResponseRow{"BI0", equals, &Mirror::takeSwitch},
    ResponseRow{"BI1", equals, &Mirror::takeSwitch},
    ResponseRow{"BP00000", equals, &Mirror::takeSwitch},
    ResponseRow{"BP00001", equals, &Mirror::takeSwitch},
    ResponseRow{"CO000000", equals, &Mirror::takeSwitch},
    ResponseRow{"CO000001", equals, &Mirror::takeSwitch},
    ResponseRow{"EM", prefix, &Mirror::takeTextMemory},
    ResponseRow{"EX", prefix, &SetupMenu::takeMenuItem},
    ResponseRow{"FA", prefix, &Mirror::takeFrequencyA},
    ResponseRow{"FB", prefix, &Mirror::takeFrequencyB},
    ResponseRow{"GT", prefix, &Mirror::takeAgc},
    ResponseRow{"IF", prefix, &Mirror::takeInformation},
    ResponseRow{"KM", prefix, &Mirror::takeKeyerMemory},
    ResponseRow{"MC", prefix, &Mirror::takeMemoryChannel},
    ResponseRow{"MD0", prefix, &Mirror::takeMode},
    ResponseRow{"MR", prefix, &MemoryChannels::takeMemoryReply},
    ResponseRow{"MS", prefix, &Mirror::takeMeterSelection},
    ResponseRow{"MT", prefix, &MemoryChannels::takeTagReply},
    ResponseRow{"NB00", equals, &Mirror::takeNoiseBlankerSwitch},
    ResponseRow{"NB01", equals, &Mirror::takeNoiseBlankerSwitch},
    ResponseRow{"NL", prefix, &Mirror::takeNoiseBlankerLevel},
    ResponseRow{"NR00", equals, &Mirror::takeNoiseReductionSwitch},
    ResponseRow{"NR01", equals, &Mirror::takeNoiseReductionSwitch},
    ResponseRow{"OI", prefix, &Mirror::takeOppositeInformation},
    ResponseRow{"PA", prefix, &Mirror::takePreAmplifier},
    ResponseRow{"PC", prefix, &Mirror::takePower},
    ResponseRow{"PS0", equals, &Mirror::takeSwitchedOff},
    ResponseRow{"PS1", equals, EndOfChunk{}},
    ResponseRow{"RA", prefix, &Mirror::takeAttenuator},
    ResponseRow{"RG", prefix, &Mirror::takeRFGain},
    ResponseRow{"RL", prefix, &Mirror::takeNoiseReductionLevel},
    ResponseRow{"RM", prefix, &Mirror::takeMeter},
    ResponseRow{"SF0", prefix, &Mirror::takeMultiKnob},
    ResponseRow{"SF1", prefix, &Mirror::takeFunctionKnob},
    ResponseRow{"SS00", prefix, &Mirror::takeScopeSpeed},
    ResponseRow{"SS01", prefix, &Mirror::takeScopePeak},
    ResponseRow{"SS03", prefix, &Mirror::takeScopeColor},
    ResponseRow{"SS04", prefix, &Mirror::takeScopeLevel},
    ResponseRow{"SS05", prefix, &Mirror::takeScopeSpan},
    ResponseRow{"SS06", prefix, &Mirror::takeSpectrumMode},
    ResponseRow{"VS0", equals, &Mirror::takeVfoASelected},
    ResponseRow{"VS1", equals, &Mirror::takeVfoBSelected},
};

static_assert(std::ranges::is_sorted(responseTable, {}, &ResponseRow::text), "found by binary search");
static_assert(std::ranges::adjacent_find(responseTable,
                                         [](const ResponseRow& row, const ResponseRow& next) {
                                             return next.text.starts_with(row.text);
                                         }) == responseTable.end(),
              "no row begins another, so that a response passes one test at most");

// The row whose test the response passes, or nullptr. Because no row's text begins another's, only the last row that
// does not sort after the response can pass.
const ResponseRow* responseRow(std::string_view response) {
    const auto after = std::ranges::upper_bound(responseTable, response, {}, &ResponseRow::text);
    if (after == responseTable.begin()) return nullptr;
    const ResponseRow& row = *(after - 1);
    const bool passes = row.test == equals ? response == row.text : response.starts_with(row.text);
    return passes ? &row : nullptr;
}

// Hands a response to the room that takes it; returns whether the rest of the chunk is taken, too.
struct Taking {
    SerialPortDemoController& face;
    std::string_view response;

    bool operator()(EndOfChunk) const { return false; }
    bool operator()(void (Mirror::*take)(std::string_view)) const { return hand(face.mirror, take); }
    bool operator()(void (SetupMenu::*take)(std::string_view)) const { return hand(face.setupMenu, take); }
    bool operator()(void (MemoryChannels::*take)(std::string_view)) const { return hand(face.memories, take); }

private:
    template <typename Room>
    bool hand(Room& room, void (Room::*take)(std::string_view)) const {
        (room.*take)(response);
        return true;
    }
};

}  // namespace

void SerialPortDemoController::serialPortDidReceiveData(ORSSerialPort&, std::string_view bytes) {
    link.noteReceived(bytes);
    if (!isUtf8(bytes)) return;
    const auto reporting = display.report();
    mirror.takeSignal(bytes);
    interpretResponses(bytes);
    onAir.follow();
    link.noteAnswer();
    spotFilter.followBand();
}

void SerialPortDemoController::interpretResponses(std::string_view text) {
    bool goesOn = true;
    forEachPiece(text, [this, &goesOn](std::string_view piece) {
        if (!goesOn) return;
        const std::string joined =
            piece.find("\n\n") == std::string_view::npos ? std::string{} : without(piece, "\n\n");
        std::string_view response = joined.empty() ? piece : std::string_view(joined);
        if (!response.empty()) {
            sharedTransceiver.takeResponse(response);
            if (virtualPort.takeResponse(response)) return;
        }
        if (response.starts_with('?')) {
            const std::string_view refused = memories.refusedReply();
            if (!refused.empty())
                response = refused;
            else
                setupMenu.takeRefusal();
        }
        if (const ResponseRow* row = responseRow(response)) {
            goesOn = std::visit(Taking{*this, response}, row->handler);
            link.noteResponse(response);
        }
    });
}

}  // namespace corvane

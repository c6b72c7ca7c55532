// Chunks of bytes become responses, and each response goes to the one handler of its command name.
#include <algorithm>
#include <array>

#include "controller/serial_port_demo_controller.h"
#include "wire/cat_command.h"
#include "wire/utf8.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

using Controller = SerialPortDemoController;

struct ResponseRow {
    enum class Test { prefix, equals };

    std::string_view text;
    Test test;
    void (Controller::*handler)(std::string_view response);  // none: the response ends the chunk
};

constexpr ResponseRow::Test prefix = ResponseRow::Test::prefix;
constexpr ResponseRow::Test equals = ResponseRow::Test::equals;

constexpr std::array responseTable{
    ResponseRow{"AG", prefix, &Controller::readAFGain},
    ResponseRow{"BC00", equals, &Controller::readSwitch},
    ResponseRow{"BC01", equals, &Controller::readSwitch},
    ResponseRow{"BI0", equals, &Controller::readSwitch},
    ResponseRow{"BI1", equals, &Controller::readSwitch},
    ResponseRow{"BP00000", equals, &Controller::readSwitch},
    ResponseRow{"BP00001", equals, &Controller::readSwitch},
    ResponseRow{"CO000000", equals, &Controller::readSwitch},
    ResponseRow{"CO000001", equals, &Controller::readSwitch},
    ResponseRow{"EM", prefix, &Controller::readTextMemory},
    ResponseRow{"EX", prefix, &Controller::readMenuItem},
    ResponseRow{"FA", prefix, &Controller::readFrequencyA},
    ResponseRow{"FB", prefix, &Controller::readFrequencyB},
    ResponseRow{"GT", prefix, &Controller::readAgc},
    ResponseRow{"IF", prefix, &Controller::readInformation},
    ResponseRow{"KM", prefix, &Controller::readKeyerMemory},
    ResponseRow{"MC", prefix, &Controller::readMemoryChannel},
    ResponseRow{"MD0", prefix, &Controller::readMode},
    ResponseRow{"MR", prefix, &Controller::readMemoryReply},
    ResponseRow{"MS", prefix, &Controller::readMeterSelection},
    ResponseRow{"MT", prefix, &Controller::readTagReply},
    ResponseRow{"NB00", equals, &Controller::readNoiseBlankerSwitch},
    ResponseRow{"NB01", equals, &Controller::readNoiseBlankerSwitch},
    ResponseRow{"NL", prefix, &Controller::readNoiseBlankerLevel},
    ResponseRow{"NR00", equals, &Controller::readNoiseReductionSwitch},
    ResponseRow{"NR01", equals, &Controller::readNoiseReductionSwitch},
    ResponseRow{"OI", prefix, &Controller::readOppositeInformation},
    ResponseRow{"PA", prefix, &Controller::readPreAmplifier},
    ResponseRow{"PC", prefix, &Controller::readPower},
    ResponseRow{"PS0", equals, &Controller::readSwitchedOff},
    ResponseRow{"PS1", equals, nullptr},
    ResponseRow{"RA", prefix, &Controller::readAttenuator},
    ResponseRow{"RG", prefix, &Controller::readRFGain},
    ResponseRow{"RL", prefix, &Controller::readNoiseReductionLevel},
    ResponseRow{"RM", prefix, &Controller::readMeter},
    ResponseRow{"SF0", prefix, &Controller::readMultiKnob},
    ResponseRow{"SF1", prefix, &Controller::readFunctionKnob},
    ResponseRow{"SS00", prefix, &Controller::readScopeSpeed},
    ResponseRow{"SS01", prefix, &Controller::readScopePeak},
    ResponseRow{"SS03", prefix, &Controller::readScopeColor},
    ResponseRow{"SS04", prefix, &Controller::readScopeLevel},
    ResponseRow{"SS05", prefix, &Controller::readScopeSpan},
    ResponseRow{"SS06", prefix, &Controller::readSpectrumMode},
    ResponseRow{"VS0", equals, &Controller::readVfoASelected},
    ResponseRow{"VS1", equals, &Controller::readVfoBSelected},
};

static_assert(std::ranges::is_sorted(responseTable, {}, &ResponseRow::text), "found by binary search");
static_assert(std::ranges::adjacent_find(responseTable,
                                         [](const ResponseRow& row, const ResponseRow& next) {
                                             return next.text.starts_with(row.text);
                                         }) == responseTable.end(),
              "no row begins another, so that a response passes one test at most");

// The row whose test the response passes. As no row's text begins another's, it can only be the last one that does not
// come after the response.
const ResponseRow* responseRow(std::string_view response) {
    const auto after = std::ranges::upper_bound(responseTable, response, {}, &ResponseRow::text);
    if (after == responseTable.begin()) return nullptr;
    const ResponseRow& row = *(after - 1);
    const bool passes = row.test == equals ? response == row.text : response.starts_with(row.text);
    return passes ? &row : nullptr;
}

}  // namespace

void SerialPortDemoController::serialPortDidReceiveData(ORSSerialPort&, std::string_view bytes) {
    if (!isUtf8(bytes)) return;
    forEachPiece(bytes, [this](std::string_view piece) {
        if (piece.find('\n') == std::string_view::npos) {
            if (piece.starts_with("RM")) link.vqSignal = decimalOrZero(lastOf(piece, 6));
        } else if (const std::string joined = without(piece, "\n"); joined.starts_with("RM")) {
            link.vqSignal = decimalOrZero(lastOf(joined, 6));
        }
    });
    interpretResponses(bytes);
    if (!link.answered) {
        link.answered = true;
        showLinkStatus();
    }
}

void SerialPortDemoController::interpretResponses(std::string_view text) {
    bool ended = false;
    forEachPiece(text, [this, &ended](std::string_view piece) {
        if (ended) return;
        const std::string joined =
            piece.find("\n\n") == std::string_view::npos ? std::string{} : without(piece, "\n\n");
        std::string_view response = joined.empty() ? piece : std::string_view(joined);
        // An error answer to a memory request stands for a channel that could not be read; no channel has the number
        // 304.
        if (response.starts_with('?') && memories.vqMemRead == "run") response = "MR304";
        if (response.starts_with('?') && memories.vqTagRead == "run") response = "MT304";
        if (response.starts_with('?') && menuRead.takeRefusal()) showMenuReadProgress();
        const ResponseRow* row = responseRow(response);
        if (!row) return;
        if (row->handler)
            (this->*row->handler)(response);
        else
            ended = true;
    });
}

}  // namespace corvane

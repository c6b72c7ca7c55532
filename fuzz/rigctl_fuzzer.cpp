// Bytes from another program, cut anywhere, while the transceiver answers.
#include "fuzz/fuzz_target.h"
#include "share/rigctl_reader.h"
#include "tests/support/test_bench.h"

namespace corvane {

void fuzz(std::string_view input) {
    FakeProgram program;  // outlives the bench
    TestBench bench({{"share", "1"}, {"shareTransmit", input.empty() || input[0] % 2 == 0 ? "0" : "1"}});
    bench.around.loopback.connect(program);
    for (std::string_view rest = input; !rest.empty();) {
        const std::string_view chunk = rest.substr(0, static_cast<unsigned char>(rest[0]) % 32U + 1U);
        rest.remove_prefix(chunk.size());
        const std::string answer = program.ask(chunk);
        INVARIANT(answer.empty() || answer.back() == '\n' || answer.back() == ';' || answer.back() == '|' ||
                  answer.back() == ',');
        bench.receive("FA014250000;VS0;MD02;ST0;TX0;");
        bench.advance(std::chrono::milliseconds(60));
        for (const std::string& command : bench.takeWrites()) {
            INVARIANT(command.size() > 1 && command.back() == ';');
            INVARIANT(command != "TX1;" || bench.controller.preferences.shareTransmit());
        }
        if (!program.connected) bench.around.loopback.connect(program);
    }
    program.leave();
    INVARIANT(!bench.controller.sharedTransceiver.keyedBy());
    bench.advance(std::chrono::seconds(15));
}

}  // namespace corvane

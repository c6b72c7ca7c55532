// Bytes of a program at the virtual port, cut anywhere: nothing but whole commands reach the line, nothing grows, and
// without the operator's word nothing transmits or stores.
#include "fuzz/fuzz_target.h"
#include "share/port_reader.h"
#include "tests/support/test_bench.h"

namespace corvane {

void fuzz(std::string_view input) {
    TestBench bench({{"virtualPort", "1"}, {"shareTransmit", "0"}});
    bench.around.terminal.come();
    PortReader reader;
    // A first byte says how long the next piece is, so that the input itself decides where it is cut.
    for (std::string_view rest = input; !rest.empty();) {
        const std::string_view chunk = rest.substr(0, static_cast<unsigned char>(rest[0]) % 32U + 1U);
        rest.remove_prefix(chunk.size());
        reader.feed(chunk);
        while (const auto command = reader.next()) INVARIANT(command->size() <= PortReader::longestCommand);
        INVARIANT(reader.held() <= PortReader::longestCommand);
        const std::string answer = bench.around.terminal.ask(chunk);
        INVARIANT(answer.empty() || answer.back() == ';');
        bench.receive("FA014250000;");
        bench.receive("?;");
        bench.receive("AI1;");
        bench.advance(std::chrono::milliseconds(50));
        for (const std::string& command : bench.takeWrites()) {
            INVARIANT(command.size() > 1 && command.find(';') == command.size() - 1);
            for (const char* forbidden : {"TX1", "KY", "EN", "AC002", "MW", "QI"})
                INVARIANT(!command.starts_with(forbidden));
        }
    }
    bench.around.terminal.leave();
}

}  // namespace corvane

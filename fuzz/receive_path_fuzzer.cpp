// Bytes from the line, cut anywhere: whole responses through the assembler, raw chunks straight to the program.
#include "fuzz/fuzz_target.h"
#include "radio/response_assembler.h"
#include "tests/support/test_bench.h"
#include "wire/utf8.h"

namespace corvane {

void fuzz(std::string_view input) {
    TestBench bench;
    ResponseAssembler assembler([&](std::string_view response) {
        INVARIANT(!response.empty() && response.size() <= ResponseAssembler::limit);
        bench.receive(response);
    });
    // A first byte says how long the next piece is, so that the input itself decides where it is cut.
    for (std::string_view rest = input; !rest.empty();) {
        const std::string_view chunk = rest.substr(0, static_cast<unsigned char>(rest[0]) % 32U + 1U);
        rest.remove_prefix(chunk.size());
        assembler.feed(chunk);
        bench.receive(chunk);
        if (chunk.size() == 32) assembler.expire();
        for (const std::string& command : bench.takeWrites()) INVARIANT(command.size() > 1 && command.back() == ';');
        INVARIANT(bench.radio.vqFreqA.find(';') == std::string::npos);
        INVARIANT(bench.markedBands().size() <= 1);
        for (const FrontPanelKey& row : frontPanelKeys) INVARIANT(isUtf8(bench.display.key(row.outlet.tag).title()));
        INVARIANT(isUtf8(bench.display.freqTextField.stringValue()));
        INVARIANT(bench.radio.vqMuted == 0 || bench.display.muteButton.bezelColor() == Color::red);
    }
    bench.advance(std::chrono::seconds(15));
    bench.display.lineCopyButton.performClick();
    for (const char c : bench.around.clipboard.held) INVARIANT(c == '\n' || (c >= ' ' && c <= '~') || c < 0);
    INVARIANT(isUtf8(bench.around.clipboard.held));
}

}  // namespace corvane

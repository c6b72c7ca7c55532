// Any bytes from the line, cut anywhere: as responses from the assembler and as raw chunks.
#include <cstdint>

#include "radio/response_assembler.h"
#include "tests/support/test_bench.h"
#include "wire/utf8.h"

#define INVARIANT(condition) \
    if (!(condition)) __builtin_trap()

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace corvane;
    TestBench bench;
    ResponseAssembler assembler([&](std::string_view response) {
        INVARIANT(!response.empty() && response.size() <= ResponseAssembler::limit);
        bench.receive(response);
    });
    // The first byte of each piece gives its length, so that the input decides where it is cut.
    for (std::string_view rest(reinterpret_cast<const char*>(data), size); !rest.empty();) {
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
    return 0;
}

// The fuzzer's way into a fuzz target.
#include "fuzz/fuzz_target.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    corvane::fuzz({reinterpret_cast<const char*>(data), size});
    return 0;
}

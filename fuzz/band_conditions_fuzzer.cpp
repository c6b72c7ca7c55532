// Any body of the solar-data service.
#include <cstdint>

#include "feeds/band_conditions.h"
#include "wire/utf8.h"

#define INVARIANT(condition) \
    if (!(condition)) __builtin_trap()

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace corvane;
    const BandConditions conditions = decodeBandConditions({reinterpret_cast<const char*>(data), size});
    for (const std::string* value : {&conditions.heading, &conditions.solarFlux, &conditions.bands[0],
                                     &conditions.magicBand, &conditions.signalNoise}) {
        INVARIANT(value->find_first_of("<>\t") == std::string::npos);
        INVARIANT(isUtf8(*value));
    }
    return 0;
}

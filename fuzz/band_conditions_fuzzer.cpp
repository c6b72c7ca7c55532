// A body of the solar-data service, whatever it is.
#include "feeds/band_conditions.h"
#include "fuzz/fuzz_target.h"
#include "wire/utf8.h"

namespace corvane {

void fuzz(std::string_view input) {
    const BandConditions conditions = decodeBandConditions(input);
    for (const std::string* value : {&conditions.heading, &conditions.solarFlux, &conditions.bands[0],
                                     &conditions.magicBand, &conditions.signalNoise}) {
        INVARIANT(value->find_first_of("<>\t") == std::string::npos);
        INVARIANT(isUtf8(*value));
    }
}

}  // namespace corvane

// The commands that the function pop-ups and sliders send for their positions. An index counts from 0; one outside a
// list gives no command.
#pragma once

#include <string>
#include <string_view>

namespace corvane {

std::string modeCommand(int index);            // 2: "MD03;BI1;SF1H;", CW, with the function knob on the speed
std::string memoryCommand(int index);          // 0: "SS0670000;MC001;MW001;SS0670000;"
std::string scopeColorCommand(int index);      // 10: "SS03A0000;"; 0, the first entry, gives no command
std::string spectrumModeCommand(int index);    // 11: "SS06B0000;"
std::string roofingFilterCommand(int index);   // 2: "RF04;RF0;"; from 4 on "RF0;RF0;", which only asks
std::string noiseReductionCommand(int index);  // 0: "NR00;", 12: "NR01;RL012;"
std::string noiseBlankerCommand(int index);    // 0: "NB00;", 3: "NB01;NL0003;"
std::string functionKnobCommand(int index);    // 11: "SF1H;"
std::string multiKnobCommand(int index);       // 2: "SF04;"
std::string gainCommand(std::string_view name, int value);  // "AG0", 5: "AG0005;"

// Puts the index between two texts: "PA0", 1, ";" gives "PA01;". Empty for an index below 0.
std::string indexCommand(std::string_view before, int index, std::string_view after);

}  // namespace corvane

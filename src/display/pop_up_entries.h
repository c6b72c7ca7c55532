// The entries of the pop-ups that mirror the transceiver's functions, in the order of the transceiver's own values.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvane {

// "OFF|FAST|MID" gives three entries; empty text gives none.
std::vector<std::string> entryList(std::string_view entries);

std::vector<std::string> modeEntries();            // the modes in the order of their codes, "1" to "F"
std::vector<std::string> memoryModeEntries();      // the same after an entry for no mode: entry 11 stands for "B"
std::vector<std::string> noiseReductionEntries();  // "OFF", "1" to "15"
std::vector<std::string> noiseBlankerEntries();    // "OFF", "1" to "10"
std::vector<std::string> scopeColorEntries();      // "Color 1" to "Color 11"
std::vector<std::string> scopeLevelEntries();      // "-30.0", "-29.5" ... "+00.0" ... "+30.0" dB
std::vector<std::string> powerOffEntries();        // "OFF", "0.5 h", "1 h" ... "12 h"
std::vector<std::string> powerEntries();           // "5w" to "100w"

inline constexpr std::string_view refreshEntries = "Off|1 min|2 min|5 min|10 min";  // of the lists
inline constexpr std::string_view agcEntries = "OFF|FAST|MID|SLOW|AUTO";
inline constexpr std::string_view attenuatorEntries = "OFF|6 dB|12 dB|18 dB";
inline constexpr std::string_view preAmplifierEntries = "IPO|AMP 1|AMP 2";
inline constexpr std::string_view roofingFilterEntries = "12 kHz|3 kHz|500 Hz|300 Hz";
inline constexpr std::string_view meterEntries = "PO|COMP|ALC|VDD|ID|SWR";
inline constexpr std::string_view multiKnobEntries = "Clarifier|Memory channel|Memory group|Step dial|Roofing filter";
inline constexpr std::string_view functionKnobEntries =
    "Scope level|Scope peak|Scope color|Contrast|Dimmer|Mic gain|Processor level|AMC level|RF power|VOX gain|VOX delay|"
    "CW speed|CW pitch|Break-in delay|Monitor level|Memory group|Anti VOX";
inline constexpr std::string_view spectrumModeEntries =
    "3D center|3D cursor|3D fix|Waterfall center (expanded)|Waterfall center|Waterfall center (large)|"
    "Waterfall cursor (expanded)|Waterfall cursor|Waterfall cursor (large)|Waterfall fix (expanded)|Waterfall fix|"
    "Waterfall fix (large)";
inline constexpr std::string_view scopeSpeedEntries = "Slow 1|Slow 2|Fast 1|Fast 2|Fast 3|Stop";
inline constexpr std::string_view scopePeakEntries = "Level 1|Level 2|Level 3|Level 4|Level 5";
inline constexpr std::string_view scopeSpanEntries =
    "1 kHz|2 kHz|5 kHz|10 kHz|20 kHz|50 kHz|100 kHz|200 kHz|500 kHz|1 MHz";

}  // namespace corvane

// The items of the transceiver's setup menu: one row each, with all that the window, the readers and the writers need.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "display/number_run.h"

namespace corvane {

// How an item is set: by the title of the chosen entry as it stands, or by its index in plain decimal, in two or in
// three digits. An item of kind `none` is only shown.
enum class MenuWrite { none, title, index, twoDigits, threeDigits };

// How a reported value chooses the entry: by its title, or as the decimal index. Text is the call sign. The transceiver
// reports some items that nothing here takes.
enum class MenuTake { none, title, index, text };

inline constexpr int menuTagBase = 2000000;  // what a control's tag is above the number of its item

// The page of the settings tab that shows a sub-menu, one for each group: 102 and 107 are on page 0.
constexpr int menuPageOf(int subMenu) { return subMenu / 100 - 1; }

// Entries are written `a|b|c` with index 0 first, where `-` stands for an index that the transceiver does not use, or
// `FIRST..LAST/STEP%D` for the numbers from FIRST to LAST by STEP in D digits; `%+D` writes the sign, too. So
// "-20..+10/1%+2" gives "-20" ... "-01", "+00", "+01" ... "+10".
struct MenuItemRow {
    int number;              // group, sub-menu and item, two digits each: 10203 is "010203"
    std::string_view label;  // "AGC fast delay"
    std::string_view unit;   // "ms", or empty
    std::string_view entries;
    MenuWrite write;
    MenuTake take;
    int width;  // characters of the value on the line; 0 for an item that is not taken
    // Only for items whose entries are filled in at the start. The entry with this number is selected. The yellow mark
    // stands at this index, counted from the number 0: with a step of 1 that is the same entry.
    int defaultNumber = noDefault;

    static constexpr int noDefault = -1;
    constexpr bool hasDefault() const { return defaultNumber != noDefault; }
    constexpr int subMenu() const { return number / 100; }        // 10203 gives 102
    constexpr int page() const { return menuPageOf(subMenu()); }  // of the settings tab
    constexpr int tag() const { return menuTagBase + number; }    // of its control
};

struct MenuSubMenu {
    int number;  // group and sub-menu: 102
    std::string_view title;

    constexpr int page() const { return menuPageOf(number); }
};

inline constexpr int callSignItem = 40101;

namespace menu_table {

inline constexpr std::string_view bandpassFilters = "50-3050|100-2900|200-2800|300-2700|400-2600";
inline constexpr std::string_view highCutFrequencies =
    "OFF|700|750|800|850|900|950|1000|1050|1100|1150|1200|1250|1300|1350|1400|1450|1500|1550|1600|1650|"
    "1700|1750|1800|1850|1900|1950|2000|2050|2100|2150|2200|2250|2300|2350|2400|2450|2500|2550|2600|2650|"
    "2700|2750|2800|2850|2900|2950|3000|3050|3100|3150|3200|3250|3300|3350|3400|3450|3500|3550|3600|3650|"
    "3700|3750|3800|3850|3900|3950|4000";
inline constexpr std::string_view highFrequencies =
    "OFF|1500|1600|1700|1800|1900|2000|2100|2200|2300|2400|2500|2600|2700|2800|2900|3000|3100|3200";
inline constexpr std::string_view keyboardLanguages =
    "Japanese|English (US)|English (UK)|French|French (CA)|German|Portuguese|Portuguese (BR)|Spanish|"
    "Spanish (LATAM)|Italian";
inline constexpr std::string_view keyerWeights =
    "-|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-|2.5|2.6|2.7|2.8|2.9|3.0|3.1|3.2|3.3|3.4|3.5|3.6|"
    "3.7|3.8|3.9|4.0|4.1|4.2|4.3|4.4|4.5";
inline constexpr std::string_view lowCutFrequencies =
    "OFF|100|150|200|250|300|350|400|450|500|550|600|650|700|750|800|850|900|950|1000";
inline constexpr std::string_view microphoneKeys =
    "LOCK|Quick memory|A/B|V/M|TUNER|VOX/MOX|MODE|ZERO IN/SPOT|SPLIT|FINE|NAR|NB|DNR|FREQ UP|FREQ DOWN|"
    "BAND UP|BAND DOWN|ATT|IPO|DNF|AGC";
inline constexpr std::string_view middleFrequencies = "OFF|700|800|900|1000|1100|1200|1300|1400|1500";
inline constexpr std::string_view narrowWidths =
    "50|100|150|200|250|300|350|400|450|500|600|800|1200|1400|1700|2000|2400|3000|3200|3500|4000";
inline constexpr std::string_view ssbNarrowWidths =
    "300|400|600|850|1100|1200|1500|1650|1800|1950|2100|2250|2400|2450|2500|2600|2700|2800|2900|3000|"
    "3200|3500|4000";
inline constexpr std::string_view timeOutMinutes =
    "OFF|1|2|3|4|5|6|7|8|9|10|11|12|13|14|15|16|17|18|19|20|21|22|23|24|25|26|27|28|29|30";
inline constexpr std::string_view toneFrequencies =
    "67.0|69.3|71.9|74.4|77.0|79.7|82.5|85.4|88.5|91.5|94.8|97.4|100.0|103.5|107.2|110.9|114.8|118.8|"
    "123.0|127.3|131.8|136.5|141.3|146.2|151.4|156.7|159.8|162.2|165.5|167.9|171.3|173.8|177.3|179.9|"
    "183.5|186.2|189.9|192.8|196.6|199.5|203.5|206.5|210.7|218.1|225.7|229.1|233.6|241.8|250.3|254.1";

inline constexpr auto title = MenuWrite::title;
inline constexpr auto index = MenuWrite::index;
inline constexpr auto twoDigits = MenuWrite::twoDigits;
inline constexpr auto threeDigits = MenuWrite::threeDigits;
inline constexpr auto shown = MenuWrite::none;
inline constexpr auto byTitle = MenuTake::title;
inline constexpr auto byIndex = MenuTake::index;
inline constexpr auto notTaken = MenuTake::none;

}  // namespace menu_table

inline constexpr std::array menuSubMenus{
    MenuSubMenu{101, "SSB"},
    MenuSubMenu{102, "AM"},
    MenuSubMenu{103, "FM"},
    MenuSubMenu{104, "PSK and data"},
    MenuSubMenu{105, "RTTY"},
    MenuSubMenu{106, "PSK encoder and decoder"},
    MenuSubMenu{107, "RTTY encoder and decoder"},
    MenuSubMenu{201, "CW"},
    MenuSubMenu{202, "Keyer"},
    MenuSubMenu{203, "CW decoder"},
    MenuSubMenu{301, "General"},
    MenuSubMenu{302, "Receiver DSP"},
    MenuSubMenu{303, "TX audio"},
    MenuSubMenu{304, "TX general"},
    MenuSubMenu{305, "Tuning"},
    MenuSubMenu{401, "Display"},
    MenuSubMenu{402, "Scope"},
    MenuSubMenu{403, "VFO indicator colors"},
    MenuSubMenu{404, "External monitor"},
};

// clang-format off
inline constexpr std::array menuItems = [] {
    using namespace menu_table;
    using Row = MenuItemRow;
    return std::array{
        // SSB
        Row{10101, "AF treble gain", "dB", "-20..+10/1%+2", title, byTitle, 3},
        Row{10102, "AF middle tone gain", "dB", "-20..+10/1%+2", title, byTitle, 3},
        Row{10103, "AF bass gain", "dB", "-20..+10/1%+2", title, byTitle, 3},
        Row{10104, "AGC fast delay", "ms", "0020..4000/20%4", title, byTitle, 4},
        Row{10105, "AGC mid delay", "ms", "0020..4000/20%4", title, byTitle, 4},
        Row{10106, "AGC slow delay", "ms", "0020..4000/20%4", title, byTitle, 4},
        Row{10107, "Low cut frequency", "Hz", lowCutFrequencies, twoDigits, byIndex, 2},
        Row{10108, "Low cut slope", "", "6 dB/oct|18 dB/oct", index, byIndex, 1},
        Row{10109, "High cut frequency", "Hz", highCutFrequencies, twoDigits, byIndex, 2},
        Row{10110, "High cut slope", "", "6 dB/oct|18 dB/oct", index, byIndex, 1},
        Row{10111, "USB output level", "", "000..100/1%3", title, byIndex, 3},
        Row{10112, "Rear output level", "", "000..100/1%3", title, byIndex, 3},
        Row{10113, "TX bandpass filter", "Hz", bandpassFilters, index, byIndex, 1},
        Row{10114, "Modulation source", "", "MIC|USB|REAR|AUTO", index, byIndex, 1},
        Row{10115, "USB modulation gain", "", "000..100/1%3", title, byIndex, 3, 50},
        Row{10116, "Rear modulation gain", "", "000..100/1%3", title, byIndex, 3, 50},
        Row{10117, "PTT line", "", "OFF|RTS|DTR|DAKY", index, byIndex, 1},
        Row{10118, "Narrow width", "Hz", ssbNarrowWidths, twoDigits, byIndex, 2},
        Row{10119, "CW auto mode", "", "OFF|50 MHz|ON", index, byIndex, 1},
        // AM
        Row{10201, "AF treble gain", "dB", "-20..+10/1%+2", title, byTitle, 3},
        Row{10202, "AF middle tone gain", "dB", "-20..+10/1%+2", title, byTitle, 3},
        Row{10203, "AF bass gain", "dB", "-20..+10/1%+2", title, byTitle, 3},
        Row{10204, "AGC fast delay", "ms", "0020..4000/20%4", title, byTitle, 4},
        Row{10205, "AGC mid delay", "ms", "0020..4000/20%4", title, byTitle, 4},
        Row{10206, "AGC slow delay", "ms", "0020..4000/20%4", title, byTitle, 4},
        Row{10207, "Low cut frequency", "Hz", lowCutFrequencies, twoDigits, byIndex, 2},
        Row{10208, "Low cut slope", "", "6 dB/oct|18 dB/oct", index, byIndex, 1},
        Row{10209, "High cut frequency", "Hz", highCutFrequencies, twoDigits, byIndex, 2},
        Row{10210, "High cut slope", "", "6 dB/oct|18 dB/oct", index, byIndex, 1},
        Row{10211, "USB output level", "", "000..100/1%3", title, byIndex, 3, 50},
        Row{10212, "Rear output level", "", "000..100/1%3", title, byIndex, 3, 50},
        Row{10213, "TX bandpass filter", "Hz", bandpassFilters, index, byIndex, 1},
        Row{10214, "Modulation source", "", "MIC|USB|REAR|AUTO", index, byIndex, 1},
        Row{10215, "USB modulation gain", "", "000..100/1%3", title, byIndex, 3, 50},
        Row{10216, "Rear modulation gain", "", "000..100/1%3", title, byIndex, 3, 50},
        Row{10217, "PTT line", "", "OFF|RTS|DTR|DAKY", index, byIndex, 1},
        // FM
        Row{10301, "AF treble gain", "dB", "-20..+10/1%+2", title, byTitle, 3},
        Row{10302, "AF middle tone gain", "dB", "-20..+10/1%+2", title, byTitle, 3},
        Row{10303, "AF bass gain", "dB", "-20..+10/1%+2", title, byTitle, 3},
        Row{10304, "AGC fast delay", "ms", "0020..4000/20%4", title, byTitle, 4},
        Row{10305, "AGC mid delay", "ms", "0020..4000/20%4", title, byTitle, 4},
        Row{10306, "AGC slow delay", "ms", "0020..4000/20%4", title, byTitle, 4},
        Row{10307, "Low cut frequency", "Hz", lowCutFrequencies, twoDigits, byIndex, 2},
        Row{10308, "Low cut slope", "", "6 dB/oct|18 dB/oct", index, byIndex, 1},
        Row{10309, "High cut frequency", "Hz", highCutFrequencies, twoDigits, byIndex, 2},
        Row{10310, "High cut slope", "", "6 dB/oct|18 dB/oct", index, byIndex, 1},
        Row{10311, "USB output level", "", "000..100/1%3", title, byIndex, 3},
        Row{10312, "Rear output level", "", "000..100/1%3", title, byIndex, 3, 50},
        Row{10313, "Modulation source", "", "MIC|USB|REAR|AUTO", index, byIndex, 1},
        Row{10314, "USB modulation gain", "", "000..100/1%3", title, byIndex, 3, 50},
        Row{10315, "Rear modulation gain", "", "000..100/1%3", title, byIndex, 3, 50},
        Row{10316, "PTT line", "", "OFF|RTS|DTR|DAKY", index, byIndex, 1},
        Row{10317, "Repeater shift", "", "minus|SIMPLEX|plus", index, byIndex, 1},
        Row{10318, "Repeater shift 28 MHz", "kHz", "0000..1000/10%4", title, byTitle, 4, 10},
        Row{10319, "Repeater shift 50 MHz", "kHz", "0000..4000/10%4", title, byTitle, 4, 50},
        Row{10320, "Tone encoder and decoder", "", "OFF|Encode|Tone squelch", index, byIndex, 1},
        Row{10321, "Tone frequency", "Hz", toneFrequencies, threeDigits, byIndex, 3},
        // PSK and data
        Row{10401, "AF treble gain", "dB", "-20..+10/1%+2", title, byTitle, 3},
        Row{10402, "AF middle tone gain", "dB", "-20..+10/1%+2", title, byTitle, 3},
        Row{10403, "AF bass gain", "dB", "-20..+10/1%+2", title, byTitle, 3},
        Row{10404, "AGC fast delay", "ms", "0020..4000/20%4", title, byTitle, 4},
        Row{10405, "AGC mid delay", "ms", "0020..4000/20%4", title, byTitle, 4},
        Row{10406, "AGC slow delay", "ms", "0020..4000/20%4", title, byTitle, 4},
        Row{10407, "Low cut frequency", "Hz", lowCutFrequencies, twoDigits, byIndex, 2},
        Row{10408, "Low cut slope", "", "6 dB/oct|18 dB/oct", index, byIndex, 1},
        Row{10409, "High cut frequency", "Hz", highCutFrequencies, twoDigits, byIndex, 2},
        Row{10410, "High cut slope", "", "6 dB/oct|18 dB/oct", index, byIndex, 1},
        Row{10411, "USB output level", "", "000..100/1%3", title, byTitle, 3},
        Row{10412, "Rear output level", "", "000..100/1%3", title, byTitle, 3, 50},
        Row{10413, "TX bandpass filter", "Hz", bandpassFilters, index, byIndex, 1},
        Row{10414, "Modulation source", "", "MIC|USB|REAR|AUTO", index, byIndex, 1},
        Row{10415, "USB modulation gain", "", "000..100/1%3", title, byTitle, 3, 50},
        Row{10416, "Rear modulation gain", "", "000..100/1%3", title, byTitle, 3, 50},
        Row{10417, "PTT line", "", "OFF|RTS|DTR|DAKY", index, byIndex, 1},
        Row{10418, "Narrow width", "Hz", narrowWidths, twoDigits, byIndex, 2},
        Row{10419, "PSK tone", "Hz", "1000|1500|2000", index, byIndex, 1},
        Row{10420, "Data shift in SSB", "Hz", "0000..3000/10%4", title, byTitle, 4, 150},
        // RTTY
        Row{10501, "AF treble gain", "dB", "-20..+10/1%+2", title, byTitle, 3},
        Row{10502, "AF middle tone gain", "dB", "-20..+10/1%+2", title, byTitle, 3},
        Row{10503, "AF bass gain", "dB", "-20..+10/1%+2", title, byTitle, 3},
        Row{10504, "AGC fast delay", "ms", "0020..4000/20%4", title, byTitle, 4},
        Row{10505, "AGC mid delay", "ms", "0020..4000/20%4", title, byTitle, 4},
        Row{10506, "AGC slow delay", "ms", "0020..4000/20%4", title, byTitle, 4},
        Row{10507, "Low cut frequency", "Hz", lowCutFrequencies, twoDigits, byIndex, 2},
        Row{10508, "Low cut slope", "", "6 dB/oct|18 dB/oct", index, byIndex, 1},
        Row{10509, "High cut frequency", "Hz", highCutFrequencies, twoDigits, byIndex, 2},
        Row{10510, "High cut slope", "", "6 dB/oct|18 dB/oct", index, byIndex, 1},
        Row{10511, "USB output level", "", "000..100/1%3", title, byIndex, 3},
        Row{10512, "Rear output level", "", "000..100/1%3", title, byIndex, 3, 50},
        Row{10513, "PTT line", "", "OFF|RTS|DTR|DAKY", index, byIndex, 1},
        Row{10514, "Narrow width", "Hz", narrowWidths, twoDigits, byIndex, 2},
        Row{10515, "Mark frequency", "Hz", "-|1275|2125", index, byIndex, 1},
        Row{10516, "Shift frequency", "Hz", "170|200|425|850", index, byIndex, 1},
        Row{10517, "TX polarity", "", "Normal|Reverse", index, notTaken, 0},
        // PSK encoder and decoder
        Row{10601, "PSK mode", "", "BPSK|QPSK", index, notTaken, 0},
        Row{10602, "Decoder AFC range", "Hz", "8|15|30", index, notTaken, 0},
        Row{10603, "QPSK polarity RX", "", "Normal|Reverse", index, notTaken, 0},
        Row{10604, "QPSK polarity TX", "", "Normal|Reverse", index, notTaken, 0},
        Row{10605, "PSK TX level", "", "000..100/1%3", title, notTaken, 0, 70},
        // RTTY encoder and decoder
        Row{10701, "RX USOS", "", "Disable|Enable", index, notTaken, 0},
        Row{10702, "TX USOS", "", "Disable|Enable", index, notTaken, 0},
        Row{10703, "RX new line code", "", "CR or LF or CR+LF|CR, LF, CR+LF", index, notTaken, 0},
        Row{10704, "TX automatic CR+LF", "", "Disable|Enable", index, notTaken, 0},
        Row{10705, "TX diddle", "", "OFF|Blank|Letters", index, notTaken, 0},
        Row{10706, "Baudot code", "", "CCITT|US", index, notTaken, 0},
        // CW
        Row{20101, "AF treble gain", "dB", "-20..+10/1%+2", title, byTitle, 3},
        Row{20102, "AF middle tone gain", "dB", "-20..+10/1%+2", title, byTitle, 3},
        Row{20103, "AF bass gain", "dB", "-20..+10/1%+2", title, byTitle, 3},
        Row{20104, "AGC fast delay", "ms", "0020..4000/20%4", title, byTitle, 4},
        Row{20105, "AGC mid delay", "ms", "0020..4000/20%4", title, byTitle, 4},
        Row{20106, "AGC slow delay", "ms", "0020..4000/20%4", title, byTitle, 4},
        Row{20107, "Low cut frequency", "Hz", lowCutFrequencies, twoDigits, byIndex, 2},
        Row{20108, "Low cut slope", "", "6 dB/oct|18 dB/oct", index, byIndex, 1},
        Row{20109, "High cut frequency", "Hz", highCutFrequencies, twoDigits, byIndex, 2},
        Row{20110, "High cut slope", "", "6 dB/oct|18 dB/oct", index, byIndex, 1},
        Row{20111, "USB output level", "", "000..100/1%3", title, byIndex, 3},
        Row{20112, "Rear output level", "", "000..100/1%3", title, byIndex, 3, 50},
        Row{20113, "PTT line", "", "OFF|RTS|DTR|DAKY", index, byIndex, 1},
        Row{20114, "Narrow width", "Hz", narrowWidths, twoDigits, byIndex, 2},
        Row{20115, "PC keying", "", "OFF|RTS|DTR|DAKY", index, byIndex, 1},
        Row{20116, "Break-in type", "", "Semi|Full", index, byIndex, 1},
        Row{20117, "Wave shape", "ms", "4|6|8", index, byIndex, 1},
        Row{20118, "Frequency display", "", "Direct|Pitch offset", index, byIndex, 1},
        Row{20119, "QSK delay time", "ms", "15|20|25|30", index, byIndex, 1},
        Row{20120, "CW indicator", "", "OFF|ON", index, byIndex, 1},
        // Keyer
        Row{20201, "Keyer type", "", "OFF|BUG|ELEKEY-A|ELEKEY-B|ELEKEY-Y|ACS", index, byIndex, 1},
        Row{20202, "Dot and dash", "", "Normal|Reverse", index, byIndex, 1},
        Row{20203, "Weight", "", keyerWeights, twoDigits, byIndex, 2},
        Row{20204, "Number style", "", "1290|AUNO|AUNT|A2NO|A2NT|12NO|12NT", index, byIndex, 1},
        Row{20205, "Contest number", "", "0001..9999/1%4", title, byTitle, 4, 1},
        Row{20206, "CW memory 1", "", "Text|Message", index, byIndex, 1},
        Row{20207, "CW memory 2", "", "Text|Message", index, byIndex, 1},
        Row{20208, "CW memory 3", "", "Text|Message", index, byIndex, 1},
        Row{20209, "CW memory 4", "", "Text|Message", index, byIndex, 1},
        Row{20210, "CW memory 5", "", "Text|Message", index, byIndex, 1},
        Row{20211, "Repeat interval", "s", "01..60/1%2", title, byTitle, 2, 5},
        Row{20212, "Keyer item 12", "", "01..60/1%2", title, notTaken, 0},
        // CW decoder
        Row{20301, "Decoder bandwidth", "Hz", "25|50|100|250", shown, byIndex, 1},
        // General
        Row{30101, "Beep level", "", "000..100/1%3", title, byTitle, 3, 20},
        Row{30102, "RF/SQL knob", "", "RF|SQL|SQL in FM only", index, byIndex, 1},
        Row{30103, "Tuner and linear port", "", "External tuner|Linear|CAT-3|GPO", index, byIndex, 1},
        Row{30104, "Tuner type", "", "Internal|Internal (fast)|External|Active antenna", index, byIndex, 1},
        Row{30105, "CAT-1 rate", "bps", "4800|9600|19200|38400|115200", index, byIndex, 1},
        Row{30106, "CAT-1 time-out", "ms", "10|100|1000|3000", index, byIndex, 1},
        Row{30107, "CAT-1 and CAT-3 stop bits", "", "1|2", index, byIndex, 1},
        Row{30108, "CAT-2 rate", "bps", "4800|9600|19200|38400|115200", index, byIndex, 1},
        Row{30109, "CAT-2 time-out", "ms", "10|100|1000|3000", index, byIndex, 1},
        Row{30110, "CAT-3 rate", "bps", "4800|9600|19200|38400|115200", index, byIndex, 1},
        Row{30111, "CAT-3 time-out", "ms", "10|100|1000|3000", index, byIndex, 1},
        Row{30112, "Quick memory channels", "", "5|10", index, byIndex, 1},
        Row{30113, "Band stack", "", "OFF|ON", index, byIndex, 1},
        Row{30114, "Memory group", "", "OFF|ON", index, byIndex, 1},
        Row{30115, "TX time-out timer", "min", timeOutMinutes, twoDigits, byIndex, 2},
        Row{30116, "Microphone scan", "", "OFF|ON", index, byIndex, 1},
        Row{30117, "Microphone scan resume", "", "Pause|Time", index, byIndex, 1},
        Row{30118, "Reference frequency", "", "-25..+25/1%+2", title, byTitle, 3},
        Row{30119, "Keyboard language", "", keyboardLanguages, twoDigits, byIndex, 2},
        Row{30120, "Microphone P1", "", microphoneKeys, twoDigits, byIndex, 2},
        Row{30121, "Microphone P2", "", microphoneKeys, twoDigits, byIndex, 2},
        Row{30122, "Microphone P3", "", microphoneKeys, twoDigits, byIndex, 2},
        Row{30123, "Microphone P4", "", microphoneKeys, twoDigits, byIndex, 2},
        Row{30124, "Microphone UP", "", microphoneKeys, twoDigits, byIndex, 2},
        Row{30125, "Microphone DOWN", "", microphoneKeys, twoDigits, byIndex, 2},
        Row{30126, "Network unit", "", "OFF|ON", index, byIndex, 1},
        // Receiver DSP
        Row{30201, "IF notch width", "", "Narrow|Wide", shown, byIndex, 1},
        Row{30202, "NB rejection", "", "Low|Mid|High", shown, byIndex, 1},
        Row{30203, "NB width", "", "Narrow|Medium|Wide", shown, byIndex, 1},
        Row{30204, "APF width", "", "Narrow|Medium|Wide", index, byIndex, 1},
        Row{30205, "Contour level", "", "-40..+20/1%+2", title, byTitle, 3},
        Row{30206, "Contour width", "", "01..11/1%2", title, byTitle, 2},
        // TX audio
        Row{30301, "AMC release time", "", "Fast|Mid|Slow", index, byIndex, 1},
        Row{30302, "EQ 1 frequency", "Hz", "OFF|100|200|300|400|500|600|700", twoDigits, byIndex, 2},
        Row{30303, "EQ 1 level", "dB", "-20..+10/1%+2", title, byTitle, 3},
        Row{30304, "EQ 1 bandwidth", "", "00..10/1%2", title, byTitle, 2},
        Row{30305, "EQ 2 frequency", "Hz", middleFrequencies, twoDigits, byIndex, 2},
        Row{30306, "EQ 2 level", "dB", "-20..+10/1%+2", title, byTitle, 3},
        Row{30307, "EQ 2 bandwidth", "", "00..10/1%2", title, byTitle, 2},
        Row{30308, "EQ 3 frequency", "Hz", highFrequencies, twoDigits, byIndex, 2},
        Row{30309, "EQ 3 level", "dB", "-20..+10/1%+2", title, byTitle, 3},
        Row{30310, "EQ 3 bandwidth", "", "00..10/1%2", title, byTitle, 2},
        Row{30311, "Processor EQ 1 frequency", "Hz", "OFF|100|200|300|400|500|600|700", twoDigits, byIndex, 2},
        Row{30312, "Processor EQ 1 level", "dB", "-20..+10/1%+2", title, byTitle, 3},
        Row{30313, "Processor EQ 1 bandwidth", "", "00..10/1%2", title, byTitle, 2},
        Row{30314, "Processor EQ 2 frequency", "Hz", middleFrequencies, twoDigits, byIndex, 2},
        Row{30315, "Processor EQ 2 level", "dB", "-20..+10/1%+2", title, byTitle, 3},
        Row{30316, "Processor EQ 2 bandwidth", "", "00..10/1%2", title, byTitle, 2},
        Row{30317, "Processor EQ 3 frequency", "Hz", highFrequencies, twoDigits, byIndex, 2},
        Row{30318, "Processor EQ 3 level", "dB", "-20..+10/1%+2", title, byTitle, 3},
        Row{30319, "Processor EQ 3 bandwidth", "", "00..10/1%2", title, byTitle, 2},
        // TX general
        Row{30401, "HF maximum power", "W", "005..100/1%3", title, byTitle, 3, 100},
        Row{30402, "50 MHz maximum power", "W", "005..100/1%3", title, byTitle, 3, 100},
        Row{30403, "70 MHz maximum power", "W", "005..050/1%3", title, byTitle, 3, 50},
        Row{30404, "AM maximum power", "W", "005..025/1%3", title, byTitle, 3, 25},
        Row{30405, "VOX source", "", "MIC|USB|REAR", index, byIndex, 1},
        Row{30406, "Emergency frequency TX", "", "OFF|ON", index, byIndex, 1},
        Row{30407, "TX inhibit", "", "OFF|ON", index, byIndex, 1},
        Row{30408, "Meter detector", "", "Average|Peak", index, byIndex, 1},
        // Tuning
        Row{30501, "SSB and CW dial step", "Hz", "5|10|20", index, byIndex, 1},
        Row{30502, "RTTY and PSK dial step", "Hz", "5|10|20", index, byIndex, 1},
        Row{30503, "Channel step", "kHz", "1|2.5|5|10", index, byIndex, 1},
        Row{30504, "AM channel step", "kHz", "2.5|5|9|10|12.5|25", index, byIndex, 1},
        Row{30505, "FM channel step", "kHz", "5|6.25|10|12.5|20|25", index, byIndex, 1},
        Row{30506, "Main knob steps per turn", "", "50|100|200", index, byIndex, 1},
        Row{30507, "Outer knob steps per turn", "", "50|100|200", index, byIndex, 1},
        // Display
        Row{40101, "My call", "", "", shown, MenuTake::text, 12},
        Row{40102, "My call time", "s", "OFF|1|2|3|4|5", index, byIndex, 1},
        Row{40103, "Pop-up time", "", "Fast|Mid|Slow", index, byIndex, 1},
        Row{40104, "Screen saver", "min", "OFF|15|30|60", index, byIndex, 1},
        Row{40105, "LED dimmer", "", "00..20/1%2", title, byTitle, 2, 20},
        Row{40106, "Mouse pointer speed", "", "00..20/1%2", title, byTitle, 2, 10},
        // Scope
        Row{40201, "Resolution bandwidth", "", "High|Mid|Low", index, byIndex, 1},
        Row{40202, "Scope center", "", "Filter|Carrier point", index, byIndex, 1},
        Row{40203, "2D sensitivity", "", "Normal|High", index, byIndex, 1},
        Row{40204, "3D sensitivity", "", "Normal|High", index, byIndex, 1},
        // VFO indicator colors
        Row{40301, "VFO A", "", "Blue|Green|White|None", index, byIndex, 1},
        Row{40302, "VFO B", "", "Blue|Green|White|None", index, byIndex, 1},
        Row{40303, "Memory", "", "Blue|Green|White|None", index, byIndex, 1},
        Row{40304, "Clarifier", "", "Red|None", index, byIndex, 1},
        // External monitor
        Row{40401, "External display", "", "OFF|ON", index, byIndex, 1},
        Row{40402, "Pixels", "", "800x480|800x600", index, byIndex, 1},
    };
}();
// clang-format on
static_assert(menuItems.size() == 220);
static_assert(std::ranges::is_sorted(menuItems, std::ranges::less_equal{}, &MenuItemRow::number) &&
                  std::ranges::adjacent_find(menuItems, {}, &MenuItemRow::number) == menuItems.end(),
              "found by binary search");
static_assert(std::ranges::count_if(menuItems, [](const MenuItemRow& row) { return row.take != MenuTake::none; }) ==
              207);
static_assert(std::ranges::count_if(menuItems, [](const MenuItemRow& row) { return row.write != MenuWrite::none; }) ==
              215);
static_assert(std::ranges::all_of(menuItems,
                                  [](const MenuItemRow& row) {
                                      return (row.width > 0) == (row.take != MenuTake::none) &&
                                             (row.width == 1 || row.write != MenuWrite::index || row.width == 0) &&
                                             (row.width == 2 || row.write != MenuWrite::twoDigits) &&
                                             (row.width == 3 || row.write != MenuWrite::threeDigits);
                                  }),
              "what is written is as wide as what is read");
static_assert(std::ranges::all_of(menuItems,
                                  [](const MenuItemRow& row) {
                                      return std::ranges::find(menuSubMenus, row.subMenu(), &MenuSubMenu::number) !=
                                             menuSubMenus.end();
                                  }),
              "every item has a place on a page");
static_assert(std::ranges::count_if(menuItems, &MenuItemRow::hasDefault) == 27);
static_assert(std::ranges::all_of(menuItems,
                                  [](const MenuItemRow& row) {
                                      const auto run = numberRun(row.entries);
                                      return !row.hasDefault() ||
                                             (run && run->first % run->step == 0 && run->has(row.defaultNumber) &&
                                              run->has(row.defaultNumber * run->step));
                                  }),
              "the default is an index and a number of the run");

// The item of a number, or null: 10203.
constexpr const MenuItemRow* menuItem(int number) {
    const auto row = std::ranges::lower_bound(menuItems, number, {}, &MenuItemRow::number);
    return row != menuItems.end() && row->number == number ? &*row : nullptr;
}

// Whether an item has this number. (Comparing the row's address with nullptr is no constant expression to g++ 12 under
// its sanitizer.)
constexpr bool isMenuItem(int number) {
    return std::ranges::binary_search(menuItems, number, {}, &MenuItemRow::number);
}

}  // namespace corvane

#include "controls/function_commands.h"

#include "wire/cat_command.h"
#include "wire/operating_modes.h"
#include "wire/setting_codes.h"

namespace corvane {

namespace {

constexpr std::string_view roofingFilterCodes = "1245";

std::string codeCommand(std::string_view before, std::string_view codes, int index, std::string_view after) {
    if (index < 0 || index >= static_cast<int>(codes.size())) return {};
    return std::string(before) + codes[static_cast<std::size_t>(index)] + std::string(after);
}

// Off for the first entry, else on and its level.
std::string levelCommand(std::string_view name, std::string_view level, int width, int index) {
    if (index < 0) return {};
    if (index == 0) return std::string(name) + "0;";
    return std::string(name) + "1;" + std::string(level) + zeroPadded(index, width) + ';';
}

}  // namespace

std::string modeCommand(int index) {
    if (index < 0 || index >= static_cast<int>(operatingModes.size())) return {};
    const char code = operatingModes[static_cast<std::size_t>(index)].code;
    return (std::string("MD0") + code + ";BI1;").append(functionKnobSetting(code));
}

std::string memoryCommand(int index) {
    if (index < 0) return {};
    const std::string channel = zeroPadded(index + 1, 3);
    return "SS0670000;MC" + channel + ";MW" + channel + ";SS0670000;";
}

std::string scopeColorCommand(int index) {
    return index < 1 ? std::string() : codeCommand("SS03", "0123456789A", index, "0000;");
}
std::string spectrumModeCommand(int index) { return codeCommand("SS06", "0123456789AB", index, "0000;"); }
std::string roofingFilterCommand(int index) {
    if (index < 0) return {};
    const std::string command = codeCommand("RF0", roofingFilterCodes, index, ";RF0;");
    return command.empty() ? "RF0;RF0;" : command;
}
std::string noiseReductionCommand(int index) { return levelCommand("NR0", "RL0", 2, index); }
std::string noiseBlankerCommand(int index) { return levelCommand("NB0", "NL0", 3, index); }
std::string functionKnobCommand(int index) { return codeCommand("SF1", functionKnobCodes, index, ";"); }
std::string multiKnobCommand(int index) { return codeCommand("SF0", multiKnobCodes, index, ";"); }

std::string gainCommand(std::string_view name, int value) {
    return std::string(name).append(zeroPadded(value, 3)).append(";");
}

std::string indexCommand(std::string_view before, int index, std::string_view after) {
    return index < 0 ? std::string() : std::string(before).append(std::to_string(index)).append(after);
}

}  // namespace corvane

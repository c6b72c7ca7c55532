#include "controls/function_commands.h"

#include <fmt/core.h>

#include "wire/operating_modes.h"
#include "wire/setting_codes.h"

namespace corvane {

namespace {

constexpr std::string_view roofingFilterCodes = "1245";

std::string codeCommand(std::string_view before, std::string_view codes, int index, std::string_view after) {
    if (index < 0 || index >= static_cast<int>(codes.size())) return {};
    return fmt::format("{}{}{}", before, codes[static_cast<std::size_t>(index)], after);
}

// The first entry switches off; any other switches on and sets the level.
std::string levelCommand(std::string_view name, std::string_view level, int width, int index) {
    if (index < 0) return {};
    if (index == 0) return fmt::format("{}0;", name);
    return fmt::format("{}1;{}{:0{}};", name, level, index, width);
}

}  // namespace

std::string modeCommand(int index) {
    if (index < 0 || index >= static_cast<int>(operatingModes.size())) return {};
    const char code = operatingModes[static_cast<std::size_t>(index)].code;
    return fmt::format("MD0{};BI1;{}", code, functionKnobSetting(code));
}

std::string memoryCommand(int index) {
    return index < 0 ? std::string() : fmt::format("SS0670000;MC{0:03};MW{0:03};SS0670000;", index + 1);
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

std::string gainCommand(std::string_view name, int value) { return fmt::format("{}{:03};", name, value); }

std::string indexCommand(std::string_view before, int index, std::string_view after) {
    return index < 0 ? std::string() : fmt::format("{}{}{}", before, index, after);
}

}  // namespace corvane

#include "simulator/console.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <optional>

#include "simulator/operating_mode.h"

namespace simulator {

namespace {

using Words = std::vector<std::string>;

constexpr std::string_view done = "ok\n";
constexpr std::string_view refused = "refused\n";
constexpr int longestSpin = 3'600;

std::optional<int> numberOf(std::string_view word) {
    if (word.starts_with('+')) word.remove_prefix(1);
    int value = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (error != std::errc{} || end != word.data() + word.size()) return std::nullopt;
    return value;
}

std::optional<bool> switchOf(std::string_view word) {
    if (word == "on") return true;
    if (word == "off") return false;
    return std::nullopt;
}

std::string outcome(bool accepted) { return std::string(accepted ? done : refused); }

/// A command of one number.
template <typename Action>
std::string withNumber(const std::string& word, Action action) {
    const auto number = numberOf(word);
    return number ? outcome(action(*number)) : "not a number: " + word + "\n";
}

std::string tune(Console& console, const Words& words) {
    return withNumber(words[1], [&](int hertz) { return console.transceiver().tune(hertz); });
}

std::string step(Console& console, const Words& words) {
    return withNumber(words[1], [&](int hertz) { return console.transceiver().tuneBy(hertz); });
}

std::string mode(Console& console, const Words& words) {
    const OperatingMode* found = modeOfName(words[1]);
    if (found == nullptr) {
        std::string names;
        for (const OperatingMode& each : operatingModes) names += " " + std::string(each.name);
        return "no such mode, there are" + names + "\n";
    }
    return outcome(console.transceiver().setMode(found->code));
}

std::string gain(Console& console, const Words& words) {
    return withNumber(words[1], [&](int level) { return console.transceiver().setAfGain(level); });
}

std::string watts(Console& console, const Words& words) {
    return withNumber(words[1], [&](int power) { return console.transceiver().setPower(power); });
}

std::string signal(Console& console, const Words& words) {
    const auto offset = words.size() > 2 ? numberOf(words[2]) : 0;
    if (!offset) return "not a number: " + words[2] + "\n";
    return withNumber(words[1], [&](int level) {
        console.transceiver().hear(level, *offset);
        return true;
    });
}

std::string spin(Console& console, const Words& words) {
    return withNumber(words[1], [&](int seconds) {
        return seconds >= 0 && seconds <= longestSpin && console.transceiver().spin(std::chrono::seconds(seconds));
    });
}

std::string set(Console& console, const Words& words) { return outcome(console.transceiver().operate(words[1])); }

std::string memory(Console& console, const Words& words) {
    const auto number = numberOf(words[1]);
    if (!number) return "not a number: " + words[1] + "\n";
    if (words.size() == 3 && words[2] == "clear") return outcome(console.transceiver().clearChannel(*number));
    if (words.size() < 4) return "say memory CHANNEL HERTZ MODE \"TAG\", or memory CHANNEL clear\n";
    const auto frequency = numberOf(words[2]);
    const OperatingMode* found = modeOfName(words[3]);
    if (!frequency || found == nullptr) return "not a frequency and a mode: " + words[2] + " " + words[3] + "\n";
    const std::string tag = words.size() > 4 ? words[4] : "";
    return outcome(console.transceiver().programChannel(*number, {{*frequency, found->code}, tag}));
}

std::string power(Console& console, const Words& words) {
    const auto on = switchOf(words[1]);
    if (!on) return "say power on or power off\n";
    console.transceiver().setPowered(*on);
    return std::string(done);
}

template <bool Faults::*fault>
std::string switchFault(Console& console, const Words& words) {
    const auto on = switchOf(words[1]);
    if (!on) return "say " + words[0] + " on or " + words[0] + " off\n";
    Faults faults = console.transceiver().faults();
    faults.*fault = *on;
    console.transceiver().setFaults(faults);
    return std::string(done);
}

std::string loseFirst(Console& console, const Words&) {
    console.transceiver().loseNextAnswer();
    return std::string(done);
}

template <bool plugged>
std::string plug(Console& console, const Words&) {
    Faults faults = console.transceiver().faults();
    faults.unplugged = !plugged;
    console.transceiver().setFaults(faults);
    return std::string(done);
}

std::string state(Console& console, const Words&) {
    const RadioState& now = console.transceiver().state();
    std::string text;
    for (const Side side : {Side::a, Side::b}) {
        const VfoSide& each = now.side(side);
        const OperatingMode* eachMode = modeOfCode(each.tuning().mode);
        text += side == Side::a ? "A" : "B";
        text += " " + std::to_string(each.tuning().frequency) + " " + std::string(eachMode->name);
        if (each.recalled) text += " memory " + std::to_string(each.channel);
        if (side == now.active) text += " active";
        text += "\n";
    }
    text += now.powered ? "power on" : "power off";
    text += now.transmitting || now.keyed ? ", transmitting" : ", receiving";
    text += now.autoInformation ? ", auto information on" : ", auto information off";
    text += ", signal " + std::to_string(now.signalLevel) + "\n";
    for (const std::string_view command :
         {"AG0;", "RG0;", "PC;", "GT0;", "RA0;", "PA0;", "NB0;", "NR0;", "BC0;", "BI;"})
        text += console.transceiver().ask(command) + " ";
    text.back() = '\n';
    return text;
}

std::string received(Console& console, const Words&) {
    const ReceivedLog& log = console.transceiver().received();
    std::string text;
    for (const ReceivedCommand& command : log.commands()) {
        std::array<char, 32> seconds{};
        std::snprintf(seconds.data(), seconds.size(), "%10.3f ", std::chrono::duration<double>(command.at).count());
        text += seconds.data() + command.text + "\n";
    }
    text += "total " + std::to_string(log.total());
    for (const auto& [name, count] : log.counts()) text += " " + name + " " + std::to_string(count);
    return text + "\n";
}

std::string clear(Console& console, const Words&) {
    console.transceiver().clearReceived();
    return std::string(done);
}

std::string raw(Console& console, const Words& words) {
    console.transceiver().sendRaw(words[1]);
    return std::string(done);
}

std::string onAir(Console& console, const Words&) {
    std::string text;
    for (const std::string& sent : console.transceiver().textsOnAir()) text += sent + "\n";
    return text + "total " + std::to_string(console.transceiver().textsOnAir().size()) + "\n";
}

std::string help(Console&, const Words&) { return Console::help(); }

std::string quit(Console& console, const Words&) {
    console.finish();
    return std::string(done);
}

struct TypedCommand {
    std::string_view name;
    std::string_view arguments;
    std::size_t fewest;  ///< arguments that must be there
    std::size_t most;
    std::string_view meaning;
    std::string (*execute)(Console& console, const Words& words);
};

/// Its only argument is the rest of the line, with its blanks.
constexpr std::size_t restOfLine = 1'000;

constexpr std::array typedCommands{
    TypedCommand{"tune", "HERTZ", 1, 1, "tune the VFO in use", tune},
    TypedCommand{"step", "+HERTZ|-HERTZ", 1, 1, "tune it up or down", step},
    TypedCommand{"mode", "NAME", 1, 1, "choose a mode, such as USB or CW-U", mode},
    TypedCommand{"signal", "LEVEL [HERTZ]", 1, 2, "put a signal on the air, 0 to 255, HERTZ off the dial", signal},
    TypedCommand{"spin", "SECONDS", 1, 1, "spin the knob: 110 reports a second", spin},
    TypedCommand{"gain", "LEVEL", 1, 1, "turn the AF gain, 0 to 255", gain},
    TypedCommand{"watts", "WATTS", 1, 1, "turn the power, 5 to 100", watts},
    TypedCommand{"set", "COMMANDS", 1, restOfLine, "as if done at the panel: set NB01;VS1;", set},
    TypedCommand{"memory", "CHANNEL HERTZ MODE \"TAG\" | CHANNEL clear", 2, 4, "program or empty a channel", memory},
    TypedCommand{"power", "on|off", 1, 1, "press the power key", power},
    TypedCommand{"silent", "on|off", 1, 1, "no answers and no reports", switchFault<&Faults::silent>},
    TypedCommand{"lose-first", "", 0, 0, "the next answer is lost", loseFirst},
    TypedCommand{"cut", "on|off", 1, 1, "answers come in two pieces", switchFault<&Faults::cutAnswers>},
    TypedCommand{"noise", "on|off", 1, 1, "random bytes between the answers", switchFault<&Faults::noise>},
    TypedCommand{"late", "on|off", 1, 1, "answers come a second late", switchFault<&Faults::lateAnswers>},
    TypedCommand{"lossy", "on|off", 1, 1, "one answer or report in eight is lost", switchFault<&Faults::lossy>},
    TypedCommand{"unplug", "", 0, 0, "pull the plug: the port disappears", plug<false>},
    TypedCommand{"plug", "", 0, 0, "plug it in again", plug<true>},
    TypedCommand{"state", "", 0, 0, "frequencies, modes and settings", state},
    TypedCommand{"received", "", 0, 0, "received commands: seconds, command, counts", received},
    TypedCommand{"clear", "", 0, 0, "forget the received commands", clear},
    TypedCommand{"on-air", "", 0, 0, "the texts that were transmitted", onAir},
    TypedCommand{"raw", "TEXT", 1, restOfLine, "send a text unchanged on the line", raw},
    TypedCommand{"help", "", 0, 0, "this list", help},
    TypedCommand{"quit", "", 0, 0, "end", quit},
};

std::string usage(const TypedCommand& command) {
    return std::string(command.name) + (command.arguments.empty() ? "" : " ") + std::string(command.arguments);
}

/// The line after its first word.
std::string afterFirstWord(std::string_view line) {
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    line.remove_prefix(std::min(line.find_first_of(" \t"), line.size()));
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    return std::string(line);
}

}  // namespace

std::vector<std::string> wordsOf(std::string_view line) {
    std::vector<std::string> words;
    bool quoted = false;
    bool inWord = false;
    for (const char character : line) {
        const bool blank = character == ' ' || character == '\t' || character == '\r';
        if (blank && !quoted) {
            inWord = false;
            continue;
        }
        if (!inWord) words.emplace_back();
        inWord = true;
        if (character == '"')
            quoted = !quoted;
        else
            words.back().push_back(character);
    }
    return words;
}

std::string Console::execute(std::string_view line) {
    if (line.ends_with('\r')) line.remove_suffix(1);
    Words words = wordsOf(line);
    if (words.empty()) return {};
    const auto found = std::ranges::find(typedCommands, words[0], &TypedCommand::name);
    if (found == typedCommands.end()) return "unknown command: " + words[0] + " (help lists them)\n";
    const std::size_t arguments = words.size() - 1;
    if (arguments < found->fewest || arguments > found->most) return "say " + usage(*found) + "\n";
    if (found->most == restOfLine) words = {words[0], afterFirstWord(line)};
    return found->execute(*this, words);
}

std::string Console::help() {
    constexpr std::size_t column = 30;
    std::string text;
    for (const TypedCommand& command : typedCommands) {
        std::string row = "  " + usage(command);
        row.resize(std::max(row.size() + 2, column), ' ');
        text += row + std::string(command.meaning) + "\n";
    }
    return text;
}

}  // namespace simulator

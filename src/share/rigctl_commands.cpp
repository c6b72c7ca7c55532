#include "share/rigctl_commands.h"

#include <algorithm>
#include <array>

#include "share/rigctl_handlers.h"

namespace corvane {

namespace {

using namespace rigctl;
using enum RigctlCommand::Needs;

constexpr RigctlCommand get(char letter, std::string_view name, void (*handle)(RigctlExchange&),
                            std::size_t arguments = 0) {
    return {letter, name, arguments, false, false, transceiver, handle};
}
constexpr RigctlCommand set(char letter, std::string_view name, std::size_t arguments,
                            void (*handle)(RigctlExchange&)) {
    return {letter, name, arguments, false, true, transceiver, handle};
}
constexpr RigctlCommand fact(char letter, std::string_view name, void (*handle)(RigctlExchange&),
                             std::size_t arguments = 0) {
    return {letter, name, arguments, false, false, nothing, handle};
}

constexpr std::array commands{
    get('f', "get_freq", getFrequency),
    set('F', "set_freq", 1, setFrequency),
    get('m', "get_mode", getMode),
    set('M', "set_mode", 2, setMode),
    get('v', "get_vfo", getVfo),
    set('V', "set_vfo", 1, setVfo),
    get('t', "get_ptt", getTransmit),
    RigctlCommand{'T', "set_ptt", 1, false, true, nothing, setTransmit},
    get('s', "get_split_vfo", getSplit),
    set('S', "set_split_vfo", 2, setSplit),
    get('i', "get_split_freq", getSplitFrequency),
    set('I', "set_split_freq", 1, setSplitFrequency),
    get('x', "get_split_mode", getSplitMode),
    set('X', "set_split_mode", 2, setSplitMode),
    get('k', "get_split_freq_mode", getSplitFrequencyAndMode),
    set('K', "set_split_freq_mode", 3, setSplitFrequencyAndMode),
    get('j', "get_rit", getClarifier),
    get('z', "get_xit", getTransmitClarifier),
    get('l', "get_level", getLevel, 1),
    set('L', "set_level", 2, setLevel),
    get('u', "get_func", getFunction, 1),
    set('U', "set_func", 2, setFunction),
    get('e', "get_mem", getChannel),
    set('E', "set_mem", 1, setChannel),
    set('G', "vfo_op", 1, operateVfo),
    RigctlCommand{'b', "send_morse", 1, true, true, transceiver, sendMorse},
    set('\0', "wait_morse", 0, waitForMorse),
    fact('\0', "get_powerstat", getPower),
    RigctlCommand{'\0', "set_powerstat", 1, false, true, nothing, setPower},
    fact('\0', "get_lock_mode", getLock),
    RigctlCommand{'\0', "set_lock_mode", 1, false, true, nothing, setLock},
    fact('\0', "chk_vfo", checkVfo),
    fact('_', "get_info", getInformation),
    fact('\0', "get_vfo_list", listVfos),
    fact('\0', "get_modes", listModes),
    get('\0', "get_vfo_info", getVfoInformation, 1),
    get('\0', "get_rig_info", getRigInformation),
    fact('\0', "dump_state", dumpState),
    fact('1', "dump_caps", dumpCapabilities),
    fact('2', "power2mW", partToMilliwatts, 3),
    fact('4', "mW2power", milliwattsToPart, 3),
    fact('q', "quit", quit),
    fact('Q', "exit", quit),
};

}  // namespace

const RigctlCommand* rigctlCommand(char letter) {
    const auto found = std::ranges::find(commands, letter, &RigctlCommand::letter);
    return letter == '\0' || found == commands.end() ? nullptr : &*found;
}

const RigctlCommand* rigctlCommand(std::string_view name) {
    const auto found = std::ranges::find(commands, name, &RigctlCommand::name);
    return found == commands.end() ? nullptr : &*found;
}

}  // namespace corvane

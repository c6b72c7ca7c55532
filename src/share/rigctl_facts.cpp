// What the server says of itself and of the transceiver's kind, made from the tables.
#include <fmt/core.h>

#include <cmath>

#include "share/rigctl_handlers.h"
#include "share/rigctl_levels.h"
#include "share/rigctl_modes.h"
#include "wire/decimal_number.h"
#include "wire/tuning_range.h"

namespace corvane::rigctl {

namespace {

constexpr int vfoMask = 0x3;  // A and B
constexpr int antennaMask = 0x1;
constexpr int vfoOperations = (1 << 1) | (1 << 3) | (1 << 11) | (1 << 12);  // XCHG TO_VFO TUNE TOGGLE
constexpr int lowPower = 5'000;                                             // milliwatts
constexpr int highPower = 100'000;
constexpr int protocolVersion = 1;
constexpr int model = 2;  // as every server of this protocol says

// Of the radio amateurs in all regions; the transceiver itself refuses what it may not.
std::string range(int low, int high) {
    return fmt::format("{:.6f} {:.6f} {:#x} {} {} {:#x} {:#x}\n0 0 0 0 0 0 0\n", lowestMegahertz * 1e6,
                       highestMegahertz * 1e6, allRigctlModes(), low, high, vfoMask, antennaMask);
}

std::string filters() {
    std::string lines;
    for (const RigctlMode& mode : rigctlModes)
        lines += fmt::format("{:#x} {}\n", std::uint64_t{1} << mode.bit, mode.passband);
    return lines + "0 0\n";
}

std::string masks() {
    std::string lines;
    for (const std::uint64_t mask : {rigctlFunctionMask(), rigctlFunctionMask(), rigctlLevelMask(false),
                                     rigctlLevelMask(true), std::uint64_t{0}, std::uint64_t{0}})
        lines += fmt::format("{:#x}\n", mask);
    return lines;
}

}  // namespace

void checkVfo(RigctlExchange& exchange) {
    exchange.answer.bare = true;
    exchange.answer.add("ChkVFO", 0);
}

void getLock(RigctlExchange& exchange) { exchange.answer.add("Locked", 0); }
void getInformation(RigctlExchange& exchange) { exchange.answer.add("Info", "Corvane"); }
void listVfos(RigctlExchange& exchange) { exchange.answer.add("", "VFOA VFOB Sub Main MEM currVFO "); }

void listModes(RigctlExchange& exchange) {
    std::string names;
    for (const RigctlMode& mode : rigctlModes) names.append(mode.name).append(" ");
    exchange.answer.add("", names);
}

void dumpState(RigctlExchange& exchange) {
    const std::uint64_t modes = allRigctlModes();
    std::string text = fmt::format("{}\n{}\n0\n", protocolVersion, model);
    text += range(-1, -1) + range(lowPower, highPower);
    text += fmt::format("{:#x} 1\n{:#x} 0\n0 0\n", modes, modes) + filters();
    text += "0\n0\n0\n0\n10 20 \n6 12 18 \n" + masks();
    text += fmt::format(
        "vfo_ops={:#x}\nptt_type=0x1\ntargetable_vfo=0x3\nhas_set_vfo=1\nhas_get_vfo=1\nhas_set_freq=1\n"
        "has_get_freq=1\nhas_set_conf=0\nhas_get_conf=0\nhas_power2mW=1\nhas_mW2power=1\ntimeout=0\nrig_model={}\n"
        "rigctld_version=Corvane\nagc_levels=0=OFF 2=FAST 5=MEDIUM 3=SLOW 6=AUTO\nctcss_list=\ndcs_list=\ndone",
        vfoOperations, model);
    exchange.answer.add("", text);
}

void dumpCapabilities(RigctlExchange& exchange) {
    exchange.answer.add("", fmt::format("Caps dump for model: {}\nModel name:\tCorvane\nMfg name:\tCorvane\n"
                                        "PTT type:\tRig capable\nHas targetable VFO: Y\nPreamp: 10dB 20dB\n"
                                        "Attenuator: 6dB 12dB 18dB\nGet level: {}\nSet level: {}",
                                        model, rigctlLevelNames(false), rigctlLevelNames(true)));
}

void partToMilliwatts(RigctlExchange& exchange) {
    const auto part = decimalNumber(exchange.word(0));
    if (!part || *part < 0 || *part > 1) return exchange.fail(RigctlError::invalid);
    exchange.answer.add("Power mW", std::lround(*part * highPower));
}

void milliwattsToPart(RigctlExchange& exchange) {
    const auto milliwatts = decimalNumber(exchange.word(0));
    if (!milliwatts || *milliwatts < 0 || *milliwatts > highPower) return exchange.fail(RigctlError::invalid);
    exchange.answer.add("Power [0.0..1.0]", withDecimals(*milliwatts / highPower, 6));
}

void quit(RigctlExchange& exchange) {
    exchange.answer.status = true;
    exchange.answer.closes = true;
}

}  // namespace corvane::rigctl

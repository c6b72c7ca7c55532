#include "simulator/start_state.h"

#include <array>

namespace simulator {

namespace {

struct StoredChannel {
    int number;
    Tuning tuning;
    std::string_view tag;
};

struct StoredText {
    TextFamily family;
    int number;
    std::string_view text;
};

constexpr Tuning startOfA{14'250'000, '2'};
constexpr Tuning startOfB{7'074'000, 'C'};
constexpr int startSignal = 42;  // about S4: a quiet band

constexpr std::array channels{
    StoredChannel{1, {14'250'000, '2'}, "20M PHONE"},    StoredChannel{2, {7'200'000, '1'}, "40M PHONE"},
    StoredChannel{3, {14'074'000, 'C'}, "20M FT8"},      StoredChannel{4, {7'074'000, 'C'}, "40M FT8"},
    StoredChannel{5, {14'050'000, '3'}, "20M CW"},       StoredChannel{6, {7'030'000, '7'}, "40M CW QRP"},
    StoredChannel{7, {14'070'150, 'E'}, "20M PSK31"},    StoredChannel{8, {14'090'000, '9'}, "20M RTTY"},
    StoredChannel{9, {10'000'000, '5'}, "TIME SIGNAL"},  StoredChannel{10, {3'750'000, '1'}, "80M PHONE"},
    StoredChannel{12, {29'600'000, '4'}, "10M FM CALL"}, StoredChannel{20, {50'125'000, '2'}, "6M CALLING"},
    StoredChannel{50, {1'100'000, '5'}, "MEDIUM WAVE"},  StoredChannel{99, {28'400'000, '2'}, "10M PHONE"},
};

constexpr std::array texts{
    StoredText{TextFamily::cw, 1, "CQ CQ CQ DE N0CALL N0CALL K"},
    StoredText{TextFamily::cw, 2, "DE N0CALL"},
    StoredText{TextFamily::cw, 3, "UR RST 599 599 BK"},
    StoredText{TextFamily::cw, 4, "TNX FER QSO 73 DE N0CALL SK"},
    StoredText{TextFamily::cw, 5, "QRZ? DE N0CALL K"},
    StoredText{TextFamily::rtty, 1, "CQ CQ CQ DE N0CALL N0CALL K"},
    StoredText{TextFamily::rtty, 2, "DE N0CALL N0CALL"},
    StoredText{TextFamily::rtty, 3, "UR 599 599 DE N0CALL"},
    StoredText{TextFamily::rtty, 4, "TU 73 DE N0CALL"},
    StoredText{TextFamily::rtty, 5, "QRZ DE N0CALL"},
    StoredText{TextFamily::psk, 1, "CQ CQ CQ de N0CALL N0CALL pse K"},
    StoredText{TextFamily::psk, 2, "Name here is Alex"},
    StoredText{TextFamily::psk, 3, "Ur rpt 599 599 fine copy"},
    StoredText{TextFamily::psk, 4, "Thanks for the nice QSO, 73 de N0CALL"},
    StoredText{TextFamily::psk, 5, "QRZ? de N0CALL"},
};

}  // namespace

RadioState startState() {
    RadioState state;
    state.side(Side::a) = {startOfA, 1, {}};
    state.side(Side::b) = {startOfB, 2, {}};
    state.bands.remember(startOfA);
    state.bands.remember(startOfB);
    state.signalLevel = startSignal;
    for (const StoredChannel& channel : channels) {
        state.memories.write(channel.number, channel.tuning);
        state.memories.writeTag(channel.number, channel.tag);
    }
    for (const StoredText& text : texts) state.texts.store(text.family, text.number, text.text);
    return state;
}

}  // namespace simulator

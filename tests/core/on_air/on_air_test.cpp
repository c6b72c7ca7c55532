// The lamp "ON AIR", the word of warning before transmitting out of one's segment, and the time-out.
#include "on_air/on_air.h"

#include <gmock/gmock.h>

#include "display/spoken_state.h"
#include "tests/support/radio_bench.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view outside = "out of your segment";

struct OnAirBench : RadioBench {
    void operate(std::string_view atThePanel) {
        transceiver.operate(atThePanel);
        settle();
    }
    std::string lamp() const { return display.onAirField.stringValue(); }
    std::string segment() const { return display.segmentField.stringValue(); }
    Writes writesOf(const std::function<void()>& happening) {
        takeWrites();
        happening();
        return takeWrites();
    }
};

TEST(OnAir, LampFollowsWhatTheTransceiverReportsAndClaimsNothingElse) {
    OnAirBench bench;
    EXPECT_EQ(bench.lamp(), "") << "it has not reported yet";
    bench.operate("TX1;");
    EXPECT_EQ(bench.lamp(), "ON AIR");
    EXPECT_EQ(spokenState(bench.display), "VFO A, 14.250.000 MHz, USB, on air, General");
    bench.operate("TX0;");
    EXPECT_EQ(bench.lamp(), "receiving");
    // A program that has asked for it is not on the air before the transceiver says so.
    bench.controller.sharedTransceiver.set(Item::transmit, 1, "AI;");
    EXPECT_EQ(bench.lamp(), "receiving");
    // After each of these nobody tells any more whether the transmission has ended.
    struct End {
        const char* how;
        void (*happen)(OnAirBench& bench);
    };
    for (const auto& [how, happen] : {
             End{"closed", [](OnAirBench& ended) { ended.display.openCloseButton.performClick(); }},
             End{"unplugged", [](OnAirBench& ended) { ended.port->unplug(); }},
             End{"reports off", [](OnAirBench& ended) { ended.controller.sendCommand("AI0;"); }},
             End{"switched off", [](OnAirBench& ended) { ended.receive("PS0;"); }},
         }) {
        OnAirBench ended;
        ended.operate("TX2;FA014010000;TX1;");
        EXPECT_EQ(ended.lamp(), "ON AIR") << how;
        happen(ended);
        EXPECT_EQ(ended.lamp(), "") << how;
        EXPECT_EQ(ended.segment(), "") << how;
        EXPECT_THAT(spokenState(ended.display), testing::Not(testing::HasSubstr("on air"))) << how;
    }
}

TEST(OnAir, SaysBeforehandThatTheTransmitFrequencyIsOutOfTheSegment) {
    const struct {
        const char* panel;
        const char* ownClass;
        bool outside;
    } cases[] = {
        {"FA014010000;", "General", true},
        {"FA014010000;", "Extra", false},
        {"FA014010000;", "Not set", false},
        {"FA014025000;", "General", false},
        {"FA014024999;", "General", true},
        {"FA014350000;", "Not set", true},
        {"FA001000000;", "Extra", true},
        // With split the other side transmits; VFO B stands on 7.074 MHz.
        {"FA014010000;ST1;", "General", false},
        {"FB014010000;ST1;", "General", true},
        {"FB014010000;ST1;", "Advanced", true},
        {"FB014010000;ST1;VS1;", "General", false},
        {"FB014010000;", "General", false},
        // A memory channel: 3 is programmed with 14.010 MHz.
        {"MC003;", "General", true},
        {"MC003;", "Extra", false},
        {"MC003;ST1;", "General", false},
    };
    for (const auto& [panel, ownClass, out] : cases) {
        OnAirBench bench;
        bench.transceiver.programChannel(3, {{14'010'000, '3'}, "DX"});
        auto& popUp = bench.display.ownClassPopUpButton;
        popUp.choose(*popUp.titles().indexOf(ownClass));
        bench.operate(panel);
        EXPECT_EQ(bench.segment(), out ? outside : "") << panel << ownClass;
        EXPECT_EQ(spokenState(bench.display).ends_with(outside), out) << panel << ownClass;
    }
    OnAirBench bench;
    bench.operate("FA014024999;");
    bench.display.ownClassPopUpButton.choose(2);
    EXPECT_EQ(bench.segment(), outside) << "the choice counts at once";
    bench.receive("IF000014025200-050001200000;");
    EXPECT_EQ(bench.segment(), outside) << "the transmit clarifier moves it";
    TestBench silent;
    silent.receive("VS0;FA014400000;");
    EXPECT_EQ(silent.display.segmentField.stringValue(), "") << "it does not report changes";
}

TEST(OnAir, WarnsOnceAnOverThatLastsAsLongAsTheTimeOutAndSendsNothing) {
    OnAirBench bench;
    auto& timeOut = bench.display.onAirTimeOutPopUpButton;
    EXPECT_EQ(timeOut.titleOfSelectedItem(), "10 minutes");
    const auto warnings = [&bench] { return std::exchange(bench.around.notices.shown, {}).size(); };
    warnings();
    const Writes writes = bench.writesOf([&] {
        bench.operate("TX1;");
        bench.advance(9min + 59s);
        bench.operate("TX0;TX1;");
        bench.advance(9min + 59s);
        EXPECT_EQ(warnings(), 0) << "each over counts by itself";
        bench.forgetWhatHappened();
        bench.advance(1s);
    });
    EXPECT_THAT(writes, IsEmpty());
    EXPECT_EQ(warnings(), 1);
    EXPECT_THAT(bench.takeSounds(), ElementsAre("alert Glass"));
    EXPECT_THAT(bench.takeSpoken(), ElementsAre("On air for 10 minutes"));
    bench.advance(1h);
    timeOut.choose(1);
    bench.advance(1h);
    EXPECT_EQ(warnings(), 0) << "once";
    EXPECT_EQ(bench.around.settings.values.at("onAirTimeOut"), "1");

    bench.operate("TX0;");
    timeOut.choose(0);
    bench.operate("TX1;");
    bench.advance(1h);
    EXPECT_EQ(warnings(), 0) << "off";
    timeOut.choose(2);
    bench.advance(0ms);
    EXPECT_EQ(warnings(), 1) << "chosen while on air: it has been for longer";

    bench.operate("TX0;TX1;");
    bench.port->unplug();
    bench.advance(1h);
    EXPECT_EQ(warnings(), 0) << "not known to be on air any more";

    for (const auto& [stored, shown] :
         {std::pair{"15", "15 minutes"}, {"0", "Off"}, {"7", "10 minutes"}, {"x", "10 minutes"}}) {
        const TestBench next(MapSettingsStore::Values{{"onAirTimeOut", stored}});
        EXPECT_EQ(next.display.onAirTimeOutPopUpButton.titleOfSelectedItem(), shown);
    }
}

}  // namespace
}  // namespace corvane

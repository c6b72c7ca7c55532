#include <gmock/gmock.h>

#include "tests/support/test_bench.h"

namespace corvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(VoiceAndSounds, TheVoiceGuideSpeaksInOrderWhileItIsOn) {
    TestBench bench;
    bench.controller.speak("20 meters");
    bench.controller.speak("Full power");
    EXPECT_THAT(bench.takeSpoken(), ElementsAre("20 meters", "Full power"));
    for (const std::string off : {"0", "", "yes", "11"}) {
        bench.switchTo("voice", off);
        bench.press(20);
        EXPECT_THAT(bench.takeSpoken(), IsEmpty()) << off;
        EXPECT_EQ(bench.takeWrites(), (Writes{"BS05;", "BI1;"}));
    }
}

TEST(VoiceAndSounds, AlertsSoundEvenWhileSoundsAreOff) {
    TestBench bench;
    bench.controller.playSound("Funk");
    bench.controller.playSystemSound("Tink");
    EXPECT_THAT(bench.takeSounds(), ElementsAre("file Funk", "alert Tink"));
    for (const std::string off : {"0", "", "yes"}) {
        bench.switchTo("sounds", off);
        bench.controller.playSound("Funk");
        bench.port->close();
        bench.port->open();
        EXPECT_THAT(bench.takeSounds(), ElementsAre("alert Bottle")) << off;
    }
}

TEST(VoiceAndSounds, HelpOpensItsPage) {
    TestBench bench;
    bench.controller.showHelp();
    EXPECT_THAT(bench.around.browser.opened, ElementsAre("https://site.example/corvane/"));
}

TEST(VoiceAndSounds, OneServerMayStandForAllServices) {
    EXPECT_EQ(ServiceHosts::from("http://127.0.0.1:9000//").helpPage(), "http://127.0.0.1:9000/corvane/");
    EXPECT_EQ(ServiceHosts::from("").helpPage(), ServiceHosts{}.helpPage());
}

TEST(VoiceAndSounds, AClubsServerHasTheDirectoryAndTheHelpOnly) {
    const ServiceHosts hosts = ServiceHosts::from("", "https://club.example/");
    EXPECT_EQ(hosts.directory, "https://club.example");
    EXPECT_EQ(hosts.helpPage(), "https://club.example/corvane/");
    EXPECT_EQ(hosts.pota, ServiceHosts{}.pota);
    EXPECT_EQ(ServiceHosts::from("http://127.0.0.1:9000", "https://club.example").map, "http://127.0.0.1:9000");
    ServiceHosts kept = hosts;
    for (const char* const wrong : {"club.example", "https://", "ftp://club.example", "https://club example"}) {
        EXPECT_FALSE(kept.setDirectory(wrong)) << wrong;
        EXPECT_EQ(kept.directory, hosts.directory) << wrong;
    }
}

}  // namespace
}  // namespace corvane

#include <gtest/gtest.h>

#include <QByteArray>
#include <QElapsedTimer>
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <set>
#include <sndfile.hh>
#include <string>
#include <vector>

#include "qt/platform/pulse_sound_player.h"

namespace corvane {
namespace {

TEST(SoundFileTest, NamesThatLeaveTheFolderGiveNothing) {
    EXPECT_EQ(soundFile("/s", "Funk"), "/s/Funk.aiff");
    for (const char* name : {"", "../x", "..", ".", "/etc/passwd", "alerts/Tink", ".hidden"}) {
        EXPECT_EQ(soundFile("/s", name), "") << name;
    }
    EXPECT_EQ(soundFile("/s", std::string("a\0b", 3)), "");
}

TEST(PulseSoundPlayerTest, WithoutAServerOrAFileNothingPlaysAndNothingWaits) {
    qputenv("PULSE_SERVER", "unix:/no/such/socket");
    QElapsedTimer clock;
    clock.start();
    {
        PulseSoundPlayer player(SOUNDS_FOLDER);
        for (int i = 0; i < 100; ++i) player.playAlert("Tink");
        player.playFile("Seatbelts");
        player.playFile("NoSuchSound");
        player.playFile("../../../../etc/passwd");
    }
    EXPECT_LT(clock.elapsed(), 500);
}

// Each sound is short, mono and of moderate level, begins and ends softly, and differs from the others.
TEST(SoundsTest, AreShortSoftAndDistinct) {
    std::set<std::vector<std::int16_t>> all;
    const std::vector<std::string> names = {"Seatbelts",   "Funk",          "alerts/Tink", "alerts/Basso",
                                            "alerts/Frog", "alerts/Bottle", "alerts/Glass"};
    for (const std::string& name : names) {
        SndfileHandle file(std::string(SOUNDS_FOLDER) + "/" + name + ".aiff");
        ASSERT_TRUE(file) << name;
        EXPECT_EQ(file.format(), SF_FORMAT_AIFF | SF_FORMAT_PCM_16) << name;
        EXPECT_EQ(file.channels(), 1) << name;
        EXPECT_EQ(file.samplerate(), 22050) << name;
        EXPECT_LT(file.frames(), 22050) << name;
        std::vector<std::int16_t> samples(static_cast<std::size_t>(file.frames()));
        ASSERT_EQ(file.read(samples.data(), file.frames()), file.frames()) << name;
        const auto [low, high] = std::minmax_element(samples.begin(), samples.end());
        const int peak = std::max(-*low, static_cast<int>(*high));
        EXPECT_GT(peak, 8000) << name;
        EXPECT_LT(peak, 16000) << name;
        EXPECT_LT(std::abs(samples.front()) + std::abs(samples.back()), 200) << name;
        all.insert(std::move(samples));
    }
    EXPECT_EQ(all.size(), names.size());
}

}  // namespace
}  // namespace corvane

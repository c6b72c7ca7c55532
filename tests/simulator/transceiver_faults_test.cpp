#include <gtest/gtest.h>

#include "tests/simulator/radio_on_line.h"

namespace simulator {
namespace {

using namespace std::chrono_literals;

TEST(TransceiverFaults, SilentItHearsButSaysNothing) {
    RadioOnLine line;
    line.radio.setFaults({.silent = true});
    EXPECT_EQ(line.exchange("AI1;FA;FA007100000;ZZ;"), "");
    line.radio.setFaults({});
    EXPECT_EQ(line.exchange("FA;"), "FA007100000;");
}

TEST(TransceiverFaults, OneAnswerIsLost) {
    RadioOnLine line;
    line.radio.loseNextAnswer();
    EXPECT_EQ(line.exchange("FA;FB;FA;"), "FB007074000;FA014250000;");
}

TEST(TransceiverFaults, ALossyLineLosesOneInEight) {
    RadioOnLine line;
    line.radio.setFaults({.lossy = true});
    int answers = 0;
    for (int question = 0; question < 800; ++question) answers += line.exchange("FA;").empty() ? 0 : 1;
    EXPECT_NEAR(answers, 700, 40);
}

TEST(TransceiverFaults, CutAnswersComeInTwoPiecesInOrder) {
    RadioOnLine line;
    line.radio.setFaults({.cutAnswers = true});
    EXPECT_EQ(line.exchange("FA;FB;"), "FA014250000;FB007074000;");
    EXPECT_EQ(line.pieces.size(), 4U);
    for (const std::string& piece : line.pieces) EXPECT_LT(piece.size(), 12U);
}

TEST(TransceiverFaults, LateAnswersComeAfterASecondAndInOrder) {
    for (const bool instant : {false, true}) {
        RadioOnLine line;
        line.radio.setInstantAnswers(instant);
        line.radio.setFaults({.lateAnswers = true});
        EXPECT_EQ(line.exchange("FA;", 999ms), "");
        line.radio.setFaults({});
        EXPECT_EQ(line.exchange("FB;", 100ms), "FA014250000;FB007074000;");
    }
}

TEST(TransceiverFaults, NoiseNeverEndsACommandAndIsTheSameForTheSameSeed) {
    std::string first;
    for (const bool again : {false, true}) {
        RadioOnLine line;
        line.radio.seedNoise(42);
        line.radio.setFaults({.noise = true});
        line.pass(10s);
        EXPECT_GT(line.sent.size(), 200U);
        EXPECT_EQ(line.sent.find(';'), std::string::npos);
        EXPECT_NE(line.sent.find('\xff'), std::string::npos) << "bytes that are never valid text";
        if (again) {
            EXPECT_EQ(line.sent, first);
        }
        first = line.sent;
        EXPECT_NE(line.exchange("FA;").find("FA014250000;"), std::string::npos);
        line.radio.setFaults({});
        EXPECT_FALSE(line.radio.nextEvent().has_value());
    }
}

TEST(TransceiverFaults, UnpluggedNothingGoesEitherWay) {
    RadioOnLine line;
    line.exchange("AI1;");
    line.radio.receive("FA;FA0071", line.now);
    line.radio.setFaults({.unplugged = true});
    line.pass(1s);
    EXPECT_EQ(line.exchange("FB;FB001100000;"), "");
    line.radio.tune(7'200'000);
    line.radio.sendRaw("FA000000000;");
    line.radio.setFaults({});
    line.pass(1s);
    EXPECT_EQ(line.sent, "") << "changes while unplugged are not reported later";
    EXPECT_EQ(line.exchange("FA;FB;AI;"), "FA007200000;FB007074000;AI1;") << "and the half command is forgotten";
}

}  // namespace
}  // namespace simulator

#include "radio/response_assembler.h"

#include <gmock/gmock.h>

namespace corvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Texts = std::vector<std::string>;

struct ResponseAssemblerTest : testing::Test {
    Texts delivered;
    ResponseAssembler assembler{[this](std::string_view response) { delivered.emplace_back(response); }};
    const std::string mostHeld = std::string(ResponseAssembler::limit, 'x');
};

TEST_F(ResponseAssemblerTest, HandsOverWholeResponsesHoweverTheyAreCut) {
    const Texts whole{"FA014250000;", "MD02;", ";", "RM1100000;"};
    const std::string stream = "FA014250000;MD02;;RM1100000;";
    for (std::size_t size = 1; size <= stream.size(); ++size) {
        delivered.clear();
        for (std::size_t at = 0; at < stream.size(); at += size)
            assembler.feed(std::string_view(stream).substr(at, size));
        EXPECT_EQ(delivered, whole) << "in chunks of " << size;
        EXPECT_FALSE(assembler.holdsTail());
    }
}

TEST_F(ResponseAssemblerTest, HandsOverAnUnfinishedTailWhenPatienceEnds) {
    assembler.feed("MD02;FA0142");
    EXPECT_TRUE(assembler.holdsTail());
    assembler.expire();
    assembler.expire();
    EXPECT_FALSE(assembler.holdsTail());
    assembler.feed("50000;");
    EXPECT_THAT(delivered, ElementsAre("MD02;", "FA0142", "50000;"));
}

TEST_F(ResponseAssemblerTest, ForgetsTheTailWhenCleared) {
    assembler.feed("FA0142");
    assembler.clear();
    EXPECT_FALSE(assembler.holdsTail());
    assembler.feed("MD02;");
    assembler.feed(mostHeld + "x");
    assembler.clear();
    assembler.feed("MD03;");
    EXPECT_THAT(delivered, ElementsAre("MD02;", "MD03;"));
}

TEST_F(ResponseAssemblerTest, HoldsNoMoreThanItsLimit) {
    const std::string longest = mostHeld.substr(1) + ';';
    assembler.feed(longest);
    for (const char c : longest) assembler.feed({&c, 1});
    EXPECT_EQ(delivered, (Texts{longest, longest}));
    delivered.clear();

    assembler.feed(mostHeld + ";FA;");
    for (const char c : mostHeld + ";FB;") assembler.feed({&c, 1});
    EXPECT_EQ(delivered, (Texts{"FA;", "FB;"}));
}

TEST_F(ResponseAssemblerTest, DropsALongRunOfNoiseUpToItsEnd) {
    for (int i = 0; i < 1000; ++i) assembler.feed(mostHeld);
    EXPECT_TRUE(assembler.holdsTail());
    assembler.feed("yz;FA014250000;");
    EXPECT_EQ(delivered, Texts{"FA014250000;"});
    EXPECT_FALSE(assembler.holdsTail());

    delivered.clear();
    assembler.feed(mostHeld + 'x');
    assembler.expire();
    EXPECT_THAT(delivered, IsEmpty());
    assembler.feed("MD02;");
    EXPECT_EQ(delivered, Texts{"MD02;"});
}

}  // namespace
}  // namespace corvane

#include "wire/utf8.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

using namespace std::string_view_literals;

TEST(Utf8, TakesWellFormedTextOnly) {
    for (const std::string_view good :
         {""sv, "FA014250000;"sv, "\0;"sv, "\x7F"sv, "\xC2\x80"sv, "\xDF\xBF"sv, "\xE0\xA0\x80"sv, "\xED\x9F\xBF"sv,
          "\xEE\x80\x80"sv, "\xEF\xBF\xBF"sv, "\xF0\x90\x80\x80"sv, "\xF4\x8F\xBF\xBF"sv})
        EXPECT_TRUE(isUtf8(good)) << testing::PrintToString(good);
    for (const std::string_view bad :
         {"\x80"sv, "FA\xBF;"sv, "\xC0\x80"sv, "\xC1\xBF"sv, "\xC2"sv, "\xC2;"sv, "\xE0\x9F\xBF"sv, "\xE2\x82"sv,
          "\xE2\x82;"sv, "\xED\xA0\x80"sv, "\xED\xBF\xBF"sv, "\xF0\x8F\xBF\xBF"sv, "\xF0\x9F\x93"sv,
          "\xF4\x90\x80\x80"sv, "\xF5\x80\x80\x80"sv, "\xFE"sv, "\xFF"sv, "\xC3\xA4\xA4"sv})
        EXPECT_FALSE(isUtf8(bad)) << testing::PrintToString(bad);
}

TEST(Utf8, PrefixCountsCharactersAndCutsNone) {
    const std::string_view text = "a\u00e4\u20ac\U0001F4FBz";
    const std::string_view prefixes[] = {"", "a", "a\u00e4", "a\u00e4\u20ac", "a\u00e4\u20ac\U0001F4FB", text, text};
    for (std::size_t count = 0; count < std::size(prefixes); ++count)
        EXPECT_EQ(utf8Prefix(text, count), prefixes[count]) << count;
}

TEST(Utf8, FirstSignIsWhatAReaderTakesForOne) {
    for (const std::string_view sign :
         {"a", "\u00e9", "e\u0301", "7\ufe0f\u20e3", "\r\n", "\t", "\U0001F44D\U0001F3FD"}) {
        EXPECT_EQ(firstSign(std::string(sign) + "b\u0301"), sign);
        EXPECT_EQ(firstSign(sign), sign);
    }
    EXPECT_EQ(firstSign(""), "");
    EXPECT_EQ(firstSign("\n\u0301"), "\n");
}

}  // namespace
}  // namespace corvane

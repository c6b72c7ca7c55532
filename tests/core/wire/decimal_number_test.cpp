#include "wire/decimal_number.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

TEST(DecimalNumber, IsReadAsAWholeOrNotAtAll) {
    const std::pair<std::string_view, double> numbers[] = {{"14.235", 14.235}, {"014.235", 14.235}, {"+7.1", 7.1},
                                                           {"-7", -7},         {"-0", 0},           {".5", 0.5},
                                                           {"5.", 5},          {"1e3", 1000},       {"2E-2", 0.02}};
    for (const auto& [text, number] : numbers) {
        EXPECT_EQ(decimalNumber(text), number) << text;
        EXPECT_EQ(decimalNumber<float>(text), static_cast<float>(number)) << text;
    }
    for (const char* text :
         {"",     " ",       " 7",       "7 ",   "+",   "-",   "+-7", "++7",       ".",     "e3",
          "14,2", "7.074.5", "14.2 MHz", "0x10", "abc", "nan", "inf", "-infinity", "1e400", "1e-400"}) {
        EXPECT_EQ(decimalNumber(text), std::nullopt) << text;
        EXPECT_EQ(decimalNumber<float>(text), std::nullopt) << text;
        EXPECT_EQ(numberOrZero(text), 0) << text;
    }
    EXPECT_TRUE(decimalNumber("1e39"));
    EXPECT_FALSE(decimalNumber<float>("1e39"));
}

TEST(DecimalNumber, IsWrittenWithItsFraction) {
    EXPECT_EQ(withDecimals(14.25, 6), "14.250000");
    EXPECT_EQ(withDecimals(1e-9, 6), "0.000000");
    EXPECT_EQ(withDecimals(1e15, 1), "1000000000000000.0");
    EXPECT_EQ(shortestDecimal(45), "45.0");
    EXPECT_EQ(shortestDecimal(0), "0.0");
    EXPECT_EQ(shortestDecimal(-33.8688F), "-33.8688");
    EXPECT_EQ(shortestDecimal(1e-5F), "0.00001");
}

}  // namespace
}  // namespace corvane

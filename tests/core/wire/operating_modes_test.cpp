#include "wire/operating_modes.h"

#include <gmock/gmock.h>

namespace corvane {
namespace {

TEST(OperatingModes, WhatIsNoModeHasNeitherNameNorCode) {
    for (const char code : {'0', 'G', 'a', ' ', ';', '\0'}) {
        EXPECT_EQ(modeName(code), std::nullopt) << code;
        EXPECT_EQ(modeGroup(code), nullptr) << code;
    }
    for (const std::string_view name : {"usb", "USB ", "", "CW", "DATA"}) EXPECT_EQ(modeCode(name), ' ') << name;
    EXPECT_EQ(modePopUpIndex('0'), -1);
    EXPECT_EQ(modePopUpIndex('a'), 0);
}

}  // namespace
}  // namespace corvane

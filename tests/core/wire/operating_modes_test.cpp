#include "wire/operating_modes.h"

#include <gmock/gmock.h>

#include "display/display.h"

namespace corvane {
namespace {

TEST(OperatingModes, CodesAndNamesConvertBothWays) {
    const struct {
        char code;
        std::string_view name;
        int popUpIndex;
        std::string_view boxTitle;
    } modes[] = {{'1', "LSB", 0, ""},         {'2', "USB", 1, ""},         {'3', "CW-U", 2, "Send CW"},
                 {'4', "FM", 3, ""},          {'5', "AM", 4, ""},          {'6', "RTTY-L", 5, "Send RTTY"},
                 {'7', "CW-L", 6, "Send CW"}, {'8', "DATA-L", 7, ""},      {'9', "RTTY-U", 8, "Send RTTY"},
                 {'A', "DATA-FM", 0, ""},     {'B', "FM-N", 0, ""},        {'C', "DATA-U", 0, ""},
                 {'D', "AM-N", 0, ""},        {'E', "PSK", 0, "Send PSK"}, {'F', "DATA-FM-N", 0, ""}};
    for (const auto& mode : modes) {
        EXPECT_EQ(modeName(mode.code), mode.name);
        EXPECT_EQ(modeCode(mode.name), mode.code);
        EXPECT_EQ(modePopUpIndex(mode.code), mode.popUpIndex) << mode.name;
        const ModeGroup* group = modeGroup(mode.code);
        EXPECT_EQ(group ? group->boxTitle : "", mode.boxTitle) << mode.name;
    }
}

TEST(OperatingModes, WhatIsNoModeHasNeitherNameNorCode) {
    for (const char code : {'0', 'G', 'a', ' ', ';', '\0'}) {
        EXPECT_EQ(modeName(code), std::nullopt) << code;
        EXPECT_EQ(modeGroup(code), nullptr) << code;
    }
    for (const std::string_view name : {"usb", "USB ", "", "CW", "DATA"}) EXPECT_EQ(modeCode(name), ' ') << name;
    EXPECT_EQ(modePopUpIndex('0'), -1);
    EXPECT_EQ(modePopUpIndex('a'), 0);
}

TEST(OperatingModes, PopUpListsTheModesInOrderOfTheirCodes) {
    std::vector<std::string> names;
    for (const OperatingMode& mode : operatingModes) names.emplace_back(mode.name);
    EXPECT_EQ(Display().modesPopUpButton.entries(), names);
}

}  // namespace
}  // namespace corvane

#include <gtest/gtest.h>

#include "tests/support/test_bench.h"
#include "wire/decimal_number.h"

namespace corvane {
namespace {

TEST(OperatorClass, EverySegmentBeginsAndEndsWhereItShould) {
    using enum Color;
    // clang-format off
    const struct {
        int lower;  // hertz; the segment ends where the one before it in the list begins
        std::string_view title;
        Color color;
    } segments[] = {
        {54000000, "Out of Band", brown}, {50100000, "Technician", green}, {50000000, "Technician CW", green},
        {29700000, "Out of Band", brown}, {28500000, "General", blue}, {28300000, "Technician", green},
        {28000000, "Technician CW", green}, {24990000, "Out of Band", brown}, {24930000, "General", blue},
        {24890000, "General CW", blue}, {21450000, "Out of Band", brown}, {21275000, "General", blue},
        {21225000, "Advanced", purple}, {21200000, "Extra", pink}, {21025000, "Technician CW", green},
        {21000000, "Extra CW", pink}, {18168000, "Out of Band", brown}, {18110000, "General", blue},
        {18068000, "General CW", blue}, {14350000, "Out of Band", brown}, {14225000, "General", blue},
        {14175000, "Advanced", purple}, {14150000, "Extra", pink}, {14025000, "General CW", blue},
        {14000000, "Extra CW", pink}, {10150000, "Out of Band", brown}, {10100000, "General", blue},
        {7300000, "Out of Band", brown}, {7175000, "General", blue}, {7125000, "Advanced", purple},
        {7025000, "Technician CW", green}, {7000000, "Extra CW", pink}, {5403500, "Out of Band", brown},
        {5330500, "General", blue}, {4000000, "Out of Band", brown}, {3800000, "General", blue},
        {3700000, "Advanced", purple}, {3600000, "Extra", pink}, {3525000, "Technician CW", green},
        {3500000, "Extra CW", pink}, {2000000, "Out of Band", brown}, {1800000, "General", blue},
        {0, "Out of Band", brown},
    };
    // clang-format on
    TestBench bench;
    const Button& button = bench.display.licenseClassButton;
    EXPECT_FALSE(button.visible());
    int upper = 1000000000;
    for (const auto& segment : segments) {
        for (const int hertz : {segment.lower, upper - 100}) {
            bench.controller.showOperatorClass(withDecimals(hertz / 1e6, 6));
            EXPECT_EQ(button.title(), segment.title) << hertz;
            EXPECT_EQ(button.bezelColor(), segment.color) << hertz;
        }
        upper = segment.lower;
    }
    EXPECT_EQ(upper, 0);
    EXPECT_TRUE(button.visible());
    bench.controller.showOperatorClass("x");
    EXPECT_EQ(button.title(), "Out of Band");
}

}  // namespace
}  // namespace corvane

#include <gmock/gmock.h>

#include "tests/support/test_bench.h"

namespace corvane {
namespace {

using testing::IsEmpty;

const struct {
    std::string_view text;
    Writes commands;
} commandTexts[] = {{"", {}},
                    {";;;", {}},
                    {"\n;\n", {}},
                    {"FA", {"FA;"}},
                    {"FA;FB;", {"FA;", "FB;"}},
                    {"FA;;FB", {"FA;", "FB;"}},
                    {"MD02;\n", {"MD02;"}},
                    {"FA0142\n50000;", {"FA014250000;"}},
                    {" FA;\r\n", {" FA;", "\r;"}}};

TEST(SendPath, SendCommandAndTheCommandBoxWriteOneCommandAtATime) {
    TestBench bench;
    for (const auto& [text, commands] : commandTexts) {
        bench.controller.sendCommand(text);
        EXPECT_EQ(bench.takeWrites(), commands) << text;
        bench.display.sendTextField.setStringValue(text);
        bench.display.sendButton.performClick();
        EXPECT_EQ(bench.takeWrites(), commands) << text;
        bench.display.sendTextField.performReturn();
        EXPECT_EQ(bench.takeWrites(), commands) << text;
        EXPECT_EQ(bench.display.sendTextField.stringValue(), text);
    }
}

TEST(SendPath, WriteStringWritesTheTextAsItIs) {
    TestBench bench;
    for (const std::string text : {"VS1;MC002;MC;MW002;VM;VS0;MC001;MC;MW001;VM;", "FA", "KM5CQ\n};"}) {
        bench.controller.writeString(text);
        EXPECT_EQ(bench.takeWrites(), Writes{text});
    }
}

TEST(SendPath, DropsWhatIsNotText) {
    TestBench bench;
    bench.controller.sendCommand("FA;KM1\xFF;KM2\u00e4;");
    bench.controller.writeString("FA;\xC3;");
    EXPECT_EQ(bench.takeWrites(), (Writes{"FA;", "KM2\u00e4;"}));
}

TEST(SendPath, WithoutAnOpenPortNothingIsSentNorKeptForLater) {
    TestBench bench;
    bench.port->close();
    bench.controller.sendCommand("FA;");
    bench.controller.writeString("FB;");
    bench.port->open();
    EXPECT_THAT(bench.takeWrites(), IsEmpty());

    bench.controller.setSerialPort(nullptr);
    bench.controller.sendCommand("FA;");
    bench.controller.writeString("FB;");
    bench.press(20);
    bench.controller.setSerialPort(bench.port);
    bench.port->open();
    EXPECT_THAT(bench.takeWrites(), IsEmpty());
}

}  // namespace
}  // namespace corvane

#include "simulator/pseudo_terminal.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "simulator/port_link.h"

namespace simulator {
namespace {

constexpr int patience = 5'000;  // milliseconds, for a machine under load

bool isReadable(int descriptor) {
    pollfd watched{descriptor, POLLIN, 0};
    return poll(&watched, 1, patience) == 1;
}

TEST(PseudoTerminal, CarriesBytesUnchangedBothWaysAndHangsUpWhenItGoes) {
    const std::string bytes = "FA;\n\r\x03\x04\x11\x7f\xff;";
    int other = -1;
    {
        PseudoTerminal terminal;
        other = open(terminal.path().c_str(), O_RDWR | O_NOCTTY);
        ASSERT_GE(other, 0);
        ASSERT_EQ(write(other, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
        ASSERT_TRUE(isReadable(terminal.descriptor()));
        EXPECT_EQ(terminal.read(), bytes);
        EXPECT_EQ(terminal.read(), "") << "does not wait, and nothing is echoed";
        terminal.write(bytes);
        ASSERT_TRUE(isReadable(other));
        std::string back(64, '\0');
        back.resize(static_cast<std::size_t>(read(other, back.data(), back.size())));
        EXPECT_EQ(back, bytes);
        terminal.write(std::string(1'000'000, 'x'));  // nothing reads: must not wait
    }
    pollfd watched{other, 0, 0};
    EXPECT_EQ(poll(&watched, 1, patience), 1);
    EXPECT_TRUE((watched.revents & POLLHUP) != 0);
    close(other);
}

TEST(PortLink, ReplacesAStaleLinkAndLeavesAloneWhatIsNotItsOwn) {
    namespace fs = std::filesystem;
    const fs::path folder = fs::temp_directory_path() / ("corvane-link-" + std::to_string(getpid()));
    fs::create_directory(folder);
    const fs::path link = folder / "radio";
    fs::create_symlink("/nowhere", link);
    {
        const PortLink first(link, "/dev/first");
        EXPECT_EQ(fs::read_symlink(link), "/dev/first");
        const PortLink second(link, "/dev/second");
        EXPECT_EQ(fs::read_symlink(link), "/dev/second");
    }
    EXPECT_FALSE(fs::is_symlink(fs::symlink_status(link)));
    fs::create_directory(link);
    EXPECT_THROW(PortLink(link, "/dev/first"), fs::filesystem_error);
    EXPECT_TRUE(fs::is_directory(link));
    fs::remove_all(folder);
}

}  // namespace
}  // namespace simulator

#include "qt/platform/system_pseudo_terminal.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <string>

#include "event_loop.h"

namespace corvane {
namespace {

namespace fs = std::filesystem;

struct Program {
    explicit Program(const std::string& path) : end(::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK)) {}
    void send(const std::string& bytes) const {
        EXPECT_EQ(::write(end.get(), bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    }
    std::string read() const {
        std::string bytes(100'000, '\0');
        const auto count = ::read(end.get(), bytes.data(), bytes.size());
        bytes.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
        return bytes;
    }
    FileDescriptor end;
};

TEST(SystemPseudoTerminal, TellsOfProgramsThatComeAndGoAndCarriesTheirBytes) {
    const QTemporaryDir folder;
    SystemPseudoTerminal port(folder.path().toStdString() + "/corvane");
    std::string events;
    std::string received;
    port.onConnected = [&] { events += '+'; };
    port.onReadable = [&] {
        while (true) {
            const std::string bytes = port.read(3);
            received += bytes;
            if (bytes.size() < 3) break;
        }
    };
    port.onDisconnected = [&] {
        received += port.read(100);
        events += '-';
    };
    ASSERT_EQ(port.open(), PseudoTerminal::Opening::yes);
    EXPECT_EQ(fs::status(fs::path(port.path()).parent_path()).permissions(), fs::perms::owner_all);
    port.write("nobody reads this;");
    {
        const Program program(port.path());
        ASSERT_TRUE(program.end);
        program.send("FA;\n\r\x03\x11;");
        ASSERT_TRUE(eventually([&] { return received == "FA;\n\r\x03\x11;"; }));
        EXPECT_EQ(events, "+");
        port.write("FA014250000;\n");
        ASSERT_EQ(program.read(), "FA014250000;\n");
        // One that does not read: what the driver does not take waits here, in order.
        std::string all;
        for (int i = 0; port.backlog() == 0 && i < 1'000'000; ++i) {
            all += std::to_string(i) + ";";
            port.write(std::to_string(i) + ";");
        }
        EXPECT_GT(port.backlog(), 0U);
        std::string taken;
        EXPECT_TRUE(eventually([&] { return (taken += program.read()) == all; }));
        port.write("never read;");
        program.send("TX1;");
    }
    ASSERT_TRUE(eventually([&] { return events == "+-"; }));
    EXPECT_TRUE(received.ends_with(";TX1;")) << "what it sent before it left";
    // One that leaves while another has come already is noticed; no answer of its reaches the next one.
    { const Program killed(port.path()); }
    const Program next(port.path());
    ASSERT_TRUE(eventually([&] { return events == "+-+-+"; })) << events;
    EXPECT_EQ(next.read(), "");

    SystemPseudoTerminal other(folder.path().toStdString() + "/corvane");
    EXPECT_EQ(other.open(), PseudoTerminal::Opening::taken);
    EXPECT_TRUE(fs::exists(port.path()));
    port.close();
    EXPECT_FALSE(fs::is_symlink(fs::symlink_status(port.path())));
    // A link that a crash has left is replaced, a file is not.
    fs::create_symlink("/nowhere", port.path());
    EXPECT_EQ(other.open(), PseudoTerminal::Opening::yes);
    EXPECT_NE(fs::read_symlink(port.path()), "/nowhere");
    other.close();
    fs::create_directory(port.path());
    EXPECT_EQ(other.open(), PseudoTerminal::Opening::failed);
    EXPECT_TRUE(fs::is_directory(port.path()));
    fs::remove(port.path());
    fs::rename(folder.path().toStdString() + "/corvane", folder.path().toStdString() + "/elsewhere");
    fs::create_symlink(folder.path().toStdString() + "/elsewhere", folder.path().toStdString() + "/corvane");
    EXPECT_EQ(other.open(), PseudoTerminal::Opening::failed) << "the folder is a link, perhaps of somebody else";
}

}  // namespace
}  // namespace corvane

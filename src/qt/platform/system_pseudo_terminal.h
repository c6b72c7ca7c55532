// A pseudo-terminal of the system, with a symbolic link to it in the user's runtime folder.
#pragma once

#include <QSocketNotifier>

#include <filesystem>
#include <memory>

#include "platform/pseudo_terminal.h"
#include "qt/platform/file_descriptor.h"

namespace corvane {

// The link is "radio" in a folder that only the user may enter. The folder is locked while the port is offered, so that
// a link that a crash has left is told from that of another running program.
class SystemPseudoTerminal final : public PseudoTerminal {
public:
    static std::filesystem::path defaultFolder();  // "corvane" in $XDG_RUNTIME_DIR

    explicit SystemPseudoTerminal(std::filesystem::path folder) : folder_(std::move(folder)) {}
    ~SystemPseudoTerminal() override;

    Opening open() override;
    void close() override;
    std::string path() const override { return (folder_ / "radio").string(); }
    std::string read(std::size_t limit) override;
    void write(std::string_view bytes) override;
    std::size_t backlog() const override { return unsent_.size(); }

private:
    bool openTerminal();
    bool makeLink() const;
    bool watch();
    void readEvents();
    void connected();
    void disconnected();
    void discardUnread();
    bool hungUp() const;
    void flush();

    const std::filesystem::path folder_;
    FileDescriptor lock_;  // of the folder
    FileDescriptor master_;
    FileDescriptor events_;  // of programs that open and close the other end
    std::string device_;     // "/dev/pts/3"
    int watch_ = -1;
    int programs_ = 0;    // that have it open
    std::string unsent_;  // the rest of what the driver did not take
    std::unique_ptr<QSocketNotifier> readable_, writable_, opened_;
};

}  // namespace corvane

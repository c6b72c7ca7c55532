#include "qt/platform/system_pseudo_terminal.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <termios.h>

#include <QStandardPaths>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>

namespace corvane {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t bufferSize = 4096;

// The user's own folder, which nobody else may enter; nothing when it cannot be had.
FileDescriptor privateFolder(const fs::path& path) {
    std::error_code error;
    fs::create_directories(path.parent_path(), error);
    if (::mkdir(path.c_str(), S_IRWXU) != 0 && errno != EEXIST) return FileDescriptor{};
    FileDescriptor folder(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    struct stat status {};
    if (!folder || ::fstat(folder.get(), &status) != 0 || status.st_uid != ::geteuid()) return FileDescriptor{};
    return ::fchmod(folder.get(), S_IRWXU) == 0 ? std::move(folder) : FileDescriptor{};
}

// The terminal neither echoes nor changes a byte, and its speed reads as the transceiver's.
bool makeRaw(int terminal) {
    termios settings{};
    if (::tcgetattr(terminal, &settings) != 0) return false;
    ::cfmakeraw(&settings);
    ::cfsetspeed(&settings, B38400);
    return ::tcsetattr(terminal, TCSANOW, &settings) == 0;
}

}  // namespace

fs::path SystemPseudoTerminal::defaultFolder() {
    return fs::path(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation).toStdString()) / "corvane";
}

SystemPseudoTerminal::~SystemPseudoTerminal() { close(); }

PseudoTerminal::Opening SystemPseudoTerminal::open() {
    close();
    lock_ = privateFolder(folder_);
    if (!lock_) return Opening::failed;
    if (::flock(lock_.get(), LOCK_EX | LOCK_NB) != 0) {
        lock_.reset();
        return Opening::taken;
    }
    if (openTerminal() && watch() && makeLink()) return Opening::yes;
    close();
    return Opening::failed;
}

bool SystemPseudoTerminal::openTerminal() {
    master_.reset(::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC));
    std::array<char, 128> name{};
    if (!master_ || ::grantpt(master_.get()) != 0 || ::unlockpt(master_.get()) != 0 ||
        ::ptsname_r(master_.get(), name.data(), name.size()) != 0)
        return false;
    device_ = name.data();
    // Until its other end has been opened once, the master does not tell that nobody has it open.
    const FileDescriptor other(::open(device_.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC));
    if (!other || !makeRaw(other.get())) return false;
    readable_ = std::make_unique<QSocketNotifier>(master_.get(), QSocketNotifier::Read);
    readable_->setEnabled(false);
    QObject::connect(readable_.get(), &QSocketNotifier::activated, readable_.get(), [this] {
        readable_->setEnabled(false);
        onReadable();
    });
    writable_ = std::make_unique<QSocketNotifier>(master_.get(), QSocketNotifier::Write);
    writable_->setEnabled(false);
    QObject::connect(writable_.get(), &QSocketNotifier::activated, writable_.get(), [this] { flush(); });
    return true;
}

// An older link is replaced in one step; what is no link is left alone.
bool SystemPseudoTerminal::makeLink() const {
    std::error_code error;
    const fs::path link = path();
    const auto there = fs::symlink_status(link, error);
    if (fs::exists(there) && !fs::is_symlink(there)) return false;
    const fs::path fresh = link.string() + ".new";
    fs::remove(fresh, error);
    fs::create_symlink(device_, fresh, error);
    if (!error) fs::rename(fresh, link, error);
    return !error;
}

bool SystemPseudoTerminal::watch() {
    events_.reset(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
    if (!events_) return false;
    watch_ = ::inotify_add_watch(events_.get(), device_.c_str(), IN_OPEN | IN_CLOSE);
    if (watch_ < 0) return false;
    opened_ = std::make_unique<QSocketNotifier>(events_.get(), QSocketNotifier::Read);
    QObject::connect(opened_.get(), &QSocketNotifier::activated, opened_.get(), [this] { readEvents(); });
    return true;
}

void SystemPseudoTerminal::close() {
    if (opened_) {
        std::error_code error;
        if (fs::read_symlink(path(), error) == fs::path(device_)) fs::remove(path(), error);
    }
    // From within a signal of theirs, too.
    for (auto* notifier : {&readable_, &writable_, &opened_})
        if (*notifier) {
            (*notifier)->setEnabled(false);
            (*notifier)->disconnect();
            notifier->release()->deleteLater();
        }
    events_.reset();
    master_.reset();
    lock_.reset();
    unsent_.clear();
    programs_ = 0;
}

// Programs are counted: one that is started again at once would hide that the first one has gone.
void SystemPseudoTerminal::readEvents() {
    alignas(inotify_event) std::array<char, bufferSize> buffer{};
    const auto count = ::read(events_.get(), buffer.data(), buffer.size());
    for (std::size_t at = 0; count > 0 && at < static_cast<std::size_t>(count);) {
        inotify_event event{};
        std::memcpy(&event, &buffer.at(at), sizeof event);
        at += sizeof event + event.len;
        const bool overflow = (event.mask & IN_Q_OVERFLOW) != 0U;
        if (!overflow && event.wd != watch_) continue;  // our own opening
        if ((event.mask & IN_OPEN) != 0U && ++programs_ == 1) connected();
        if ((event.mask & IN_CLOSE) != 0U && programs_ > 0 && --programs_ == 0) disconnected();
        if (overflow && hungUp() && std::exchange(programs_, 0) > 0) disconnected();
        if (!events_) return;  // closed meanwhile
    }
}

void SystemPseudoTerminal::connected() {
    readable_->setEnabled(true);
    onConnected();
}

void SystemPseudoTerminal::disconnected() {
    readable_->setEnabled(false);
    writable_->setEnabled(false);
    unsent_.clear();
    onDisconnected();
    if (master_) discardUnread();
}

// What a program has left behind, answers unread and commands beyond what was taken, must not meet the next one.
void SystemPseudoTerminal::discardUnread() {
    while (hungUp() && !read(bufferSize).empty()) {
    }
    ::inotify_rm_watch(events_.get(), watch_);
    {
        const FileDescriptor other(::open(device_.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC));
        ::tcflush(other.get(), TCIFLUSH);
    }
    watch_ = ::inotify_add_watch(events_.get(), device_.c_str(), IN_OPEN | IN_CLOSE);
    if (hungUp()) return;
    programs_ = 1;  // it came meanwhile
    connected();
}

bool SystemPseudoTerminal::hungUp() const {
    pollfd state{master_.get(), POLLIN, 0};
    return ::poll(&state, 1, 0) > 0 && (state.revents & POLLHUP) != 0;
}

std::string SystemPseudoTerminal::read(std::size_t limit) {
    std::string bytes(limit, '\0');
    const auto count = master_ ? ::read(master_.get(), bytes.data(), limit) : 0;
    bytes.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    // While nobody has the other end open, the master is readable without end.
    if (programs_ > 0 && bytes.size() < limit) readable_->setEnabled(count > 0 || errno == EAGAIN);
    return bytes;
}

void SystemPseudoTerminal::write(std::string_view bytes) {
    if (programs_ == 0) return;
    unsent_ += bytes;
    flush();
}

void SystemPseudoTerminal::flush() {
    const auto count = ::write(master_.get(), unsent_.data(), unsent_.size());
    if (count > 0) unsent_.erase(0, static_cast<std::size_t>(count));
    writable_->setEnabled(!unsent_.empty());
}

}  // namespace corvane

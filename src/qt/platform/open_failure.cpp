#include "qt/platform/open_failure.h"

#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fstream>
#include <system_error>

namespace corvane {

namespace {

// The group that helps to open the device: its members may read and write it, and it is not the superuser's.
std::string helpfulGroup(const struct stat& status) {
    if (status.st_gid == 0 || (status.st_mode & 0060U) != 0060U) return {};
    std::array<char, 4096> text{};
    group entry{};
    group* found = nullptr;
    if (::getgrgid_r(status.st_gid, &entry, text.data(), text.size(), &found) != 0 || found == nullptr) return {};
    return found->gr_name;
}

std::string ownerOf(const struct stat& status) {
    std::array<char, 4096> text{};
    passwd entry{};
    passwd* found = nullptr;
    if (::getpwuid_r(status.st_uid, &entry, text.data(), text.size(), &found) != 0 || found == nullptr) return {};
    return found->pw_name;
}

// The lock of a process that has ended, or nothing. The process may be another user's, so a refused signal counts as a
// sign of life.
std::string staleLockOf(std::string port, const std::vector<std::string>& folders) {
    if (port.starts_with("/dev/")) port.erase(0, 5);
    std::ranges::replace(port, '/', '_');
    for (const std::string& folder : folders) {
        std::string lock = folder + "/LCK.." + port;
        pid_t process = 0;
        if (std::ifstream(lock) >> process && process > 0 && ::kill(process, 0) != 0 && errno == ESRCH) return lock;
    }
    return {};
}

SerialPortErrorKind kindOf(QSerialPort::SerialPortError error, const std::string& path) {
    switch (error) {
        case QSerialPort::DeviceNotFoundError:
            return SerialPortErrorKind::notFound;
        case QSerialPort::PermissionError:
            if (::access(path.c_str(), R_OK | W_OK) == 0) return SerialPortErrorKind::busy;
            return errno == ENOENT ? SerialPortErrorKind::notFound : SerialPortErrorKind::permission;
        default:
            return SerialPortErrorKind::other;
    }
}

std::string systemWords(SerialPortErrorKind kind, const std::string& words) {
    switch (kind) {
        case SerialPortErrorKind::busy:
        case SerialPortErrorKind::staleLock:
            return std::generic_category().message(EBUSY);
        case SerialPortErrorKind::permission:
            return std::generic_category().message(EACCES);
        case SerialPortErrorKind::notFound:
            return std::generic_category().message(ENOENT);
        default:
            return words;
    }
}

}  // namespace

SerialPortError openFailure(QSerialPort::SerialPortError error, const std::string& path, const std::string& words,
                            const std::vector<std::string>& locks) {
    SerialPortErrorKind kind = kindOf(error, path);
    const std::string lock = kind == SerialPortErrorKind::busy ? staleLockOf(path, locks) : std::string();
    if (!lock.empty()) kind = SerialPortErrorKind::staleLock;
    SerialPortError failure{kind, systemWords(kind, words), path, {}, {}, lock};
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return failure;
    failure.group = helpfulGroup(status);
    failure.owner = ownerOf(status);
    return failure;
}

}  // namespace corvane

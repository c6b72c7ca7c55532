// The real forms of all platform interfaces, in one object.
#pragma once

#include <QString>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "platform/platform.h"

namespace corvane {

struct QtPlatformOptions {
    QString settingsPath;                 // the ini file
    QString dataPath;                     // the folder for files that people read, such as backups
    std::filesystem::path runtimePath;    // the folder of the virtual port
    std::filesystem::path soundsFolder;   // holds Seatbelts.aiff, Funk.aiff and alerts/
    std::vector<std::string> extraPorts;  // paths of devices to list in addition to the system's
    double schedulerSpeed = 1;            // 100 lets 5 s pass in 50 ms
    bool simulatedPort = true;            // end the list of ports with "Simulated transceiver"
};

// The user's own settings file and data folder, the sounds beside the installed program
// (<bin>/../share/corvane/Sounds), the extra ports of CORVANE_EXTRA_PORTS (paths, ":" between them). Needs the
// application object.
QtPlatformOptions defaultOptions();

// Lives on the thread of the application object, which outlives it.
class QtPlatform {
public:
    explicit QtPlatform(const QtPlatformOptions& options = defaultOptions());
    ~QtPlatform();
    QtPlatform(const QtPlatform&) = delete;
    QtPlatform& operator=(const QtPlatform&) = delete;

    Platform platform();
    // Ends the process at once, with the settings on disk. Unfinished name look-ups, speech and sounds would hold a
    // return from main() for up to ten seconds.
    [[noreturn]] void endProcess(int status);

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

}  // namespace corvane

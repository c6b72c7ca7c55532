#include "qt/platform/qt_platform.h"

#include <QCoreApplication>
#include <QDir>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "qt/platform/desktop_clipboard.h"
#include "qt/platform/desktop_notification_center.h"
#include "qt/platform/desktop_web_browser.h"
#include "qt/platform/dialog_file_chooser.h"
#include "qt/platform/home_data_folder.h"
#include "qt/platform/ini_settings_store.h"
#include "qt/platform/message_box_alerts.h"
#include "qt/platform/pulse_sound_player.h"
#include "qt/platform/qt_http_client.h"
#include "qt/platform/qt_loopback_server.h"
#include "qt/platform/qt_scheduler.h"
#include "qt/platform/qt_serial_port_manager.h"
#include "qt/platform/simulated_port.h"
#include "qt/platform/speech_dispatcher.h"
#include "qt/platform/standard_log.h"
#include "qt/platform/system_pseudo_terminal.h"

namespace corvane {

namespace {

SerialPortSources sourcesOf(const QtPlatformOptions& options) {
    SerialPortSources sources;
    sources.extraPaths = options.extraPorts;
    sources.watcher = makeSerialPortWatcher();
    if (options.simulatedPort) sources.lastPort = std::make_shared<SimulatedPort>();
    return sources;
}

}  // namespace

struct QtPlatform::Parts {
    explicit Parts(const QtPlatformOptions& options)
        : serialPortManager(sourcesOf(options)),
          scheduler(options.schedulerSpeed),
          settings(options.settingsPath),
          sounds(options.soundsFolder),
          dataFolder(options.dataPath),
          terminal(options.runtimePath) {}

    QtSerialPortManager serialPortManager;
    DesktopNotificationCenter notificationCenter;
    QtScheduler scheduler;
    IniSettingsStore settings;
    SpeechDispatcher speech;
    PulseSoundPlayer sounds;
    DesktopWebBrowser browser;
    MessageBoxAlerts alerts;
    HomeDataFolder dataFolder;
    DialogFileChooser files;
    QtHttpClient http;
    StandardLog log;
    QtLoopbackServer loopback;
    SystemPseudoTerminal terminal;
    DesktopClipboard clipboard;
};

QtPlatformOptions defaultOptions() {
    QtPlatformOptions options;
    options.settingsPath = IniSettingsStore::defaultPath();
    options.dataPath = HomeDataFolder::defaultPath();
    options.runtimePath = SystemPseudoTerminal::defaultFolder();
    const QDir beside(QCoreApplication::applicationDirPath() + QLatin1String("/../share/corvane/Sounds"));
    options.soundsFolder = QDir::cleanPath(beside.path()).toStdString();
    options.extraPorts = splitPaths(qEnvironmentVariable("CORVANE_EXTRA_PORTS").toStdString());
    return options;
}

QtPlatform::QtPlatform(const QtPlatformOptions& options) : parts_(std::make_unique<Parts>(options)) {}

QtPlatform::~QtPlatform() = default;

void QtPlatform::endProcess(int status) {
    parts_->settings.writeNow();
    std::fflush(nullptr);
    std::_Exit(status);
}

Platform QtPlatform::platform() {
    return {parts_->serialPortManager,
            parts_->notificationCenter,
            parts_->scheduler,
            parts_->settings,
            parts_->speech,
            parts_->sounds,
            parts_->browser,
            parts_->alerts,
            parts_->dataFolder,
            parts_->files,
            parts_->http,
            parts_->log,
            parts_->loopback,
            parts_->terminal,
            parts_->clipboard};
}

}  // namespace corvane

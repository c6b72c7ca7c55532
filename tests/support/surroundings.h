// Fakes of all platform interfaces.
#pragma once

#include "platform/platform.h"
#include "tests/support/fake_loopback_server.h"
#include "tests/support/fake_pseudo_terminal.h"
#include "tests/support/fake_serial_port.h"
#include "tests/support/fake_serial_port_manager.h"
#include "tests/support/manual_scheduler.h"
#include "tests/support/map_settings_store.h"
#include "tests/support/recording_outputs.h"

namespace corvane {

struct Surroundings {
    FakeSerialPortManager portManager;
    RecordingNotificationCenter notices;
    ManualScheduler scheduler;
    MapSettingsStore settings;
    RecordingSpeechSynthesizer speech;
    RecordingSoundPlayer sounds;
    RecordingWebBrowser browser;
    RecordingAlerts alerts;
    RecordingDataFolder dataFolder;
    RecordingFileChooser files;
    RecordingHttpClient http;
    RecordingLog log;
    FakeLoopbackServer loopback;
    FakePseudoTerminal terminal;
    RecordingClipboard clipboard;

    Platform platform() {
        return {portManager, notices, scheduler, settings, speech,   sounds,   browser,  alerts,
                dataFolder,  files,   http,      log,      loopback, terminal, clipboard};
    }
};

}  // namespace corvane

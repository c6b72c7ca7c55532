// Everything that the program expects of its surroundings. All members must outlive the controller.
#pragma once

#include "platform/alerts.h"
#include "platform/clipboard.h"
#include "platform/data_folder.h"
#include "platform/file_chooser.h"
#include "platform/http_client.h"
#include "platform/log.h"
#include "platform/loopback_server.h"
#include "platform/notification_center.h"
#include "platform/pseudo_terminal.h"
#include "platform/scheduler.h"
#include "platform/serial_port_manager.h"
#include "platform/settings_store.h"
#include "platform/sound_player.h"
#include "platform/speech_synthesizer.h"
#include "platform/web_browser.h"

namespace corvane {

struct Platform {
    ORSSerialPortManager& serialPortManager;
    NotificationCenter& notificationCenter;
    Scheduler& scheduler;
    SettingsStore& settings;
    SpeechSynthesizer& speech;
    SoundPlayer& sounds;
    WebBrowser& browser;
    Alerts& alerts;
    DataFolder& dataFolder;
    FileChooser& files;
    HttpClient& http;
    Log& log;
    LoopbackServer& loopback;
    PseudoTerminal& terminal;
    Clipboard& clipboard;
};

}  // namespace corvane

// What is said, heard, opened and logged, each as a list of texts.
#pragma once

#include <string>
#include <vector>

#include "platform/log.h"
#include "platform/sound_player.h"
#include "platform/speech_synthesizer.h"
#include "platform/web_browser.h"

namespace corvane {

struct RecordingSpeechSynthesizer final : SpeechSynthesizer {
    void speak(std::string_view text, std::string_view) override { spoken.emplace_back(text); }
    std::vector<std::string> spoken;
};

struct RecordingSoundPlayer final : SoundPlayer {
    void playFile(std::string_view name) override { played.push_back("file " + std::string(name)); }
    void playAlert(std::string_view name) override { played.push_back("alert " + std::string(name)); }
    std::vector<std::string> played;  // "file Seatbelts", "alert Frog"
};

struct RecordingWebBrowser final : WebBrowser {
    void open(std::string_view url) override { opened.emplace_back(url); }
    std::vector<std::string> opened;
};

struct RecordingLog final : Log {
    void line(std::string_view text) override { lines.emplace_back(text); }
    std::vector<std::string> lines;
};

}  // namespace corvane

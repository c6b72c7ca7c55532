// Sounds through the desktop's sound server.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string_view>

#include "platform/sound_player.h"
#include "qt/platform/background_worker.h"

namespace corvane {

// Plays AIFF files from `folder`, alerts from its subfolder "alerts": "Tink" plays alerts/Tink.aiff. Sounds play one
// after the other; while `queueLength` are waiting, further ones are dropped. A name that leaves the folder, such as
// "../x", plays nothing.
class PulseSoundPlayer final : public SoundPlayer {
public:
    static constexpr std::size_t queueLength = 8;

    explicit PulseSoundPlayer(std::filesystem::path folder);

    void playFile(std::string_view name) override;
    void playAlert(std::string_view name) override;

private:
    void play(const std::filesystem::path& folder, std::string_view name);

    std::filesystem::path folder_;
    BackgroundWorker worker_;
};

// The sound's file: ("/s", "Funk") is "/s/Funk.aiff"; empty for a name that is empty or not a plain file name.
std::filesystem::path soundFile(const std::filesystem::path& folder, std::string_view name);

}  // namespace corvane

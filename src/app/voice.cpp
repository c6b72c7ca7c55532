#include "app/voice.h"

namespace corvane {

void Voice::speak(std::string_view text, std::string_view written) {
    if (preferences_.voiceGuide()) return synth.speak(text, synthVoice);
    onSilence(written);
}

void Voice::playSound(std::string_view name) {
    if (preferences_.sounds()) sounds_.playFile(name);
}

void Voice::playSystemSound(std::string_view name) { sounds_.playAlert(name); }

void Voice::warn(std::string_view message, std::string_view detail) {
    playSystemSound("Glass");
    alerts_.warn(std::string(message).append("\n\n").append(detail));
}

}  // namespace corvane

#include "app/voice.h"

namespace corvane {

void Voice::speak(std::string_view text) {
    if (preferences_.voiceGuide()) synth.speak(text, synthVoice);
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

// Spoken words.
#pragma once

#include <string_view>

namespace corvane {

class SpeechSynthesizer {
public:
    virtual ~SpeechSynthesizer() = default;

    // Queues the text (UTF-8, e.g. "20 meters") and returns at once. Texts are spoken one after the other in the order
    // given, none is interrupted; `voice` empty means the default voice of the user's language. Without a speech
    // service nothing is heard and nothing is reported.
    virtual void speak(std::string_view text, std::string_view voice) = 0;
};

}  // namespace corvane

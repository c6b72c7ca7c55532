// Spoken words through the desktop's speech service.
#pragma once

#include <chrono>
#include <cstddef>
#include <memory>

#include "platform/speech_synthesizer.h"
#include "qt/platform/background_worker.h"

namespace corvane {

// Opens the service with the first text, on a thread of its own. Texts queue at the service and are spoken one after
// the other. While there is no service they are dropped, and looked for again with a later text, at most once every
// `retry`. A service that hangs drops texts beyond `queueLength` and delays the end of the program by 150 ms at most.
class SpeechDispatcher final : public SpeechSynthesizer {
public:
    static constexpr std::size_t queueLength = 32;
    static constexpr std::chrono::seconds defaultRetry{30};

    explicit SpeechDispatcher(std::chrono::milliseconds retry = defaultRetry);
    ~SpeechDispatcher() override;

    void speak(std::string_view text, std::string_view voice) override;

private:
    class Line;

    std::shared_ptr<Line> line_;  // shared with the tasks, which may outlive us when the service hangs
    BackgroundWorker worker_;
};

}  // namespace corvane

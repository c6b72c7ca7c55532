// Speech through the desktop's speech service.
#pragma once

#include <chrono>
#include <cstddef>
#include <memory>

#include "platform/speech_synthesizer.h"
#include "qt/platform/background_worker.h"

namespace corvane {

// Connects to the service at the first text, on its own thread. The service queues texts and speaks them one after the
// other. Without a service texts are dropped; a later text tries to connect again, at most once every `retry`. If the
// service hangs, texts beyond `queueLength` are dropped, and the end of the program is delayed by 150 ms at most.
class SpeechDispatcher final : public SpeechSynthesizer {
public:
    static constexpr std::size_t queueLength = 32;
    static constexpr std::chrono::seconds defaultRetry{30};

    explicit SpeechDispatcher(std::chrono::milliseconds retry = defaultRetry);
    ~SpeechDispatcher() override;

    void speak(std::string_view text, std::string_view voice) override;

private:
    class Line;

    std::shared_ptr<Line> line_;  // shared with the tasks, which outlive us if the service hangs
    BackgroundWorker worker_;
};

}  // namespace corvane

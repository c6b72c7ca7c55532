#include "qt/platform/speech_dispatcher.h"

#include <libspeechd.h>

#include <QLocale>

#include <cstdlib>
#include <optional>
#include <string>

namespace corvane {

namespace {

constexpr std::chrono::milliseconds farewell{150};

// Starts the service if it does not run, unless SPEECHD_ADDRESS names one that the user runs.
SPDConnection* openConnection() {
    const int start = std::getenv("SPEECHD_ADDRESS") == nullptr ? 1 : 0;
    char* reason = nullptr;
    SPDConnection* connection = spd_open2("corvane", "main", nullptr, SPD_MODE_SINGLE, nullptr, start, &reason);
    std::free(reason);
    return connection;
}

}  // namespace

// The connection to the service. Used by one thread at a time.
class SpeechDispatcher::Line {
public:
    Line(std::chrono::milliseconds retry, std::string language) : retry_(retry), language_(std::move(language)) {}

    void say(const std::string& text, const std::string& voice) {
        // After a restart of the service the first attempt fails and the second works.
        if (open(voice) && !send(text) && open(voice)) send(text);
    }

private:
    using Clock = std::chrono::steady_clock;

    struct CloseConnection {
        void operator()(SPDConnection* connection) const { spd_close(connection); }
    };

    bool open(const std::string& voice) {
        if (connection_ && voice == voice_) return true;
        // Only a new connection goes back to the default voice.
        if (!connection_ && lastFailure_ && Clock::now() - *lastFailure_ < retry_) return false;
        connection_.reset();
        connection_.reset(openConnection());
        if (!connection_) {
            lastFailure_ = Clock::now();
            return false;
        }
        lastFailure_.reset();
        voice_ = voice;
        // The service's default language is not the user's, so it must be set.
        spd_set_language(connection_.get(), language_.c_str());
        if (!voice_.empty()) spd_set_synthesis_voice(connection_.get(), voice_.c_str());
        return true;
    }

    // Texts of this priority wait for each other; priority "text" would cut off the one before.
    bool send(const std::string& text) {
        if (spd_say(connection_.get(), SPD_MESSAGE, text.c_str()) >= 0) return true;
        connection_.reset();
        return false;
    }

    std::chrono::milliseconds retry_;
    std::string language_;
    std::unique_ptr<SPDConnection, CloseConnection> connection_;
    std::string voice_;
    std::optional<Clock::time_point> lastFailure_;
};

SpeechDispatcher::SpeechDispatcher(std::chrono::milliseconds retry)
    : line_(std::make_shared<Line>(retry, QLocale::system().name().section('_', 0, 0).toStdString())),
      worker_(queueLength, farewell) {}

SpeechDispatcher::~SpeechDispatcher() = default;

void SpeechDispatcher::speak(std::string_view text, std::string_view voice) {
    if (text.empty()) return;
    worker_.post([line = line_, words = std::string(text), speaker = std::string(voice)](const std::stop_token&) {
        line->say(words, speaker);
    });
}

}  // namespace corvane

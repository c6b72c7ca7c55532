#include "qt/platform/speech_dispatcher.h"

#include <libspeechd.h>

#include <QLocale>

#include <cstdlib>
#include <optional>
#include <string>

#include "qt/platform/late_library.h"

namespace corvane {

namespace {

constexpr std::chrono::milliseconds farewell{150};

// What is used of the service's library.
struct Service {
    const LateLibrary library{"libspeechd.so.2"};
    decltype(spd_open2)* open = library.function<decltype(spd_open2)>("spd_open2");
    decltype(spd_close)* close = library.function<decltype(spd_close)>("spd_close");
    decltype(spd_say)* say = library.function<decltype(spd_say)>("spd_say");
    decltype(spd_set_language)* setLanguage = library.function<decltype(spd_set_language)>("spd_set_language");
    decltype(spd_set_synthesis_voice)* setVoice =
        library.function<decltype(spd_set_synthesis_voice)>("spd_set_synthesis_voice");

    bool isThere() const { return open && close && say && setLanguage && setVoice; }
};

const Service& service() {
    static const Service loaded;
    return loaded;
}

// Starts the service if it does not run, unless SPEECHD_ADDRESS names one that the user runs.
SPDConnection* openConnection() {
    if (!service().isThere()) return nullptr;
    const int start = std::getenv("SPEECHD_ADDRESS") == nullptr ? 1 : 0;
    char* reason = nullptr;
    SPDConnection* connection = service().open("corvane", "main", nullptr, SPD_MODE_SINGLE, nullptr, start, &reason);
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
        void operator()(SPDConnection* connection) const { service().close(connection); }
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
        service().setLanguage(connection_.get(), language_.c_str());
        if (!voice_.empty()) service().setVoice(connection_.get(), voice_.c_str());
        return true;
    }

    // Texts of this priority wait for each other; priority "text" would cut off the one before.
    bool send(const std::string& text) {
        if (service().say(connection_.get(), SPD_MESSAGE, text.c_str()) >= 0) return true;
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

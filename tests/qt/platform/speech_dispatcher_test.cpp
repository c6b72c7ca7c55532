#include "qt/platform/speech_dispatcher.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <atomic>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "event_loop.h"

namespace corvane {
namespace {

// A service on our own socket. Records the commands and, after "> ", the texts that it gets.
class FakeSpeechService {
public:
    enum class Manner { answers, hangs };

    explicit FakeSpeechService(const std::string& path, Manner manner = Manner::answers)
        : manner_(manner), listener_(::socket(AF_UNIX, SOCK_STREAM, 0)) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        path.copy(address.sun_path, sizeof address.sun_path - 1);
        ::unlink(path.c_str());
        EXPECT_EQ(::bind(listener_, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
        EXPECT_EQ(::listen(listener_, 4), 0);
        thread_ = std::thread([this] { serve(); });
    }
    ~FakeSpeechService() {
        ending_ = true;
        thread_.join();
        ::close(listener_);
    }

    std::vector<std::string> lines() const {
        const std::lock_guard lock(mutex_);
        return lines_;
    }
    std::vector<std::string> texts() const {
        std::vector<std::string> texts = lines();
        std::erase_if(texts, [](const std::string& line) { return line.rfind("> ", 0) != 0; });
        return texts;
    }
    bool heard(const std::string& line) const {
        const auto all = lines();
        return std::find(all.begin(), all.end(), line) != all.end();
    }
    int connections() const { return connections_; }

private:
    void serve() {
        std::vector<pollfd> sockets{{listener_, POLLIN, 0}};
        while (!ending_) {
            ::poll(sockets.data(), sockets.size(), 5);
            if ((sockets[0].revents & POLLIN) != 0) {
                sockets.push_back({::accept(listener_, nullptr, nullptr), POLLIN, 0});
                ++connections_;
            }
            for (std::size_t i = 1; i < sockets.size(); ++i) {
                if (manner_ == Manner::answers && (sockets[i].revents & POLLIN) != 0 && !take(sockets[i].fd)) {
                    sockets[i].events = 0;
                }
            }
        }
        for (std::size_t i = 1; i < sockets.size(); ++i) ::close(sockets[i].fd);
    }

    bool take(int socket) {
        std::array<char, 1024> bytes{};
        const ssize_t count = ::read(socket, bytes.data(), bytes.size());
        if (count <= 0) return false;
        unread_.append(bytes.data(), static_cast<std::size_t>(count));
        for (std::size_t end = unread_.find("\r\n"); end != std::string::npos; end = unread_.find("\r\n")) {
            answer(socket, unread_.substr(0, end));
            unread_.erase(0, end + 2);
        }
        return true;
    }

    void answer(int socket, const std::string& line) {
        const bool speak = !speaking_ && (line == "SPEAK" || line == "speak");
        std::string reply = "200 OK\r\n";
        if (speaking_ && line != ".") {
            reply.clear();
        } else if (speaking_) {
            reply = "225-1\r\n225 OK MESSAGE QUEUED\r\n";
        } else if (speak) {
            reply = "230 OK RECEIVING DATA\r\n";
        }
        {
            const std::lock_guard lock(mutex_);
            if (line != "." && !speak) lines_.push_back((speaking_ ? "> " : "") + line);
        }
        speaking_ = speak || (speaking_ && line != ".");
        ::send(socket, reply.data(), reply.size(), MSG_NOSIGNAL);  // a client that has closed gets no reply
    }

    Manner manner_;
    int listener_;
    std::atomic<bool> ending_ = false;
    std::atomic<int> connections_ = 0;
    mutable std::mutex mutex_;
    std::vector<std::string> lines_;
    std::string unread_;
    bool speaking_ = false;
    std::thread thread_;
};

struct SpeechDispatcherTest : testing::Test {
    QTemporaryDir folder;
    std::string path = folder.filePath("speechd.sock").toStdString();

    SpeechDispatcherTest() { qputenv("SPEECHD_ADDRESS", QByteArray::fromStdString("unix_socket:" + path)); }
};

TEST_F(SpeechDispatcherTest, TextsArriveInOrderAtAPriorityThatInterruptsNone) {
    const FakeSpeechService service(path);
    SpeechDispatcher speech;
    speech.speak("20 meters", "");
    speech.speak("", "");
    speech.speak("Großer Feldberg", "");
    speech.speak("third", "");
    ASSERT_TRUE(eventually([&] { return service.texts().size() == 3; }));
    EXPECT_EQ(service.texts(), (std::vector<std::string>{"> 20 meters", "> Großer Feldberg", "> third"}));
    EXPECT_TRUE(service.heard("SET SELF PRIORITY MESSAGE"));
    EXPECT_EQ(service.connections(), 1);
}

TEST_F(SpeechDispatcherTest, AVoiceIsSetAndTheDefaultComesBack) {
    const FakeSpeechService service(path);
    SpeechDispatcher speech;
    speech.speak("one", "Anna");
    speech.speak("two", "");
    ASSERT_TRUE(eventually([&] { return service.texts().size() == 2; }));
    EXPECT_TRUE(service.heard("SET SELF SYNTHESIS_VOICE Anna"));
    EXPECT_EQ(service.connections(), 2);
}

TEST_F(SpeechDispatcherTest, WithoutAServiceItIsSilentAndTriesAgainLater) {
    SpeechDispatcher patient;
    SpeechDispatcher eager(std::chrono::milliseconds(1));
    patient.speak("lost", "");
    eager.speak("lost", "");
    runEventLoop(std::chrono::milliseconds(250));
    const FakeSpeechService service(path);
    patient.speak("too early", "");
    EXPECT_TRUE(eventually([&] {
        eager.speak("again", "");
        return !service.texts().empty();
    }));
    EXPECT_EQ(service.texts().front(), "> again");
    EXPECT_FALSE(service.heard("> too early"));
}

TEST_F(SpeechDispatcherTest, ARestartedServiceIsFoundAtOnce) {
    SpeechDispatcher speech;
    {
        const FakeSpeechService service(path);
        speech.speak("before", "");
        ASSERT_TRUE(eventually([&] { return service.texts().size() == 1; }));
    }
    const FakeSpeechService service(path);
    speech.speak("after", "");
    EXPECT_TRUE(eventually([&] { return service.texts() == std::vector<std::string>{"> after"}; }));
}

TEST_F(SpeechDispatcherTest, AServiceThatHangsDelaysNothing) {
    const FakeSpeechService service(path, FakeSpeechService::Manner::hangs);
    QElapsedTimer clock;
    clock.start();
    {
        SpeechDispatcher speech;
        for (int i = 0; i < 100; ++i) speech.speak("anyone?", "");
        EXPECT_LT(clock.elapsed(), 100);
        ASSERT_TRUE(eventually([&] { return service.connections() == 1; }));
        clock.start();
    }
    EXPECT_LT(clock.elapsed(), 200);
}

}  // namespace
}  // namespace corvane

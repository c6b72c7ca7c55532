// Speech, sounds, web pages and log lines, each recorded as a list of texts.
#pragma once

#include <map>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "platform/alerts.h"
#include "platform/clipboard.h"
#include "platform/data_folder.h"
#include "platform/file_chooser.h"
#include "platform/http_client.h"
#include "platform/log.h"
#include "platform/notification_center.h"
#include "platform/sound_player.h"
#include "platform/speech_synthesizer.h"
#include "platform/web_browser.h"
#include "tests/support/own_thread.h"

namespace corvane {

struct RecordingSpeechSynthesizer final : SpeechSynthesizer {
    void speak(std::string_view text, std::string_view) override {
        thread.check();
        spoken.emplace_back(text);
    }
    std::vector<std::string> spoken;
    OwnThread thread;
};

struct RecordingSoundPlayer final : SoundPlayer {
    void playFile(std::string_view name) override { played.push_back("file " + std::string(name)); }
    void playAlert(std::string_view name) override { played.push_back("alert " + std::string(name)); }
    std::vector<std::string> played;  // "file Seatbelts", "alert Frog"
};

// Notices stand at once and are counted from 1.
struct RecordingNotificationCenter final : NotificationCenter {
    void deliver(const UserNotification& notification, std::function<void(NotificationId)> delivered) override {
        shown.push_back(notification);
        delivered(static_cast<NotificationId>(shown.size()));
    }
    void removeDelivered(NotificationId id) override { removed.push_back(id); }

    std::vector<UserNotification> shown;
    std::vector<NotificationId> removed;
};

struct RecordingWebBrowser final : WebBrowser {
    void open(std::string_view url) override { opened.emplace_back(url); }
    std::vector<std::string> opened;
};

struct RecordingClipboard final : Clipboard {
    void setText(std::string_view text) override { held = text; }
    std::string held;
};

// Alerts. Each question is confirmed at once while `agree` is set.
struct RecordingAlerts final : Alerts {
    void warn(std::string_view text) override { shown.emplace_back(text); }
    void confirm(std::string_view text, std::string_view verb, std::function<void()> confirmed) override {
        shown.push_back(std::string(text).append(" [").append(verb).append("]"));
        last_ = std::move(confirmed);
        if (agree) answerLast();
    }
    void answerLast() { std::exchange(last_, {})(); }
    std::vector<std::string> shown;
    bool agree = true;

private:
    std::function<void()> last_;  // the question that has no answer yet
};

// Requests in the order sent; a test answers them one by one. Like the real client it decodes on another thread.
struct RecordingHttpClient final : HttpClient {
    Cancel send(const HttpRequest& request, Completed completed) override {
        thread.check();
        requests.push_back(request);
        pending.push_back(std::move(completed));
        return [this, index = pending.size() - 1] { cancelled.push_back(index); };
    }
    // Answers the n-th request, even if it has been cancelled.
    void answer(std::size_t index, HttpResponse response) {
        if (const Rest rest = decode(index, std::move(response))) rest();
    }
    // The first half of that; `meanwhile` runs beside it on this thread.
    Rest decode(std::size_t index, HttpResponse response, const std::function<void()>& meanwhile = {}) {
        Rest rest;
        std::thread decoder([&rest, completed = pending.at(index), answered = std::move(response)]() mutable {
            rest = completed(std::move(answered));
        });
        if (meanwhile) meanwhile();
        decoder.join();
        return rest;
    }
    std::vector<HttpRequest> requests;
    std::vector<std::size_t> cancelled;
    std::vector<Completed> pending;
    OwnThread thread;
};

struct RecordingDataFolder final : DataFolder {
    SavedFile save(std::string_view name, std::string_view contents) override {
        const std::string where = path().append("/").append(name);
        if (failure.empty()) files[where] = contents;
        return {where, failure};
    }
    std::string path() const override { return "/data"; }
    std::map<std::string, std::string> files;  // contents by path
    std::string failure;                       // if set, the error of every save
};

// Files by path; the operator chooses the one named in `choice`, or none.
struct RecordingFileChooser final : FileChooser {
    void chooseNew(std::string_view, std::string_view, std::string_view, Chosen chosen) override { choose(chosen); }
    void chooseExisting(std::string_view, std::string_view, Chosen chosen) override { choose(chosen); }
    SavedFile write(const std::string& path, std::string_view contents) override {
        if (failure.empty()) files[path] = contents;
        return {path, failure};
    }
    OpenedFile read(const std::string& path, std::size_t limit) override {
        const auto file = files.find(path);
        if (file == files.end()) return {path, {}, "No such file or directory."};
        return {path, file->second.substr(0, limit + 1), {}};
    }
    std::string choice;
    std::map<std::string, std::string> files;
    std::string failure;  // if set, the error of every write

private:
    void choose(const Chosen& chosen) const {
        if (!choice.empty()) chosen(choice);
    }
};

struct RecordingLog final : Log {
    void line(std::string_view text) override {
        thread.check();
        lines.emplace_back(text);
    }
    std::vector<std::string> lines;
    OwnThread thread;
};

}  // namespace corvane

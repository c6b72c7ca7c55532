// Browser, data folder, log, and the worker behind speech and sounds.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <atomic>
#include <csignal>
#include <future>
#include <memory>
#include <vector>

#include "event_loop.h"
#include "platform/web_address.h"
#include "qt/platform/background_worker.h"
#include "qt/platform/desktop_web_browser.h"
#include "qt/platform/home_data_folder.h"
#include "qt/platform/standard_log.h"
#include "url_catcher.h"

namespace corvane {

namespace {

using std::chrono::milliseconds;

// Each is a link in a list if it opens, and only then.
TEST(DesktopWebBrowserTest, OpensWebAddressesOnly) {
    UrlCatcher catcher({"http", "https", "file", "javascript"});
    DesktopWebBrowser browser;
    const std::string longest = "http://a.example/" + std::string(longestAddress - 17, 'x');
    const std::pair<std::string, std::string> opened[] = {
        {"https://example.org/corvane/", "https://example.org/corvane/"},
        {" HTTP://127.0.0.1:8080/a?b=c\n", "http://127.0.0.1:8080/a?b=c"},
        {"http://a.example/a net|100%", "http://a.example/a%20net%7C100%25"},
        {"http://a.example?q=<b>\\", "http://a.example?q=%3Cb%3E%5C"},
        {"http://m\u00fcller.example.", "http://xn--mller-kva.example."},
        {"http://[::1]:80/", "http://[::1]:80/"},
        {longest, longest},
    };
    for (const auto& [text, address] : opened) {
        browser.open(text);
        EXPECT_EQ(std::exchange(catcher.taken, {}), std::vector{address});
        EXPECT_NE(webAddress(text), "");
    }
    const std::vector<std::string> refused{"file:///etc/passwd",
                                           "javascript:alert(1)",
                                           "not an address",
                                           "",
                                           "https://",
                                           "https:///path",
                                           "http://:80/",
                                           "http:a",
                                           "http://a b.example/",
                                           "http://-a.example/",
                                           "http://a..example/",
                                           "http://a.example:65536/",
                                           "http://a.example:8x/",
                                           "http://[::1/",
                                           "http://bank.example@a.example/",
                                           "http://a\\b/",
                                           "http://\u2025/",
                                           "http://a\xff/",
                                           longest + 'x'};
    for (const std::string& text : refused) {
        browser.open(text);
        EXPECT_TRUE(catcher.taken.empty()) << text;
        EXPECT_EQ(webAddress(text), "");
    }
}

TEST(HomeDataFolderTest, SavesWholeFilesAndSaysWhyItCannot) {
    const QTemporaryDir home;
    HomeDataFolder folder(home.filePath("data"));
    const auto contents = [](const std::string& path) {
        QFile file(QString::fromStdString(path));
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "no such file";
    };
    for (const char* text : {"first\n", "second, longer\n"}) {
        const SavedFile saved = folder.save("memory-channels/a.csv", text);
        EXPECT_EQ(saved.error, "");
        EXPECT_EQ(saved.path, home.filePath("data/memory-channels/a.csv").toStdString());
        EXPECT_EQ(contents(saved.path), text);
    }
    const SavedFile refused = folder.save("memory-channels/a.csv/b.csv", "x");  // a file is in the folder's place
    EXPECT_NE(refused.error, "");
    // A full disk: files of more than four bytes cannot be written. What is short waits in a buffer until the end.
    struct rlimit limits;
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &limits), 0);
    const auto ignored = std::signal(SIGXFSZ, SIG_IGN);
    const struct rlimit little { 4, limits.rlim_max };
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &little), 0);
    for (const std::size_t size : {10U, 100'000U})
        EXPECT_NE(folder.save("memory-channels/a.csv", std::string(size, 'x')).error, "") << size;
    setrlimit(RLIMIT_FSIZE, &limits);
    std::signal(SIGXFSZ, ignored);
    EXPECT_EQ(contents(home.filePath("data/memory-channels/a.csv").toStdString()), "second, longer\n");
}

TEST(StandardLogTest, WritesWholeLines) {
    testing::internal::CaptureStdout();
    StandardLog log;
    log.line("one");
    log.line("");
    log.line("%s \u00fc");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "one\n\n%s \u00fc\n");
}

TEST(BackgroundWorkerTest, RunsTasksInOrderAndDropsWhatExceedsItsCapacity) {
    BackgroundWorker worker(3, milliseconds(5000));
    std::promise<void> started;
    std::promise<void> goOn;
    std::atomic<int> sum = 0;
    EXPECT_TRUE(worker.post([&](const std::stop_token&) {
        started.set_value();
        goOn.get_future().wait();
    }));
    started.get_future().wait();
    for (int i = 1; i <= 3; ++i) EXPECT_TRUE(worker.post([&sum, i](const std::stop_token&) { sum = sum * 10 + i; }));
    EXPECT_FALSE(worker.post([&](const std::stop_token&) { sum = -1; }));
    goOn.set_value();
    EXPECT_TRUE(eventually([&] { return sum == 123; }));
}

TEST(BackgroundWorkerTest, EndsByAskingOrByLeavingBehind) {
    QElapsedTimer clock;
    clock.start();
    std::promise<void> polite;
    {
        BackgroundWorker worker(3, milliseconds(5000));
        worker.post([&](const std::stop_token& stop) {
            polite.set_value();
            std::promise<void> asked;
            const std::stop_callback onStop(stop, [&] { asked.set_value(); });
            asked.get_future().wait();
        });
        polite.get_future().wait();
    }
    EXPECT_LT(clock.elapsed(), 2000);

    const auto release = std::make_shared<std::promise<void>>();
    const auto released = std::make_shared<std::promise<void>>();
    std::promise<void> hanging;
    clock.start();
    {
        BackgroundWorker worker(3, milliseconds(50));
        worker.post([&hanging, release, released](const std::stop_token&) {
            hanging.set_value();
            release->get_future().wait();
            released->set_value();
        });
        hanging.get_future().wait();
    }
    EXPECT_GE(clock.elapsed(), 49);
    EXPECT_LT(clock.elapsed(), 2000);
    release->set_value();
    released->get_future().wait();
}

}  // namespace
}  // namespace corvane

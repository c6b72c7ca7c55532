// Browser, data folder, log, and the worker behind speech and sounds.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <atomic>
#include <future>
#include <memory>
#include <vector>

#include "event_loop.h"
#include "qt/platform/background_worker.h"
#include "qt/platform/desktop_web_browser.h"
#include "qt/platform/home_data_folder.h"
#include "qt/platform/standard_log.h"
#include "url_catcher.h"

namespace corvane {

namespace {

using std::chrono::milliseconds;

TEST(DesktopWebBrowserTest, OpensWebAddressesOnly) {
    const UrlCatcher catcher({"http", "https", "file"});
    DesktopWebBrowser browser;
    for (const char* url : {"https://example.org/corvane/", "file:///etc/passwd", "not an address", "", "https://",
                            "http://127.0.0.1:8080/a?b=c"}) {
        browser.open(url);
    }
    EXPECT_EQ(catcher.taken, (std::vector<std::string>{"https://example.org/corvane/", "http://127.0.0.1:8080/a?b=c"}));
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

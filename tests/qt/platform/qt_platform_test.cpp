#include "qt/platform/qt_platform.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThreadPool>

#include "event_loop.h"
#include "recording_delegate.h"

namespace corvane {
namespace {

TEST(QtPlatformTest, EverythingWorksTogetherWithoutAnyService) {
    qputenv("PULSE_SERVER", "unix:/no/such/socket");
    qputenv("SPEECHD_ADDRESS", "unix_socket:/no/such/socket");
    const QTemporaryDir folder;
    QElapsedTimer clock;
    {
        QtPlatformOptions options;
        options.settingsPath = folder.filePath("corvane.conf");
        options.soundsFolder = folder.path().toStdString();
        options.schedulerSpeed = 100;
        QtPlatform owner(options);
        const Platform platform = owner.platform();
        platform.settings.setText("call", "N0CALL");
        platform.speech.speak("hello", "");
        platform.sounds.playFile("Seatbelts");
        platform.sounds.playAlert("Tink");
        bool ran = false;
        platform.scheduler.after(std::chrono::seconds(1), [&] { ran = true; });
        EXPECT_TRUE(eventually([&] { return ran; }));
        const auto port = platform.serialPortManager.availablePorts().back();
        EXPECT_EQ(port->name(), "Simulated transceiver");
        RecordingDelegate delegate;
        port->setDelegate(&delegate);
        port->open();
        EXPECT_TRUE(eventually([&] { return port->isOpen(); }));
        port->setDelegate(nullptr);
        clock.start();
    }
    EXPECT_LT(clock.elapsed(), 1000);
    EXPECT_TRUE(QFile::exists(folder.filePath("corvane.conf")));
}

TEST(QtPlatformDeathTest, TheProcessEndsAtOnceWithItsSettingsOnDisk) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";  // the test begins anew in the process that ends
    const QTemporaryDir folder;
    if (!qEnvironmentVariableIsSet("SETTINGS_OF_ENDING")) qputenv("SETTINGS_OF_ENDING", folder.path().toUtf8());
    QtPlatformOptions options;
    options.settingsPath = qEnvironmentVariable("SETTINGS_OF_ENDING") + "/corvane.conf";
    const auto end = [&options] {
        QtPlatform platform(options);
        platform.platform().settings.setText("call", "N0CALL");
        QThreadPool::globalInstance()->start([] { ::pause(); });  // as a name look-up on a dead network
        platform.endProcess(3);
    };
    EXPECT_EXIT(end(), testing::ExitedWithCode(3), "");
    qunsetenv("SETTINGS_OF_ENDING");
    QFile settings(options.settingsPath);
    ASSERT_TRUE(settings.open(QIODevice::ReadOnly));
    EXPECT_TRUE(settings.readAll().contains("call=N0CALL"));
}

TEST(QtPlatformTest, DefaultsComeFromTheEnvironmentAndTheInstalledLayout) {
    qputenv("XDG_CONFIG_HOME", "/tmp/somebody/.config");
    qputenv("CORVANE_EXTRA_PORTS", "/dev/pts/5:/tmp/radio");
    const QtPlatformOptions options = defaultOptions();
    qunsetenv("XDG_CONFIG_HOME");
    qunsetenv("CORVANE_EXTRA_PORTS");
    EXPECT_EQ(options.settingsPath, "/tmp/somebody/.config/corvane/corvane.conf");
    EXPECT_EQ(options.extraPorts, (std::vector<std::string>{"/dev/pts/5", "/tmp/radio"}));
    EXPECT_EQ(options.soundsFolder.parent_path().filename(), "corvane");
    EXPECT_TRUE(options.soundsFolder.is_absolute());
}

}  // namespace
}  // namespace corvane

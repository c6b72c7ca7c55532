#include "qt/platform/ini_settings_store.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <string>

#include "event_loop.h"

namespace corvane {
namespace {

struct IniSettingsStoreTest : testing::Test {
    QTemporaryDir folder;
    QString path = folder.filePath("sub/corvane.conf");

    QByteArray file() const {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

TEST_F(IniSettingsStoreTest, TextComesBackAsItWas) {
    for (const std::string text : {"0123", "a, b", "D\u00fcsseldorf \u2713", "", " x ", "@Invalid()", "50%",
                                   "\"q\"; \\n", "/dev/pts/5", "1", "true"}) {
        IniSettingsStore(path).setText("defaultPort", text);
        EXPECT_EQ(IniSettingsStore(path).text("defaultPort"), text);
    }
    EXPECT_EQ(IniSettingsStore(path).text("call"), std::nullopt);
}

TEST_F(IniSettingsStoreTest, NumbersAreReadFromEitherKind) {
    IniSettingsStore store(path);
    store.setInteger("autosquelch", 15);
    store.setText("defaultBaud", "38400");
    store.setText("call", "N0CALL");
    EXPECT_EQ(store.integer("autosquelch"), 15);
    EXPECT_EQ(store.text("autosquelch"), "15");
    EXPECT_EQ(store.integer("defaultBaud"), 38400);
    EXPECT_EQ(store.integer("call"), 0);
    EXPECT_EQ(store.integer("absent"), 0);
}

TEST_F(IniSettingsStoreTest, AChangeIsOnDiskByTheNextTurnOfTheEventLoop) {
    IniSettingsStore store(path);
    store.setText("sounds", "1");
    EXPECT_TRUE(eventually([&] { return file().contains("sounds=1"); }));
    store.setInteger("autosquelch", 7);
    EXPECT_TRUE(eventually([&] { return file().contains("autosquelch=7"); }));
}

TEST_F(IniSettingsStoreTest, AFileEditedByHandIsRead) {
    IniSettingsStore(path).setText("voice", "1");
    QFile edited(path);
    ASSERT_TRUE(edited.open(QIODevice::Append));
    edited.write("call=a, b\nautosquelch=rubbish\n");
    edited.close();
    const IniSettingsStore store(path);
    EXPECT_EQ(store.text("call"), "a, b");
    EXPECT_EQ(store.integer("autosquelch"), 0);
    EXPECT_EQ(store.text("voice"), "1");
}

}  // namespace
}  // namespace corvane

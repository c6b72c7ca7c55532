#include "qt/platform/ini_settings_store.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <csignal>
#include <string>

#include <sys/resource.h>

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
    void add(const QByteArray& bytes) const {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::Append));
        file.write(bytes);
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
    add("call=a, b\nautosquelch=rubbish\n");
    const IniSettingsStore store(path);
    EXPECT_EQ(store.text("call"), "a, b");
    EXPECT_EQ(store.integer("autosquelch"), 0);
    EXPECT_EQ(store.text("voice"), "1");
}

TEST_F(IniSettingsStoreTest, AFileWithoutItsLastLineEndIsRead) {
    IniSettingsStore(path).setText("sounds", "0");
    const QByteArray whole = file();
    QFile(path).remove();
    add(whole.left(whole.size() - 1));
    const IniSettingsStore store(path);
    EXPECT_EQ(store.problem(), "");
    EXPECT_EQ(store.text("sounds"), "0");
}

TEST_F(IniSettingsStoreTest, AFileThatIsNoSettingsFileIsKeptBesideTheNewOne) {
    IniSettingsStore(path).setText("sounds", "0");
    const QByteArray whole = file();
    int number = 0;
    const std::pair<QByteArray, const char*> cases[] = {{whole + "cal", "cut off"},
                                                        {whole.left(12), "cut off"},
                                                        {QByteArray("sounds=0\0\n", 10), "not text"},
                                                        {"sounds=\xff\xfe\n", "not text"},
                                                        {"<html>no such page</html>\n", "not settings"}};
    for (const auto& [content, reason] : cases) {
        QFile(path).remove();
        add(content);
        {
            IniSettingsStore store(path);
            EXPECT_NE(store.problem().find(reason), std::string::npos) << store.problem();
            EXPECT_EQ(store.problem().find('\n'), std::string::npos);
            EXPECT_EQ(store.text("sounds"), std::nullopt);
            store.setText("sounds", "1");
        }
        EXPECT_EQ(IniSettingsStore(path).problem(), "");
        EXPECT_EQ(IniSettingsStore(path).text("sounds"), "1");
        QFile kept(path + (++number == 1 ? QString(".bad") : ".bad" + QString::number(number)));
        ASSERT_TRUE(kept.open(QIODevice::ReadOnly)) << kept.fileName().toStdString();
        EXPECT_EQ(kept.readAll(), content);
    }
}

TEST_F(IniSettingsStoreTest, AFullDiskLeavesTheOldFileWholeAndIsTold) {
    IniSettingsStore(path).setText("call", "N0CALL");
    const QByteArray before = file();
    IniSettingsStore store(path);
    int told = 0;
    store.onProblem = [&] { ++told; };
    struct rlimit limits;
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &limits), 0);
    const auto ignored = std::signal(SIGXFSZ, SIG_IGN);
    const struct rlimit nothing { 4, limits.rlim_max };  // greatest size of a file in bytes
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &nothing), 0);
    store.setText("call", "N1CALL");
    const bool known = eventually([&] { return told > 0; });
    setrlimit(RLIMIT_FSIZE, &limits);
    std::signal(SIGXFSZ, ignored);
    EXPECT_TRUE(known);
    EXPECT_NE(store.problem().find("full disk"), std::string::npos) << store.problem();
    EXPECT_EQ(file(), before);
    store.setText("voice", "0");
    EXPECT_TRUE(eventually([&] { return file().contains("N1CALL") && file().contains("voice=0"); }));
    EXPECT_EQ(told, 1);
}

TEST_F(IniSettingsStoreTest, AFullDiskIsToldOfAlsoAfterABadFile) {
    add("rubbish\n");
    IniSettingsStore store(path);
    ASSERT_FALSE(store.problem().empty());
    QFile(path).remove();
    ASSERT_TRUE(QDir().mkdir(path));  // a folder cannot be written as a file
    int told = 0;
    store.onProblem = [&] { ++told; };
    store.setText("call", "N0CALL");
    EXPECT_TRUE(eventually([&] { return told == 1; }));
    EXPECT_NE(store.problem().find("cannot be written"), std::string::npos) << store.problem();
}

}  // namespace
}  // namespace corvane

// Export and import of memory channels, in the real window.
#include <gtest/gtest.h>

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QTableWidget>

#include "memories/memory_csv.h"
#include "station.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;

// The window with its own folder and three programmed channels.
struct FilesStation : Station {
    FilesStation() {
        synchronise();
        EXPECT_TRUE(eventually([this] { return controller.memories.read().whole; }, 20s));
        settle();
        MemoryTable table;
        table[0] = {"014250000", "2", "CALLING     "};
        table[1] = {"007030000", "3", "CW"};
        table[4] = {"014074000", "C", "FT8"};
        controller.memories.setRows(table);
        Station::show(Display::memoriesPage);
    }
    template <class Dialog>
    static Dialog* shownNow() {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* found = qobject_cast<Dialog*>(widget); found && found->isVisible()) return found;
        return nullptr;
    }
    template <class Dialog>
    static Dialog* shown() {
        eventually([] { return shownNow<Dialog>() != nullptr; });
        return shownNow<Dialog>();
    }
    QString path(const QString& name) const { return folder.filePath(name); }
    // Presses a key and names the file.
    void choose(const char* button, const QString& name) {
        click(button);
        auto* dialog = shown<QFileDialog>();
        ASSERT_NE(dialog, nullptr);
        QApplication::setActiveWindow(dialog);  // as a desktop does
        dialog->findChild<QLineEdit*>("fileNameEdit")->setText(path(name));
        QMetaObject::invokeMethod(dialog, "accept");
        ASSERT_TRUE(eventually([&] { return !shownNow<QFileDialog>(); }));
    }
    void write(const QString& name, const QByteArray& bytes) const {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
};

TEST(MemoryFilesTest, TheTableIsExportedToTheFileThatIsChosen) {
    FilesStation station;
    station.choose("exportMemoriesButton", "out");  // the ending is added
    QFile file(station.path("out.csv"));
    ASSERT_TRUE(eventually([&] { return file.exists(); }));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().toStdString(), memoryCsv(station.controller.memories.vqMemArray()));

    station.choose("exportMemoriesButton", "no/such/folder/out.csv");
    ASSERT_TRUE(eventually([&] { return !station.window.findChild<QFileDialog*>(); }));
    auto* box = FilesStation::shown<QMessageBox>();
    ASSERT_NE(box, nullptr) << "it does not go with the dialog";
    EXPECT_TRUE(box->text().contains("were not exported"));
    box->accept();

    station.controller.memories.setRows({});
    ASSERT_TRUE(eventually([] { return !FilesStation::shownNow<QMessageBox>(); }));
    station.click("exportMemoriesButton");
    box = FilesStation::shown<QMessageBox>();
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(box->text().contains("nothing to export"));
    box->accept();
}

TEST(MemoryFilesTest, AnImportChangesWhatIsTickedInItsPreview) {
    FilesStation station;
    const MemoryTable before = station.controller.memories.vqMemArray();
    const ChannelsAsRead held = station.controller.memories.read().asRead;
    station.write("in.csv",
                  "Location,Name,Frequency,Mode\n2,SLOW CW,7.031,CWR\n1,CALLING,14.250000,USB\n3,NEW,3.6,LSB\n"
                  "5,MOVED,14.075,DIG\n0,X,7.1,LSB\n9,X,146.52,FM\n");
    for (const bool agree : {false, true}) {
        station.choose("importMemoriesButton", "in.csv");
        auto* preview = FilesStation::shown<QDialog>();
        ASSERT_NE(preview, nullptr);
        EXPECT_TRUE(preview->findChild<QLabel*>("memoryImportSummary")
                        ->text()
                        .startsWith("3 channels would change, 1 is as in the file, 2 lines cannot be used."));
        auto* changes = preview->findChild<QTableWidget*>("memoryImportChanges");
        ASSERT_EQ(changes->rowCount(), 3);
        const auto text = [&](int row, int column) {
            return changes->item(row, column)->text().simplified().toStdString();
        };
        EXPECT_EQ(text(0, 0), "M-02");
        EXPECT_EQ(text(0, 1), "7.030000 CW-U CW");
        EXPECT_EQ(text(0, 2), "7.031000 CW-L SLOW CW");
        EXPECT_EQ(text(1, 1), "empty");
        auto* refused = preview->findChild<QTableWidget*>("memoryImportRefused");
        ASSERT_EQ(refused->rowCount(), 2);
        EXPECT_EQ(refused->item(1, 0)->text(), "7");
        EXPECT_TRUE(refused->item(1, 1)->text().contains("146.52"));
        if (!agree) {
            QTest::keyClick(preview, Qt::Key_Escape);
        } else {
            changes->setFocus();
            changes->setCurrentCell(2, 0);
            QTest::keyClick(changes, Qt::Key_Space);
            auto* take = preview->findChild<QPushButton*>("takeImportedChannels");
            EXPECT_EQ(take->text(), "Import 2 channels");
            take->click();
        }
        ASSERT_TRUE(eventually([&] { return !FilesStation::shownNow<QDialog>(); }));
        MemoryTable expected = before;
        if (agree) {
            expected[1] = {"007031000", "7", "SLOW CW"};
            expected[2] = {"003600000", "1", "NEW"};
        }
        EXPECT_EQ(station.controller.memories.vqMemArray(), expected);
    }
    EXPECT_EQ(station.radio.takeReceived(), "") << "nothing is sent";
    EXPECT_EQ(station.controller.memories.read().asRead, held) << "what the transceiver holds has not changed";
    EXPECT_EQ(station.display.memoryReadField.stringValue(), "2 channels imported, not written to the transceiver yet");
    EXPECT_TRUE(eventually(
        [&] { return station.find<QTableView>("memoriesTable")->model()->index(1, 4).data() == "SLOW CW"; }));
}

TEST(MemoryFilesTest, WhatIsNoFileOfChannelsIsRefusedWithTheReason) {
    FilesStation station;
    const MemoryTable before = station.controller.memories.vqMemArray();
    station.write("large.csv", QByteArray(1024 * 1024 + 1, 'x'));
    station.write("letter.csv", "Dear OM,\n");
    for (const auto& [name, reason] : {std::pair{"large.csv", "1 MiB"}, {"letter.csv", "no column \"Location\""}}) {
        station.choose("importMemoriesButton", name);
        auto* box = FilesStation::shown<QMessageBox>();
        ASSERT_NE(box, nullptr);
        EXPECT_TRUE(box->text().contains(reason)) << box->text().toStdString();
        box->accept();
        ASSERT_TRUE(eventually([&] { return !FilesStation::shownNow<QDialog>(); }));
    }
    EXPECT_EQ(station.controller.memories.vqMemArray(), before);
}

}  // namespace
}  // namespace corvane

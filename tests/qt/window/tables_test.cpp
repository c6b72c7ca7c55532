// Edits, menus, drags, keys and links of the tables in the real window, with the transceiver connected.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QDropEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QTableView>
#include <algorithm>
#include <array>

#include "qt/window/table_rows.h"
#include "station.h"
#include "tests/support/rows.h"
#include "url_catcher.h"
#include "wire/cat_command.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;

constexpr int channelColumn = 1;
constexpr int frequencyColumn = 2;
constexpr int modeColumn = 3;
constexpr int tagColumn = 4;

// The page of the memories after a read of all channels.
struct Memories : Station {
    Memories() {
        display.autoMemSquelchSlider.drag(15);  // no auto memory is recorded
        synchronise();
        show(Display::memoriesPage);
        read();
        table().setFocus();
    }
    void read() {
        settle();
        display.readMemoriesButton.performClick();
        EXPECT_TRUE(eventually([&] { return controller.memories.read().whole; }));
        settle();
    }
    QTableView& table(const char* name = "memoriesTable") { return *find<QTableView>(name); }
    QModelIndex cell(int row, int column) { return table().model()->index(row, column); }
    std::string text(int row, int column) { return cell(row, column).data().toString().toStdString(); }
    const MemoryChannel& row(int index) const {
        return controller.memories.vqMemArray()[static_cast<std::size_t>(index)];
    }
    void click(QTableView& view, const QModelIndex& index) {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
    }
    using Station::click;
    // The editor that Enter opens in a cell.
    QLineEdit* edit(QTableView& view, const QModelIndex& index) {
        EXPECT_TRUE(eventually([&] { return isClosed(view); }));
        view.setFocus();
        view.setCurrentIndex(index);
        QTest::keyClick(&view, Qt::Key_Return);
        return editor(view);
    }
    // Replaces the text of a memory cell by typing.
    void type(int row, int column, const char* typed) {
        QLineEdit* field = edit(table(), cell(row, column));
        ASSERT_NE(field, nullptr);
        field->selectAll();
        if (*typed)
            QTest::keyClicks(field, typed);
        else
            QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClick(field, Qt::Key_Return);
        ASSERT_TRUE(eventually([&] { return isClosed(table()); }));
    }
    // The open editor, or null.
    static QLineEdit* editor(QTableView& view) {
        const auto fields = view.viewport()->findChildren<QLineEdit*>();
        const auto open = std::ranges::find_if(fields, &QWidget::isVisible);
        return open == fields.end() ? nullptr : *open;
    }
    static bool isClosed(QTableView& view) { return editor(view) == nullptr; }
    // Chooses an entry of the open menu.
    void choose(const char* menuName, const QString& entry) {
        QMenu* menu = nullptr;
        ASSERT_TRUE(eventually([&] { return (menu = find<QMenu>(menuName)) && menu->isVisible(); }));
        const auto actions = menu->actions();
        const auto action = std::ranges::find_if(
            actions, [&](const QAction* each) { return each->text().section('\t', 0, 0) == entry; });
        ASSERT_NE(action, actions.end()) << entry.toStdString();
        menu->setActiveAction(*action);
        QTest::keyClick(menu, Qt::Key_Return);
        ASSERT_TRUE(eventually([&] { return find<QMenu>(menuName) == nullptr; }));
    }
    // Drops a row, or any text, on the gap above a row; returns whether the table accepted it.
    bool drag(QMimeData* data, int gap) {
        const std::unique_ptr<QMimeData> deletes(data);
        const QRect below = table().visualRect(cell(std::min(gap, 98), tagColumn));
        const QPoint place(below.center().x(), gap > 98 ? below.bottom() - 3 : below.top() + 3);
        QDragEnterEvent enter(place, Qt::MoveAction, data, Qt::LeftButton, {});
        QApplication::sendEvent(table().viewport(), &enter);
        if (!enter.isAccepted()) return false;
        QDragMoveEvent move(place, Qt::MoveAction, data, Qt::LeftButton, {});
        QApplication::sendEvent(table().viewport(), &move);
        EXPECT_TRUE(move.isAccepted());
        QDropEvent drop(place, Qt::MoveAction, data, Qt::LeftButton, {});
        QApplication::sendEvent(table().viewport(), &drop);
        return drop.isAccepted();
    }
    bool dragRow(int source, int gap) { return drag(table().model()->mimeData({cell(source, tagColumn)}), gap); }
    static QMimeData* plainText(const QString& text) {
        auto* data = new QMimeData;
        data->setText(text);
        return data;
    }
    void pressHeader(int column) {
        QHeaderView& header = *table().horizontalHeader();
        const QPoint place(header.sectionViewportPosition(column) + 10, header.height() / 2);
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, place);
    }
};

TEST(TablesTest, AMemoryCellIsEditedInPlaceOrWarnedOf) {
    Memories station;
    station.type(4, frequencyColumn, "7.0741");
    EXPECT_EQ(station.row(4).frequency, "007074100");
    EXPECT_EQ(station.text(4, frequencyColumn), "7.074100");
    EXPECT_EQ(station.table().currentIndex(), station.cell(4, frequencyColumn)) << "the keyboard stays";
    EXPECT_TRUE(station.table().hasFocus());
    station.type(4, tagColumn, "A NAME OF MANY LETTERS");
    EXPECT_EQ(station.text(4, tagColumn), "A NAME OF MA");

    QLineEdit* field = station.edit(station.table(), station.cell(3, frequencyColumn));
    ASSERT_NE(field, nullptr);
    EXPECT_EQ(field->accessibleName(), "Frequency of the memory channel");
    const MemoryChannel before = station.row(3);
    QTest::keyClicks(field, "21.2");
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_TRUE(eventually([&] { return Memories::isClosed(station.table()); }));
    EXPECT_EQ(station.row(3), before);
    field = station.edit(station.table(), station.cell(30, tagColumn));
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(station.row(30), MemoryChannel{}) << "nothing was typed";

    station.type(3, frequencyColumn, "75.1");
    auto* box = station.box();
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->text(), "Frequency must be in MHz and less than 75.0\n\nExample: 14.235");
    EXPECT_EQ(box->icon(), QMessageBox::Warning);
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_TRUE(eventually([&] { return station.box() == nullptr; }));
    EXPECT_EQ(station.row(3), (MemoryChannel{"", before.mode, before.tag}));
}

TEST(TablesTest, AModeIsChosenInItsRow) {
    Memories station;
    station.click(station.table(), station.cell(2, modeColumn));
    station.choose("memsTableModePopUpButton", "FM-N");
    EXPECT_EQ(station.row(2).mode, "B");
    EXPECT_EQ(station.text(2, modeColumn), "FM-N");
    QTest::keyClick(&station.table(), Qt::Key_Space);
    station.choose("memsTableModePopUpButton", "LSB");
    EXPECT_EQ(station.row(2).mode, "1");

    // A menu that stays open over another table chooses nothing.
    QTest::keyClick(&station.table(), Qt::Key_Space);
    putChannel(station.controller.memories, 2, {"007030000", "3", "OTHER"});
    station.choose("memsTableModePopUpButton", "PSK");
    EXPECT_EQ(station.row(2).mode, "3");
}

TEST(TablesTest, RowsAreDraggedToTheGapAboveARow) {
    Memories station;
    const MemoryTable before = station.controller.memories.vqMemArray();
    EXPECT_TRUE(station.dragRow(2, 5));
    EXPECT_EQ(station.row(4), before[2]);
    EXPECT_EQ(station.row(2), before[3]);
    EXPECT_EQ(station.text(4, channelColumn), "M-05");
    EXPECT_EQ(station.table().currentIndex().row(), 4) << "the keyboard goes along";
    EXPECT_TRUE(station.dragRow(4, 2));
    EXPECT_EQ(station.controller.memories.vqMemArray(), before);
    EXPECT_FALSE(station.drag(Memories::plainText("99"), 5));
    auto* picture = new QMimeData;
    picture->setData("image/png", "1");
    EXPECT_FALSE(station.drag(picture, 5));
    EXPECT_EQ(station.controller.memories.vqMemArray(), before);
    station.table().scrollToBottom();
    EXPECT_TRUE(station.drag(Memories::plainText("97"), 99));
    EXPECT_EQ(station.row(98), before[97]);
    for (int row = 0; row < station.table().model()->rowCount(); row += 49)
        EXPECT_EQ(station.table().rowHeight(row), 27);
}

TEST(TablesTest, KeysMoveSortAndTune) {
    Memories station;
    QTableView& table = station.table();
    const MemoryTable before = station.controller.memories.vqMemArray();
    table.setCurrentIndex(station.cell(1, tagColumn));
    for (int press = 0; press < 2; ++press) QTest::keyClick(&table, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(station.row(3), before[1]);
    EXPECT_EQ(table.currentIndex(), station.cell(3, tagColumn));
    for (int press = 0; press < 5; ++press) QTest::keyClick(&table, Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(station.row(0), before[1]);
    EXPECT_EQ(table.currentIndex(), station.cell(0, tagColumn));

    station.pressHeader(frequencyColumn);
    EXPECT_EQ(station.row(0).frequency, "001100000");
    EXPECT_TRUE(eventually([&] {
        return table.model()->headerData(frequencyColumn, Qt::Horizontal, Qt::AccessibleTextRole).toString() ==
               "Frequency (MHz), ascending";
    }));
    EXPECT_EQ(table.currentIndex(), station.cell(0, tagColumn)) << "the keyboard stays";
    QTest::keyClick(&table, Qt::Key_F10, Qt::ShiftModifier);
    station.choose("memoriesTableMenu", "Sort by Frequency (MHz)");
    EXPECT_GT(station.row(0).frequency, station.row(1).frequency);
    const MemoryTable sorted = station.controller.memories.vqMemArray();
    QTest::keyClick(&table, Qt::Key_F10, Qt::ShiftModifier);
    station.choose("memoriesTableMenu", "Move down");
    EXPECT_EQ(station.row(1), sorted[0]);

    for (const char* responses : {"VS0;MD03;FA007031000;", "MD02;FA021200000;"})
        keepAutoMemory(station.controller, responses);
    QTableView& kept = station.table("autoMemTable");
    ASSERT_TRUE(eventually([&] { return kept.model()->rowCount() == 2; }));
    kept.setFocus();
    kept.setCurrentIndex(kept.model()->index(1, 4));
    QTest::keyClick(&kept, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(eventually([&] { return station.radio.transceiver.state().activeTuning().frequency == 7'031'000; }));
    kept.setCurrentIndex(kept.model()->index(0, 3));
    QTest::keyClick(&kept, Qt::Key_Space);
    EXPECT_TRUE(eventually([&] { return kept.model()->rowCount() == 1; }));
    EXPECT_EQ(kept.model()->index(0, 1).data(), "7.031.000");
    EXPECT_EQ(kept.currentIndex(), kept.model()->index(0, 3)) << "the keyboard stays in the table";
}

// An edit belongs to its row: it follows the row, and is dropped when the row no longer exists.
TEST(TablesTest, AnOpenEditorNeverWritesIntoAnotherRow) {
    Memories station;
    const AutoMemoryState& kept = station.controller.autoMemories.state();
    for (const char* responses : {"VS0;MD03;FA007031000;", "MD02;FA021200000;"})
        keepAutoMemory(station.controller, responses);
    QTableView& notes = station.table("autoMemTable");
    ASSERT_TRUE(eventually([&] { return notes.model()->rowCount() == 2; }));
    QLineEdit* note = station.edit(notes, notes.model()->index(1, 4));
    ASSERT_NE(note, nullptr);
    QTest::keyClicks(note, "loud");
    station.radio.operate([](auto& radio) { radio.tune(28'400'000); });
    ASSERT_TRUE(eventually([&] { return station.controller.mirror.state().vqFreqA == "028400000"; }));
    station.display.autoMemoryNowButton.performClick();
    ASSERT_TRUE(eventually([&] { return notes.model()->rowCount() == 3; }));
    ASSERT_EQ(Memories::editor(notes), note) << "it stays open";
    EXPECT_EQ(note->geometry().center().y(), notes.visualRect(notes.model()->index(2, 4)).center().y());
    QTest::keyClicks(note, "er");
    QTest::keyClick(note, Qt::Key_Return);
    const std::vector<std::string> noted{"   ", "   ", "louder"};
    EXPECT_TRUE(eventually([&] { return kept.vqAutoNotesArray == noted; }));
    EXPECT_EQ(notes.currentIndex().row(), 2);

    // The row is removed before the window has shown it, and after.
    for (const bool shown : {false, true}) {
        note = station.edit(notes, notes.model()->index(1, 4));
        ASSERT_NE(note, nullptr);
        QTest::keyClicks(note, "nobody's");
        station.display.autoMemsTableClearButton.setTag(1);
        station.display.autoMemsTableClearButton.performClick();
        const int left = shown ? 1 : 2;
        if (shown) {
            EXPECT_TRUE(eventually([&] { return Memories::isClosed(notes); }));
        } else {
            QTest::keyClick(note, Qt::Key_Tab);  // commits at once
        }
        EXPECT_TRUE(eventually([&] { return notes.model()->rowCount() == left; }));
        EXPECT_EQ(std::ranges::count(kept.vqAutoNotesArray, "nobody's"), 0);
    }

    station.settle();
    QLineEdit* name = station.edit(station.table(), station.cell(3, tagColumn));
    ASSERT_NE(name, nullptr);
    QTest::keyClicks(name, "LOST");
    station.display.readMemoriesButton.performClick();
    EXPECT_TRUE(eventually([&] { return Memories::isClosed(station.table()); }));
    EXPECT_TRUE(eventually([&] { return station.controller.memories.read().whole; }));
    EXPECT_NE(station.row(3).tag, "LOST");
}

struct Letters : TableViewDataSource {
    std::string rows = "abc";
    int numberOfRows(const TableView&) const override { return static_cast<int>(rows.size()); }
    TableCell viewFor(const TableView&, int row, int) const override {
        return TextCell{rows.substr(static_cast<std::size_t>(row), 1)};
    }
    void openLink(std::string_view) override {}
    std::optional<int> acceptDrop(TableView&, std::string_view, int) override { return std::nullopt; }
    bool mouseDownInHeader(TableView&, int) override { return false; }
};

// Two cells that became one would leave Qt with a pointer to a model that is gone.
TEST(TablesTest, CellsThatAreKeptStayApart) {
    const std::array columns{TableColumn{"letter", "Letter", 5}};
    TableView table({"letters"}, columns);
    Letters letters;
    table.setDataSource(letters);
    TableRows rows(table, nullptr);
    rows.watch(rows.index(0, 0));
    const QPersistentModelIndex watched = rows.index(0, 0), hovered = rows.index(2, 0);
    const auto reload = [&](const char* now) {
        letters.rows = now;
        rows.reload();
        return std::pair(watched.row(), hovered.row());
    };
    EXPECT_EQ(reload("bca"), std::pair(2, 0));
    EXPECT_EQ(reload("ba"), std::pair(1, 0));
    EXPECT_EQ(reload("a"), std::pair(0, -1));
}

TEST(TablesTest, WhatIsSortedDraggedAndEditedIsWrittenAndReadBack) {
    Memories station;
    station.pressHeader(tagColumn);
    EXPECT_TRUE(station.dragRow(98, 0));
    station.table().scrollToTop();
    station.type(1, frequencyColumn, "50.313");
    station.type(1, tagColumn, "MAGIC BAND");
    station.click(station.table(), station.cell(1, modeColumn));
    station.choose("memsTableModePopUpButton", "DATA-U");
    station.type(0, frequencyColumn, "");
    const MemoryTable meant = station.controller.memories.vqMemArray();
    EXPECT_EQ(meant[1], (MemoryChannel{"050313000", "C", "MAGIC BAND"}));

    station.click("writeMemoriesButton");
    QMessageBox* box = nullptr;
    ASSERT_TRUE(eventually([&] { return (box = station.box()) && box->isVisible(); }));
    for (auto* button : box->buttons())
        if (button->text() == "Write") button->click();
    station.settle();
    station.read();
    const MemoryTable& found = station.controller.memories.vqMemArray();
    int programmed = 0;
    for (int index = 0; index < memoryChannels; ++index) {
        const auto at = static_cast<std::size_t>(index);
        const bool holds = meant[at].frequency.size() == 9;
        MemoryChannel expected;
        const std::string held = station.radio.transceiver.ask("MR" + zeroPadded(index + 1, 3) + ';');
        if (holds) {
            expected = meant[at];
            expected.tag.resize(12, ' ');
            EXPECT_EQ(held.substr(5, 9), expected.frequency) << index;
            EXPECT_EQ(held.substr(held.size() - 7, 1), expected.mode) << held;
            ++programmed;
        } else {
            EXPECT_EQ(held, "?;") << index;
        }
        EXPECT_EQ(found[at], expected) << index;
        EXPECT_EQ(station.text(index, frequencyColumn).empty(), !holds);
        EXPECT_EQ(station.text(index, tagColumn), expected.tag);
    }
    EXPECT_GE(programmed, 10);
}

TEST(TablesTest, LinksOpenByHandAndByKey) {
    Station station;
    const UrlCatcher browser({"http"});
    station.show(Display::listsPage);
    auto& table = *station.find<QTableView>("potaTable");
    ASSERT_TRUE(eventually([&] { return station.display.potaStatusField.stringValue() != "Refreshing\u2026"; }));
    station.controller.lists.setRows(
        listFeed(Feed::pota),
        {{{"N0CALL", "14074", "FT8", "", "Park & <b>Co</b>", "5", "45.0", "-69.5", "US-ME", "US-0001"}},
         {{"N1CALL", "7074", "FT8", "", "", "6", "1.0", "2.0", "US-ME", ""}}});
    ASSERT_TRUE(eventually([&] { return table.model()->rowCount() == 2; }));
    const auto cell = [&](int row, const char* column) {
        return table.model()->index(row, station.display.potaTable.columnWithIdentifier(column));
    };
    const auto click = [&](const QModelIndex& index, int fromLeft) {
        const QRect place = table.visualRect(index);
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, {place.left() + fromLeft, place.center().y()});
    };
    click(cell(0, "name"), 20);
    click(cell(0, "name"), table.visualRect(cell(0, "name")).width() - 5);  // beside the text
    click(cell(1, "reference"), 20);
    table.setCurrentIndex(cell(0, "reference"));
    QAccessibleTableInterface* read = QAccessible::queryAccessibleInterface(&table)->tableInterface();
    ASSERT_NE(read, nullptr);
    const auto spoken = [&](const char* column, QAccessible::Text what) {
        return read->cellAt(0, cell(0, column).column())->text(what).toStdString();
    };
    EXPECT_EQ(spoken("reference", QAccessible::Name), "Park, US-0001, link");
    EXPECT_EQ(spoken("reference", QAccessible::Description), "Enter opens it in the web browser.");
    EXPECT_EQ(spoken("tune", QAccessible::Name), "Tune to N0CALL, 14.074 MHz, button");
    EXPECT_EQ(spoken("last", QAccessible::Name), "Age, 5 min");
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_Return);
    const std::string services = "http://127.0.0.1:1";
    EXPECT_EQ(browser.taken,
              (std::vector<std::string>{services + "/?q=45.0,-69.5&ll=45.0,-69.5&z=5", services + "/#/park/US-0001"}));
}

}  // namespace
}  // namespace corvane

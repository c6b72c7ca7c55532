// The one data source of the seven tables, and the controls in their cells.
#include <gmock/gmock.h>

#include <set>

#include "app/app_delegate.h"
#include "controller/cell_views.h"
#include "tests/support/test_bench.h"

namespace corvane {
namespace {

struct ListBench : TestBench {
    ListBench() {
        const auto put = [this](Feed feed, FeedList rows) {
            controller.lists.setRows(listFeed(feed), std::move(rows));
        };
        put(Feed::pota, {{{"N0CALL", "14074", "FT8", "", "A Park", "5", "45.0", "-69.5", "US-ME", "US-0001"}}});
        put(Feed::sota, {{{"N0CALL", "Not recognised", "14.062", "CW", "", "", "A Summit", "", "", "7"}}});
        put(Feed::netLogger, {{{"Noon Net", "14.25", "SSB", "12"}}});
        put(Feed::nets, {{{"With", "3.94", "17:00", "LSB", "https://net.example/a b", "yes", "7"}},
                         {{"Without", "3.94", "17:00", "LSB", "javascript:alert(1)", "", "8"}}});
        put(Feed::mediumWave, {{{"WAAA", "540", "Town", "50", "http://waaa.example"}}, {{"short"}}});
        keepAutoMemory(controller, "VS0;MD02;FA014074000;");
        display.autoMemTable.editCell(0, 4, "note");
        putChannel(controller.memories, 4, {"014250000", "C", "FT8"});
    }
    TableCell view(const TableView& table, int row, std::string_view column) const {
        return table.view(row, table.columnWithIdentifier(column));
    }
};

TEST(Tables, ShowLinksTextsPopUpsAndWhatCanBeEdited) {
    ListBench bench;
    const Display& display = bench.display;
    const struct {
        const TableView& table;
        int row;
        std::string_view column;
        TableCell cell;
        std::string_view spoken;
    } cases[] = {
        {display.potaTable, 0, "name", LinkCell{"A Park", "https://maps.google.com/?q=45.0,-69.5&ll=45.0,-69.5&z=5"},
         "A Park, link"},
        {display.potaTable, 0, "reference", LinkCell{"US-0001", "https://pota.app/#/park/US-0001"}, "US-0001, link"},
        {display.potaTable, 0, "last", TextCell{"5 min"}, "5 min"},
        {display.sotaTable, 0, "name2", TextCell{"A Summit"}, "A Summit"},
        {display.netLoggerTable, 0, "freq", TextCell{"14250.0"}, "14250.0"},
        {display.netsTable, 0, "netName", LinkCell{"With", "https://net.example/a b"}, "With, link"},
        {display.netsTable, 1, "netName", TextCell{"Without"}, "Without"},
        {display.netsTable, 1, "confirmed", TextCell{""}, "empty"},
        {display.mwTable, 0, "station", LinkCell{"WAAA", "http://waaa.example"}, "WAAA, link"},
        {display.mwTable, 1, "station", TextCell{"short"}, "short"},
        {display.mwTable, 1, "power", TextCell{""}, "empty"},
        {display.autoMemTable, 0, "freq", TextCell{"014074000"}, "014074000"},
        {display.autoMemTable, 0, "notes1", EditableCell{"note"}, "note"},
        {display.memoriesTable, 4, "memChan", TextCell{"M-05"}, "M-05"},
        {display.memoriesTable, 4, "frequency", EditableCell{"14.250000"}, "14.250000"},
        {display.memoriesTable, 4, "mode", PopUpCell{&display.memsTableModePopUpButton.titles(), 12},
         "DATA-U, pop-up menu"},
        {display.memoriesTable, 5, "mode", PopUpCell{&display.memsTableModePopUpButton.titles(), 0},
         "empty, pop-up menu"},
        {display.memoriesTable, 4, "memTag", EditableCell{"FT8"}, "FT8"},
        {display.memoriesTable, 5, "memTag", EditableCell{" "}, "empty"},
        {display.memoriesTable, 5, "handle", HandleCell{}, "handle"},
        {display.netsTable, 1, "unconfirm", ButtonCell{"Retract", "Retract check-in", 1}, "Retract check-in, button"},
    };
    for (const auto& expected : cases) {
        const TableCell cell = bench.view(expected.table, expected.row, expected.column);
        EXPECT_EQ(cell, expected.cell) << expected.column << ' ' << textOf(cell);
        EXPECT_EQ(spokenTextOf(cell), expected.spoken);
    }
}

TEST(CellViews, EveryButtonHasItsRowInItsTagAndActsOnIt) {
    ListBench bench;
    std::set<std::string_view> names;
    for (const CellView<Button>& row : buttonCellViews) {
        TableView& table = bench.display.*row.table;
        Button& button = bench.display.*row.control;
        const int column = table.columnWithIdentifier(row.column);
        ASSERT_GE(column, 0) << row.name;
        EXPECT_EQ(table.cellControl(column), &button) << row.name;
        EXPECT_TRUE(names.insert(row.name).second) << row.name;
        int pressed = -1;
        button.action = [&](Button& sender) { pressed = sender.tag(); };
        for (int index = 0; index < table.rows(); ++index) {
            table.pressCell(index, column);
            EXPECT_EQ(pressed, index) << row.name;
            EXPECT_EQ(std::get<ButtonCell>(table.view(index, column)).tag, index) << row.name;
            EXPECT_EQ(table.placeOf(button), (CellPlace{index, column})) << row.name;
        }
        pressed = -1;
        table.pressCell(table.rows(), column);
        EXPECT_EQ(pressed, -1) << "the row is gone";
    }
    EXPECT_EQ(names.size(), 12U);
}

TEST(AppDelegate, ShowsTheFirstPageAndLetsMemoryRowsBeDragged) {
    TestBench bench;
    bench.display.mainTab.selectItem(Display::listsPage);
    EXPECT_EQ(bench.display.memoriesTable.drop("0", 2), std::nullopt);
    AppDelegate(bench.display).applicationDidFinishLaunching();
    EXPECT_EQ(bench.display.mainTab.indexOfSelectedItem(), Display::stationPage);
    EXPECT_EQ(bench.display.memoriesTable.drop("0", 2), 1);
    EXPECT_FALSE(bench.display.autoMemTable.takesDraggedText());
}

}  // namespace
}  // namespace corvane

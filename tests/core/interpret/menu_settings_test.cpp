// The transceiver's setup menu, from its table to the simulated transceiver and back.
#include <gmock/gmock.h>

#include "interpret/menu_writes.h"
#include "tests/support/radio_bench.h"
#include "wire/cat_command.h"

namespace corvane {
namespace {

using ::testing::IsEmpty;
using Texts = std::vector<std::string>;

std::string numberOf(const MenuItemRow& row) { return zeroPadded(row.number, 6); }

// The transceiver's value of an item, without the text before it on the line.
std::string heldBy(const RadioBench& bench, const MenuItemRow& row) {
    return bench.transceiver.state().menu.value(numberOf(row)).value_or("none");
}

TEST(MenuSettingsTest, EveryEntryOfEveryItemIsSetReportedAndReadBack) {
    RadioBench bench;
    bench.controller.restoreSettings();
    int written = 0;
    bench.display.menu.forEachPopUp([&](const MenuItemRow& row, PopUpButton& popUp) {
        const std::string number = numberOf(row);
        ASSERT_EQ(static_cast<bool>(popUp.action), row.write != MenuWrite::none) << number;
        if (!popUp.action) return;
        ++written;
        ASSERT_GT(popUp.titles().size(), 1) << number;
        const int step = popUp.titles().size() > 1000 ? 101 : 1;
        for (int entry = 0; entry < popUp.titles().size(); entry += step) {
            const std::string title = popUp.titles().at(entry);
            if (title == PopUpButton::unusedEntry) continue;
            popUp.choose(entry);
            bench.settle();
            ASSERT_EQ(popUp.titleOfSelectedItem(), title) << number;
            const std::string held = heldBy(bench, row);
            if (row.write == MenuWrite::title)
                ASSERT_EQ(held, title) << number;
            else
                ASSERT_EQ(std::stoi(held), entry) << number;
            if (row.take == MenuTake::none) continue;
            popUp.selectItem(PopUpButton::noSelection);
            bench.controller.sendCommand("EX" + number + ';');
            bench.settle();
            ASSERT_EQ(popUp.titleOfSelectedItem(), title) << number;
        }
    });
    EXPECT_EQ(written, 215);
}

// Items that the operator changes on the transceiver itself.
TEST(MenuSettingsTest, ItemsThatAreOnlyShownFollowTheTransceiver) {
    RadioBench bench;
    for (const auto& [report, title] : {std::pair{"EX0203012;", "100"}, std::pair{"EX0302011;", "Wide"}}) {
        bench.receive(report);
        const MenuItemRow* row = menuItem(std::stoi(std::string(report).substr(2, 6)));
        EXPECT_EQ(bench.display.menu.popUp(row->page(), row->tag())->titleOfSelectedItem(), title);
    }
}

TEST(MenuSettingsTest, WhatNamesNoItemOrNoValueSendsNothing) {
    RadioBench bench;
    bench.controller.link.build("FA014250000;");
    bench.port->written.clear();
    for (const int tag : {2010200, 2040101, 2019999, 2000000}) {
        PopUpButton stranger({"", tag});
        bench.controller.goSuperPopUp(stranger);
    }
    PopUpButton& weight = *bench.display.menu.popUp(1, 2020203);
    weight.selectItem(30);
    weight.choose(3);  // an index that the transceiver does not use
    EXPECT_EQ(weight.indexOfSelectedItem(), 30);
    EXPECT_THAT(bench.port->written, IsEmpty());

    for (const auto& [item, value] :
         {std::pair{10101, "EX010101+00;"}, std::pair{10111, "EX010111000;"}, std::pair{20205, "EX0202050001;"},
          std::pair{10104, "EX0101040020;"}, std::pair{40105, "EX04010500;"}, std::pair{10108, ""}})
        EXPECT_EQ(menuSetCommand(*menuItem(item), PopUpButton::noSelection, ""), value);
}

TEST(MenuSettingsTest, NumericPopUpsAreFilledOnceAndKeepWhatWasReported) {
    RadioBench bench;
    bench.controller.restoreSettings();
    struct Case {
        int page, tag, entries;
        std::string_view first, last, marked, selected;
    };
    for (const Case& each :
         {Case{0, 2010115, 101, "000", "100", "050", "050"}, Case{1, 2020205, 9999, "0001", "9999", "0001", "0001"},
          Case{0, 2010420, 301, "0000", "3000", "1500", "0150"}, Case{0, 2010318, 101, "0000", "1000", "0100", "0010"},
          Case{2, 2030404, 21, "005", "025", "025", "025"}}) {
        const PopUpButton& popUp = *bench.display.menu.popUp(each.page, each.tag);
        const EntryTitles& titles = popUp.titles();
        ASSERT_EQ(titles.size(), each.entries) << each.tag;
        EXPECT_EQ(titles.at(0), each.first);
        EXPECT_EQ(titles.at(each.entries - 1), each.last);
        EXPECT_EQ(popUp.titleOfSelectedItem(), each.selected);
        int marks = 0;
        for (int entry = 0; entry < each.entries; ++entry) {
            if (popUp.itemImage(entry) == Image::none) continue;
            ++marks;
            EXPECT_EQ(popUp.itemImage(entry), Image::NSImageNameStatusPartiallyAvailable);
            EXPECT_EQ(titles.at(entry), each.marked);
        }
        EXPECT_EQ(marks, 1) << each.tag;
    }
    bench.receive("EX010115077;EX0104201495;");
    bench.controller.restoreSettings();
    EXPECT_EQ(bench.display.menu.popUp(0, 2010115)->titleOfSelectedItem(), "077");
    EXPECT_EQ(bench.display.menu.popUp(0, 2010420)->titleOfSelectedItem(), "1495");
    bench.controller.fillMenuPopUp(0, 9, 1, 2010115, 1, 3, 0);  // not on that page
    EXPECT_EQ(bench.display.menu.popUp(0, 2010115)->titles().size(), 101);
}

TEST(MenuSettingsTest, AValueBetweenTwoEntriesGetsAnEntryOfItsOwn) {
    RadioBench bench;
    bench.controller.restoreSettings();
    PopUpButton& delay = *bench.display.menu.popUp(0, 2010104);  // in steps of 20
    for (int report = 0; report < 2; ++report) bench.receive("EX0101040250;");
    EXPECT_EQ(delay.titleOfSelectedItem(), "0250");
    ASSERT_EQ(delay.titles().size(), 201);
    EXPECT_EQ(delay.titles().at(11), "0240");
    EXPECT_EQ(delay.titles().at(13), "0260");
    bench.receive("EX0101040260;EX0101040021;");
    EXPECT_EQ(delay.titles().at(1), "0021");
    bench.takeWrites();
    delay.choose(13);
    EXPECT_THAT(bench.takeWrites(), ::testing::ElementsAre("EX0101040250;"));

    PopUpButton& shift = *bench.display.menu.popUp(0, 2010420);  // its default is marked
    bench.receive("EX0104201495;");
    EXPECT_EQ(shift.titleOfSelectedItem(), "1495");
    EXPECT_EQ(shift.titles().at(151), "1500");
    EXPECT_EQ(shift.itemImage(150), Image::none);
    EXPECT_EQ(shift.itemImage(151), Image::NSImageNameStatusPartiallyAvailable);
}

TEST(MenuSettingsTest, AReportThatSaysNothingChangesNothing) {
    RadioBench bench;
    bench.controller.restoreSettings();
    bench.receive("EX0101040260;EX01010712;EX0101081;");
    const auto shown = [&] {
        Texts titles;
        bench.display.menu.forEachPopUp(
            [&](const MenuItemRow&, PopUpButton& popUp) { titles.push_back(popUp.titleOfSelectedItem()); });
        return titles;
    };
    const Texts before = shown();
    ASSERT_EQ(bench.display.menu.popUp(0, 2010107)->indexOfSelectedItem(), 12);
    for (const char* report :
         {"EX;", "EX0101;", "EX010104;", "EX010104026;", "EX0101041;", "EX0101040019;", "EX0101044001;",
          "EX010104+250;", "EX010107xx;", "EX010107-1;", "EX01010799;", "EX0101089;", "EX010108;", "EX010120000;",
          "EX990101000;", "EX+1010400;", "EX0106011;", "EX01010\xc3\xa9;"})
        bench.receive(report);
    EXPECT_EQ(shown(), before);
    bench.receive("EX01010403609;");  // characters after the value are ignored
    EXPECT_EQ(bench.display.menu.popUp(0, 2010104)->titleOfSelectedItem(), "0360");
}

TEST(MenuSettingsTest, TheCallSignIsKeptAndShown) {
    RadioBench bench;
    for (const auto& [report, call] : {std::pair{"EX040101N0CALL      ;", "N0CALL"},
                                       std::pair{"EX040101 \r\nAB1C\t;", "AB1C"}, std::pair{"EX040101;", ""}}) {
        bench.receive(report);
        EXPECT_EQ(bench.controller.setupMenu.vqCall(), call);
        EXPECT_EQ(bench.controller.userDefaults.text("call"), call);
        EXPECT_EQ(bench.display.callTextField.stringValue(), call);
    }
    bench.display.callTextField.edit("N1");
    bench.receive("EX040101N0CALL      ;");
    EXPECT_EQ(bench.display.callTextField.stringValue(), "N1") << "the operator is typing";
}

TEST(MenuSettingsTest, ReadingAGroupTellsHowFarItIs) {
    RadioBench bench;
    const TextField& field = bench.display.menu.readField(0);
    const LevelIndicator& progress = bench.display.menu.readProgress(0);
    EXPECT_FALSE(progress.visible());
    bench.display.key(2010100).performClick();
    EXPECT_EQ(field.stringValue(), "Reading 0 of 104 items");
    EXPECT_TRUE(progress.visible());
    bench.settle();
    EXPECT_EQ(field.stringValue(), "93 items read, 11 not shown") << "the encoders and decoders are only written";
    EXPECT_FALSE(progress.visible());

    // A transceiver without some sub-menus, one that stops answering, and a link that is closed.
    bench.port->onWrite = nullptr;
    bench.display.key(2040100).performClick();
    for (const int item :
         {40101, 40102, 40103, 40104, 40105, 40106, 40201, 40202, 40203, 40204, 40301, 40302, 40303, 40304})
        bench.receive("EX" + zeroPadded(item, 6) + "00;");
    EXPECT_EQ(bench.display.menu.readField(3).stringValue(), "Reading 14 of 16 items");
    EXPECT_EQ(bench.display.menu.readProgress(3).integerValue(), 87);
    bench.receive("?;?;");
    EXPECT_EQ(bench.display.menu.readField(3).stringValue(), "14 items read, 2 unknown to this transceiver");
    bench.receive("?;");
    EXPECT_EQ(bench.display.menu.readField(3).stringValue(), "14 items read, 2 unknown to this transceiver");
    EXPECT_FALSE(bench.display.menu.readProgress(3).visible());

    // A value that no entry has is not read.
    bench.display.key(2020100).performClick();
    bench.receive("EX020107x;EX0201029999;EX020101+00;");
    EXPECT_EQ(bench.display.menu.readField(1).stringValue(), "Reading 1 of 31 items");

    bench.display.key(2020100).performClick();
    bench.receive("EX020101+00;");
    bench.advance(std::chrono::seconds(4));
    EXPECT_EQ(bench.display.menu.readField(1).stringValue(),
              "Read 1 of 31 items: no answer. Read again to ask once more.");
    EXPECT_FALSE(bench.display.menu.readProgress(1).visible());

    bench.display.key(2020100).performClick();
    bench.display.openCloseButton.performClick();
    EXPECT_THAT(bench.display.menu.readField(1).stringValue(), ::testing::HasSubstr("stopped, the link is closed"));
    bench.display.key(2020100).performClick();
    EXPECT_FALSE(bench.display.menu.readProgress(1).visible()) << "no read is under way";
}

TEST(MenuSettingsTest, ASearchFindsItemsByTheWordsOfTheirLabels) {
    for (const auto& [search, matches] : {std::pair{"", 220},
                                          {"agc delay", 18},
                                          {"SSB agc", 3},
                                          {"01-01-04", 1},
                                          {"  my   call ", 2},
                                          {"agc nonsense", 0}}) {
        const auto found = [text = search](const MenuItemRow& row) { return menuItemMatches(row, text); };
        EXPECT_EQ(std::ranges::count_if(menuItems, found), matches) << search;
    }
}

TEST(EntryTitlesTest, NumbersAreWrittenAndFoundInTheirOwnForm) {
    struct Case {
        std::string_view entries;
        Texts titles;
    };
    for (const Case& each :
         {Case{"-2..+1/1%+2", {"-02", "-01", "+00", "+01"}}, Case{"0020..0060/20%4", {"0020", "0040", "0060"}},
          Case{"OFF|5..10|x", {"OFF", "5..10", "x"}}, Case{"1..3/0%1", {"1..3/0%1"}}, Case{"01..02/1%2", {"01", "02"}},
          Case{"", {}}}) {
        const EntryTitles titles = entryTitles(each.entries);
        EXPECT_EQ(titles.list(), each.titles);
        for (int index = 0; index < titles.size(); ++index) EXPECT_EQ(titles.indexOf(titles.at(index)), index);
    }
    const EntryTitles run = entryTitles("0020..4000/20%4");
    for (const std::string_view title : {"", "20", "0030", "4020", "0000", "+0020", "0020 ", "99999999999"})
        EXPECT_EQ(run.indexOf(title), std::nullopt) << title;
}

}  // namespace
}  // namespace corvane

#include "simulator/menu.h"

#include <gtest/gtest.h>

#include "simulator/decimal_field.h"
#include "simulator/menu_rows.h"

namespace simulator {
namespace {

std::string written(const MenuRow& row, int value) {
    return row.form == MenuForm::signedNumber ? signedField(value, row.width) : decimalField(value, row.width);
}

TEST(Menu, EveryItemTakesItsWholeRangeAndNothingBeyond) {
    Menu menu;
    int items = 0;
    for (const MenuRow& row : menuRows()) {
        ++items;
        ASSERT_EQ(menu.value(row.number)->size(), static_cast<std::size_t>(row.width)) << row.number;
        if (row.form == MenuForm::text) continue;
        for (int value = row.lowest; value <= row.highest; value += row.step)
            ASSERT_TRUE(menu.store(row.number, written(row, value))) << row.number << " " << value;
        EXPECT_EQ(menu.value(row.number), written(row, row.highest));
        EXPECT_FALSE(menu.store(row.number, written(row, row.highest + row.step))) << row.number;
        EXPECT_FALSE(menu.store(row.number, written(row, row.highest) + "0")) << row.number;
        EXPECT_EQ(menu.value(row.number), written(row, row.highest));
    }
    EXPECT_EQ(items, 220);
}

TEST(Menu, WidthsAreThoseOfTheLine) {
    struct Width {
        std::string_view number;
        int width;
    };
    for (const Width& each :
         {Width{"010101", 3}, Width{"010104", 4}, Width{"010107", 2}, Width{"010108", 1}, Width{"010321", 3},
          Width{"010420", 4}, Width{"010605", 3}, Width{"010706", 1}, Width{"020203", 2}, Width{"020205", 4},
          Width{"020211", 2}, Width{"020301", 1}, Width{"030115", 2}, Width{"030118", 3}, Width{"030206", 2},
          Width{"030403", 3}, Width{"040101", 12}, Width{"040105", 2}, Width{"040402", 1}})
        EXPECT_EQ(menuRow(each.number)->width, each.width) << each.number;
    EXPECT_EQ(menuRow("010120"), nullptr);
}

TEST(Menu, RefusesWhatIsNotAValue) {
    Menu menu;
    const std::string fast = *menu.value("010104");
    for (const std::string_view value : {"", "480", "0481", "4020", "+480", "048O", "0000"})
        EXPECT_FALSE(menu.store("010104", value)) << value;
    EXPECT_EQ(menu.value("010104"), fast);
    EXPECT_FALSE(menu.store("010101", "000")) << "the sign is part of the value";
    EXPECT_FALSE(menu.store("020203", "24")) << "an index that is not used";
    EXPECT_FALSE(menu.store("010515", "0"));
    EXPECT_FALSE(menu.store("040101", "THIRTEENCHARS"));
}

}  // namespace
}  // namespace simulator

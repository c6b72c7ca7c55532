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
    EXPECT_EQ(menuRow("010120"), nullptr);
}

}  // namespace
}  // namespace simulator

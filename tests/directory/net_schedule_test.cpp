#include "net_schedule.h"

#include <gtest/gtest.h>

namespace corvane::directory {
namespace {

using namespace std::chrono_literals;

constexpr unsigned workdays = 0b0111110;

TEST(NetSchedule, IsReadFromTimeAndDays) {
    const struct {
        std::string_view utc;
        std::string_view days;
        std::optional<Schedule> schedule;
    } rows[]{
        {"17:00", "daily", Schedule{0b1111111, 17h}},           {"00:05", "Mon-Fri", Schedule{workdays, 5min}},
        {"23:59", "Sun Wed", Schedule{0b0001001, 23h + 59min}}, {"12:00", "Sat-Mon", Schedule{0b1000011, 12h}},
        {"12:00", "Fri Sun-Sun", Schedule{0b0100001, 12h}},
    };
    for (const auto& row : rows) EXPECT_EQ(scheduleOf(row.utc, row.days), row.schedule) << row.utc << ' ' << row.days;
    for (const char* const utc : {"24:00", "12:60", "1200", "12.00", "-1:00", "12: 0"})
        EXPECT_EQ(scheduleOf(utc, "daily"), std::nullopt) << utc;
    for (const char* const days : {"", "Daily", "Mon,Tue", "Mon-", "Mon  Tue"})
        EXPECT_EQ(scheduleOf("12:00", days), std::nullopt) << days;
}

TEST(NetSchedule, TheNextSessionIsTheOneThatIsOnOrTheFirstAfter) {
    using namespace std::chrono;
    const Seconds monday = sys_days(2026y / November / 23);
    const struct {
        Schedule schedule;
        Seconds now;
        Seconds next;
    } rows[]{
        {{0b1111111, 17h}, monday + 16h, monday + 17h},
        {{0b1111111, 17h}, monday + 17h, monday + 17h},
        {{0b1111111, 17h}, monday + 17h + 59min + 59s, monday + 17h},
        {{0b1111111, 17h}, monday + 18h, monday + 41h},
        {{workdays, 1h}, monday - 2 * 24h, monday + 1h},
        {{0b0000010, 1h}, monday + 2h, monday + 7 * 24h + 1h},
        // Yesterday's session is still on after midnight.
        {{0b0000001, 23h + 30min}, monday + 15min, monday - 30min},
    };
    for (const auto& row : rows) EXPECT_EQ(nextSession(row.schedule, row.now), row.next) << (row.now - monday).count();
}

}  // namespace
}  // namespace corvane::directory

#include "qt/platform/qt_scheduler.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <vector>

#include "event_loop.h"

namespace corvane {
namespace {

using std::chrono::milliseconds;
using Order = std::vector<int>;

TEST(QtSchedulerTest, RunsInTheOrderOfDueTimesAndEqualOnesAsGiven) {
    QtScheduler scheduler;
    Order order;
    const auto note = [&order](int number) { return [&order, number] { order.push_back(number); }; };
    scheduler.after(milliseconds(20), note(4));
    for (const int number : {1, 2, 3}) scheduler.after(milliseconds(10), note(number));
    scheduler.after(milliseconds(0), note(0));
    EXPECT_TRUE(order.empty());  // no task runs inside the call
    EXPECT_TRUE(eventually([&] { return order.size() == 5; }));
    EXPECT_EQ(order, (Order{0, 1, 2, 3, 4}));
}

TEST(QtSchedulerTest, KeepsRealTimeAndASpeedShortensIt) {
    QElapsedTimer clock;
    bool ran = false;
    clock.start();
    QtScheduler scheduler;
    scheduler.after(milliseconds(50), [&] { ran = true; });
    EXPECT_TRUE(eventually([&] { return ran; }));
    EXPECT_GE(clock.elapsed(), 49);

    clock.start();
    ran = false;
    QtScheduler fast(100);
    fast.after(std::chrono::seconds(5), [&] { ran = true; });
    EXPECT_TRUE(eventually([&] { return ran; }));
    EXPECT_GE(clock.elapsed(), 49);
    EXPECT_LT(clock.elapsed(), 1000);
}

TEST(QtSchedulerTest, ATaskMayPlanMoreAndRunAnEventLoop) {
    QtScheduler scheduler;
    Order order;
    scheduler.after(milliseconds(0), [&] {
        scheduler.after(milliseconds(0), [&] { order.push_back(2); });
        EXPECT_TRUE(eventually([&] { return order.size() == 2; }));
        order.push_back(3);
    });
    scheduler.after(milliseconds(0), [&] { order.push_back(1); });
    EXPECT_TRUE(eventually([&] { return order.size() == 3; }));
    EXPECT_EQ(order, (Order{1, 2, 3}));
}

TEST(QtSchedulerTest, DropsWhatIsLeftAtItsEnd) {
    bool ran = false;
    {
        QtScheduler().after(milliseconds(0), [&] { ran = true; });
    }
    QCoreApplication::processEvents();
    EXPECT_FALSE(ran);
}

}  // namespace
}  // namespace corvane

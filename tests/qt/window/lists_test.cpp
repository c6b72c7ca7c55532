// The on-line lists in the real window, fed by a server on this machine.
#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTableView>

#include "heartbeat.h"
#include "lists_station.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;

constexpr double slower = 5;  // leaves a server on this machine 400 ms of the 2 s

QTableView* showPotaTable(ListsStation& station) {
    station.lists.display.mainTab.selectItem(Display::listsPage);
    station.lists.display.listsTab.selectItem(0);
    QTableView* view = nullptr;
    eventually([&] {
        view = station.listsWindow.findChild<QTableView*>("potaTable");
        return view && view->isVisible();
    });
    return view;
}

std::string spot(int number) {
    return R"({"activator":"N)" + std::to_string(number) + R"(CALL","frequency":")" + std::to_string(14'000 + number) +
           R"(","mode":"SSB","comments":"","name":"Park )" + std::to_string(number) +
           R"(","spotTime":"2026-11-23T00:00:00","locationDesc":"US-ME","reference":"US-1"})";
}

TEST(ListsTest, AreFilledFilteredAndTunedTo) {
    ListsStation station(slower, [](QTcpSocket& client, const std::string& request) {
        std::string body = "nothing";
        if (request.starts_with("GET /spot/activator"))
            body = '[' + spot(200) + ',' + spot(210) + ',' + spot(220) + ']';
        client.write(LocalServer::ok(body).c_str());
    });
    station.listsWindow.show();
    station.lists.awakeFromNib();
    QTableView* table = showPotaTable(station);
    ASSERT_NE(table, nullptr);
    // A busy machine may need a second try.
    TextField& status = station.lists.display.potaStatusField;
    ASSERT_TRUE(eventually([&] {
        if (status.stringValue().ends_with("no answer within 2 s")) station.lists.fetchPotaSpots();
        return table->model()->rowCount() == 3;
    }));
    EXPECT_TRUE(status.stringValue().ends_with("UTC: 3 spots"));
    EXPECT_TRUE(eventually([&] {
        const std::string sota = station.lists.display.sotaStatusField.stringValue();
        if (sota.ends_with("no answer within 2 s")) station.lists.fetchSotaSpots();
        return sota.ends_with("not JSON");
    }));

    station.lists.display.openCloseButton.performClick();
    // The opening's last request has come, and its answers: nothing changes the page or the active VFO any more.
    ASSERT_TRUE(eventually([&] { return station.radio.transceiver.received().count("EX") > 0; }, 20s));
    station.settle();
    ASSERT_EQ(station.lists.mirror.state().vqAorB, "A");
    ASSERT_EQ(showPotaTable(station), table);
    QTest::keyClicks(station.listsWindow.findChild<QLineEdit*>("potaTableFilter"), "park 21");
    EXPECT_EQ(table->model()->rowCount(), 1);
    EXPECT_EQ(station.listsWindow.findChild<QLabel*>("potaTableCount")->text(), "1 of 3");
    const QPoint tune = table->visualRect(table->model()->index(0, 0)).center();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, tune);
    EXPECT_TRUE(eventually([&] { return station.radio.transceiver.state().activeTuning().frequency == 14'210'000; }));
}

// The rows are set by hand: no server is asked.
TEST(ListsTest, ARefreshKeepsTheRowAndWhatIsInSight) {
    ListsStation station(1, [](QTcpSocket&, const std::string&) {});
    station.showWindow();
    QTableView* table = showPotaTable(station);
    ASSERT_NE(table, nullptr);
    const auto put = [&](int first, const std::string& age) {
        FeedList rows;
        for (int i = first; i < 100 && first >= 0; ++i)
            rows.push_back(
                {{"N" + std::to_string(i), std::to_string(14'000 + i), "SSB", "", "Park", age, "", "", "", ""}});
        station.lists.lists.setRows(listFeed(Feed::pota), std::move(rows));
        station.settle();
    };
    const auto callAt = [](const QModelIndex& cell) { return cell.siblingAtColumn(1).data().toString(); };
    put(0, "3");
    table->verticalScrollBar()->setValue(40);
    // The keyboard is elsewhere: a press must reach the row under the pointer, not scroll it away.
    const QModelIndex pressed = table->indexAt(QPoint(150, 100));
    EXPECT_EQ(callAt(pressed), "N43");
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, QPoint(150, 100));
    EXPECT_EQ(callAt(table->currentIndex()), "N43");
    EXPECT_EQ(table->verticalScrollBar()->value(), 40);
    put(-1, "");  // emptied for the refresh
    EXPECT_EQ(table->model()->rowCount(), 0);
    put(2, "4");
    EXPECT_EQ(callAt(table->currentIndex()), "N43") << "the same station, older and two rows higher";
    EXPECT_EQ(table->verticalScrollBar()->value(), 40);
    station.lists.display.chip(Chip::cw).performClick();
    station.settle();
    EXPECT_EQ(table->model()->rowCount(), 0);
    station.lists.display.chip(Chip::all).performClick();
    station.settle();
    EXPECT_EQ(callAt(table->currentIndex()), "N43");
}

TEST(ListsTest, AServerThatNeverAnswersHoldsUpNothing) {
    ListsStation station(slower, [](QTcpSocket&, const std::string&) {});
    station.showWindow();
    station.lists.awakeFromNib();
    Heartbeat heartbeat;
    ASSERT_TRUE(eventually([&] { return station.server.requests.size() == 6; }));
    EXPECT_TRUE(eventually([&] {
        return station.lists.display.mwStatusField.stringValue().ends_with("no answer within 2 s") &&
               station.lists.display.bandStatusField.stringValue().ends_with("no answer within 2 s");
    }));
    EXPECT_LE(heartbeat.latest(), 50ms);
}

}  // namespace
}  // namespace corvane

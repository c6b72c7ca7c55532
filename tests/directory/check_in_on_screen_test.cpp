// The real program with the real service: a check-in, seen in the window.
#include <gtest/gtest.h>

#include <QAbstractItemModel>
#include <QTableView>

#include "running_service.h"
#include "station.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;

class CheckInOnScreen : public testing::Test {
protected:
    CheckInOnScreen() {
        directory::prepareDatabase(database.location());
        service.emplace(database.location());
        hosts.directory = "http://127.0.0.1:" + std::to_string(service->port());
        lists.emplace(station.platform, hosts);
        window.emplace(*lists);
        window->show();
        lists->awakeFromNib();
        lists->display.mainTab.selectItem(Display::listsPage);
    }
    QTableView& table() { return *window->findChild<QTableView*>("netsTable"); }
    QString text(int row, int column) { return table().model()->index(row, column).data().toString(); }
    // Refreshes the list again if the refresh timed out on a busy machine.
    bool comesToShow(const std::function<bool()>& shown) {
        return eventually(
            [&] {
                if (lists->display.netsStatusField.stringValue().ends_with("no answer within 2 s")) lists->fetchNets();
                return shown();
            },
            30s);
    }
    void press(int row, int column) {
        const QModelIndex cell = table().model()->index(row, column);
        table().scrollTo(cell);
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, table().visualRect(cell).center());
    }

    static constexpr int netsPage = 3;
    static constexpr int confirmedColumn = 5;
    const directory::TestDatabase database{"SQLite"};
    std::optional<directory::RunningService> service;
    ServiceHosts hosts = ServiceHosts::from("http://127.0.0.1:1");  // no server there
    Station station{5};                                             // 2 s pass in 400 ms
    std::optional<SerialPortDemoController> lists;
    std::optional<MainWindow> window;
};

TEST_F(CheckInOnScreen, ConfirmAndRetractChangeTheRow) {
    ASSERT_TRUE(eventually([&] {
        lists->display.listsTab.selectItem(netsPage);  // tabs are made when they are first shown, with page 0
        const auto* view = window->findChild<QTableView*>("netsTable");
        return view && view->isVisible();
    }));
    ASSERT_TRUE(comesToShow([&] { return table().model()->rowCount() > 30; }));
    const auto row = [&] {
        for (int i = 0; i < table().model()->rowCount(); ++i)
            if (text(i, 1).contains("InterCon")) return i;
        return -1;
    };
    const auto confirmed = [&] { return row() < 0 ? "" : text(row(), confirmedColumn); };
    EXPECT_EQ(confirmed(), "no (0)");

    press(row(), lists->display.netsTable.columnWithIdentifier("confirm"));
    EXPECT_TRUE(comesToShow([&] { return confirmed() == "yes (1)"; })) << confirmed().toStdString();
    EXPECT_EQ(service->confirm(directory::bob, "intercon"), 200);
    lists->fetchNets();
    EXPECT_TRUE(comesToShow([&] { return confirmed() == "yes (2)"; })) << confirmed().toStdString();
    press(row(), lists->display.netsTable.columnWithIdentifier("unconfirm"));
    EXPECT_TRUE(comesToShow([&] { return confirmed() == "no (1)"; })) << confirmed().toStdString();
    EXPECT_TRUE(lists->display.mwStatusField.stringValue().ends_with("stations"));
}

}  // namespace
}  // namespace corvane

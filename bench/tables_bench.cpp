// How fast a list of ten thousand rows responds: painting a screenful, scrolling by a page, a character in the filter,
// and a new list. Prints milliseconds, the median and the longest of many; exits with 1 when an aim is missed.
#include <QAbstractItemModel>
#include <QApplication>
#include <QLineEdit>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

#include "app/app_delegate.h"
#include "controller/serial_port_demo_controller.h"
#include "qt/platform/qt_platform.h"
#include "qt/window/main_window.h"

namespace corvane {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int rows = 10'000;
constexpr int samples = 60;
constexpr double frame = 1000.0 / 60;  // too short to notice
constexpr double moment = 50;          // too short to wait for

FeedList manySpots() {
    FeedList list;
    for (int row = 0; row < rows; ++row) {
        const std::string number = std::to_string(row);
        list.push_back({{"N" + number + "CALL", std::to_string(14'000 + row % 350), row % 3 ? "SSB" : "CW",
                         "calling CQ, please QRZ on the hour", "State Park and Wildlife Area " + number,
                         std::to_string(row % 60), "44.3", "-68.2", "US-ME", "US-" + number}});
    }
    return list;
}

bool report(const char* what, double aim, const std::function<void(int sample)>& act,
            const std::function<void()>& prepare = {}) {
    std::vector<double> times;
    for (int sample = 0; sample < samples; ++sample) {
        if (prepare) prepare();
        const auto start = Clock::now();
        act(sample);
        times.push_back(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    }
    std::ranges::sort(times);
    const bool met = times[samples / 2] <= aim;
    std::printf("%-28s median %6.2f  longest %6.2f  aim %5.1f ms%s\n", what, times[samples / 2], times.back(), aim,
                met ? "" : "  MISSED");
    return met;
}

int run() {
    const QTemporaryDir folder;
    QtPlatformOptions options;
    options.settingsPath = folder.filePath("corvane.conf");
    options.dataPath = folder.filePath("data");
    QtPlatform platform(options);
    SerialPortDemoController controller(platform.platform(), ServiceHosts::from("http://127.0.0.1:1"));
    MainWindow window(controller);
    AppDelegate(controller.display).applicationDidFinishLaunching();
    window.show();
    controller.display.mainTab.selectItem(Display::listsPage);
    QApplication::processEvents();
    auto* table = window.findChild<QTableView*>("potaTable");
    auto* filter = window.findChild<QLineEdit*>("potaTableFilter");
    if (!table || !filter) return 1;
    FeedList spots = manySpots();
    const auto reload = [&] {
        controller.display.potaTable.reloadData();
        QApplication::processEvents();
    };
    controller.lists.setRows(listFeed(Feed::pota), spots);
    QApplication::processEvents();
    table->setCurrentIndex(table->model()->index(rows / 2, 0));
    QApplication::processEvents();
    const QString typed = "park 12";
    bool met = true;
    met &= report("paint a screenful", frame, [&](int) { table->viewport()->repaint(); });
    met &= report("scroll by a page", frame, [&](int sample) {
        table->verticalScrollBar()->setValue(100 + 30 * sample);
        QApplication::processEvents();
    });
    const auto unfiltered = [&] {
        filter->clear();
        reload();
    };
    met &= report(
        "first character of a filter", moment,
        [&](int) {
            filter->setText("p");
            QApplication::processEvents();
        },
        unfiltered);
    met &= report("next character of a filter", frame, [&](int sample) {
        filter->setText(typed.left(1 + sample % typed.size()));
        QApplication::processEvents();
    });
    filter->clear();
    met &= report("reload", frame, [&](int) { reload(); });
    FeedList other;
    int others = 0;
    met &= report(
        "another list", moment,
        [&](int) {
            controller.lists.setRows(listFeed(Feed::pota), std::move(other));
            QApplication::processEvents();
        },
        [&] {
            other = spots;
            other[rows / 2].fields[0] = std::to_string(others++);
        });
    return met ? 0 : 1;
}

}  // namespace
}  // namespace corvane

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    return corvane::run();
}

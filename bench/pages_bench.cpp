// How long each page takes to open for the first time, and how much memory the program has once all have been seen.
//
// It needs a screen; QT_QPA_PLATFORM=offscreen serves, too. Exits with 1 when an aim is missed.
#include <QApplication>
#include <QTemporaryDir>
#include <chrono>
#include <cstdio>

#include "app/app_delegate.h"
#include "controller/serial_port_demo_controller.h"
#include "qt/platform/qt_platform.h"
#include "qt/window/main_window.h"
#include "qt/window/start_report.h"

namespace corvane {
namespace {

using Clock = std::chrono::steady_clock;

constexpr double openAim = 50;      // milliseconds
constexpr double residentAim = 60;  // MiB

void settle() {
    for (int turn = 0; turn < 20; ++turn) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

// From the operator's press to the painted page.
double open(MainWindow& window, TabView& pages, int index) {
    const auto start = Clock::now();
    pages.selectItem(index);
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    window.repaint();
    const double taken = std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    settle();
    return taken;
}

int run(int argc, char** argv) {
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    QtPlatformOptions options;
    options.settingsPath = folder.filePath("corvane.conf");
    options.dataPath = folder.filePath("data");
    options.soundsFolder = folder.path().toStdString();
    QtPlatform owner(options);
    Platform platform = owner.platform();
    for (const char* preference : {"voice", "sounds"}) platform.settings.setText(preference, "0");
    SerialPortDemoController controller(platform, ServiceHosts::from("http://127.0.0.1:1"));
    MainWindow window(controller);
    AppDelegate(controller.display).applicationDidFinishLaunching();
    window.show();
    settle();
    controller.awakeFromNib();
    settle();
    Display& display = controller.display;
    struct Pages {
        const char* name;
        int page;  // of the window
        TabView* inner;
        int number;
    };
    bool good = true;
    for (const Pages& each : {Pages{"radio", Display::radioPage, nullptr, 0},
                              {"keyer", Display::keyerPage, nullptr, 0},
                              {"memories", Display::memoriesPage, nullptr, 0},
                              {"lists", Display::listsPage, &display.listsTab, Display::listsPages},
                              {"settings", Display::settingsPage, &display.settingsTab, Display::settingsPages},
                              {"help", Display::settingsPage + 1, nullptr, 0},
                              {"band map", Display::bandMapPage, nullptr, 0}}) {
        const double taken = open(window, display.mainTab, each.page);
        std::printf("%-10s %6.1f ms\n", each.name, taken);
        good &= taken <= openAim;
        for (int index = 1; index < each.number; ++index) {
            const double inner = open(window, *each.inner, index);
            std::printf("%-8s %d %6.1f ms\n", each.name, index + 1, inner);
            good &= inner <= openAim;
        }
    }
    const double resident = residentMemory();
    std::printf("all pages seen: %.1f MiB resident\n", resident);
    good &= resident <= residentAim;
    std::printf("%s\n", good ? "every aim reached" : "an aim was missed");
    return good ? 0 : 1;
}

}  // namespace
}  // namespace corvane

int main(int argc, char** argv) { return corvane::run(argc, argv); }

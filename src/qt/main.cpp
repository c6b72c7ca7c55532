// Corvane: one window, one transceiver.
#include <QApplication>
#include <QIcon>
#include <cstdio>

#include "app/app_delegate.h"
#include "app/service_hosts.h"
#include "controller/serial_port_demo_controller.h"
#include "qt/command_line.h"
#include "qt/platform/qt_platform.h"
#include "qt/platform/running_instance.h"
#include "qt/quit_signals.h"
#include "qt/window/main_window.h"
#include "qt/window/start_report.h"

int main(int argc, char** argv) {
    if (const auto printout = corvane::printoutFor({argv + 1, argv + argc})) {
        std::fputs(printout->text.c_str(), printout->status == 0 ? stdout : stderr);
        return printout->status;
    }
    QApplication::setApplicationName("corvane");
    QApplication::setApplicationDisplayName("Corvane");
    QApplication::setApplicationVersion(CORVANE_VERSION);
    QApplication::setDesktopFileName("corvane");
    const QApplication application(argc, argv);
    const corvane::QuitSignals quitSignals;
    corvane::RunningInstance instance;
    if (!instance.isFirst()) return 0;

    corvane::QtPlatform platform;
    corvane::SerialPortDemoController controller(
        platform.platform(), corvane::ServiceHosts::from(qEnvironmentVariable("CORVANE_SERVICES").toStdString(),
                                                         qEnvironmentVariable("CORVANE_DIRECTORY").toStdString()));
    corvane::MainWindow window(controller);
    instance.onActivated = [&window](const QString& token) { window.comeToFront(token); };
    corvane::reportStart(window);
    corvane::AppDelegate(controller.display).applicationDidFinishLaunching();
    // The list of ports and the icon take about 20 ms; the first paint must not wait for them.
    QObject::connect(&window, &corvane::MainWindow::firstPainted, &window, [&window, &controller] {
        controller.awakeFromNib();
        window.setWindowIcon(QIcon::fromTheme("corvane", QIcon(":/icons/corvane.svg")));
    });
    window.show();
    const int result = QApplication::exec();
    controller.memories.saveEdits();
    // Otherwise the transceiver would keep sending reports.
    if (controller.link.isOpen()) controller.display.openCloseButton.performClick();
    window.hide();
    platform.endProcess(result);
}

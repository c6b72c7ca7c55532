// The whole program without a screen: real platform and window, and the simulated transceiver on a real serial port.
#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QMessageBox>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>

#include "app/app_delegate.h"
#include "controller/serial_port_demo_controller.h"
#include "event_loop.h"
#include "qt/platform/qt_platform.h"
#include "qt/window/main_window.h"
#include "radio_on_line.h"

namespace corvane {

class Station {
public:
    static constexpr double speed = 25;  // 5 s pass in 200 ms

    explicit Station(double schedulerSpeed = speed) : schedulerSpeed_(schedulerSpeed) {
        for (const char* preference : {"voice", "sounds"}) platform.settings.setText(preference, "0");
        controller.awakeFromNib();
        AppDelegate(display).applicationDidFinishLaunching();
        window.show();
        QApplication::setActiveWindow(&window);
    }
    template <class Widget = QAbstractButton>
    Widget* find(const char* name) {
        return window.findChild<Widget*>(name);
    }
    void click(const char* name) {
        auto* button = find(name);
        ASSERT_NE(button, nullptr) << name;
        ASSERT_TRUE(button->isVisible()) << name;
        QTest::mouseClick(button, Qt::LeftButton);
    }
    // Brings one of the pages to the front.
    void show(TabView& pages, int index) {
        pages.selectItem(index);
        ASSERT_TRUE(eventually([&] {
            const auto* tabs = find<QTabWidget>(pages.objectName().c_str());
            return tabs && tabs->currentIndex() == index && tabs->currentWidget()->isVisible();
        }));
    }
    void show(int page) { show(display.mainTab, page); }
    // An entry of the menus; there must be one.
    QAction& action(const QString& text) {
        const auto actions = window.findChildren<QAction*>();
        return **std::ranges::find(actions, text, &QAction::text);
    }
    QMessageBox* box() { return window.findChild<QMessageBox*>(); }

    // A platform of its own kind that keeps its settings in this file.
    QtPlatformOptions options(const char* settings) const {
        // No sound server, speech service or session bus of this machine may answer.
        qputenv("PULSE_SERVER", "unix:/no/such/socket");
        qputenv("SPEECHD_ADDRESS", "unix_socket:/no/such/socket");
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/no/such/socket");
        QtPlatformOptions made;
        made.settingsPath = folder.filePath(settings);
        made.dataPath = folder.filePath("data");
        made.soundsFolder = folder.path().toStdString();
        made.extraPorts = {radio.path()};
        made.schedulerSpeed = schedulerSpeed_;
        made.simulatedPort = false;
        return made;
    }

    void open() {
        click("openCloseButton");
        ASSERT_TRUE(controller.link.serialPort() && controller.link.serialPort()->isOpen());
    }
    // Opens the port and waits until all requests have been answered and the line is quiet.
    void synchronise() {
        open();
        waitForOpening();
    }
    void waitForOpening() {
        ASSERT_TRUE(eventually([this] { return radio.transceiver.received().count("EX") > 0; }));
        settle();
    }
    void settle() {
        radio.takeReceived();
        ASSERT_TRUE(eventually([this] {
            runEventLoop(std::chrono::milliseconds(50));
            return radio.takeReceived().empty();
        }));
    }

private:
    const double schedulerSpeed_;

public:
    RadioOnLine radio;
    const QTemporaryDir folder;
    QtPlatform owner{options("corvane.conf")};
    Platform platform = owner.platform();
    SerialPortDemoController controller{platform, ServiceHosts::from("http://127.0.0.1:1")};  // no server there
    Display& display = controller.display;
    MainWindow window{controller};
};

}  // namespace corvane

// The one window: menu bar, what is always in sight, and the pages.
#pragma once

#include <QMainWindow>
#include <vector>

#include "controller/serial_port_demo_controller.h"

namespace corvane {

class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    // Shows the controller's controls; it must outlive the window.
    explicit MainWindow(SerialPortDemoController& controller);

    // For another start of the program. `token` is the desktop's permission to take the keyboard; it may be empty.
    void comeToFront(const QString& token);

signals:
    void firstPainted();  // once, after the window's first paint

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void makeMenus();
    void addPreference(QMenu& menu, MenuItem& item);
    void makePages();
    void showPage(int index);
    void addFieldShortcut(const TextField& field, int page);
    void chooseTheme(const QString& name);

    SerialPortDemoController& controller_;
    ChangeQueue queue_;
    std::vector<ViewHandle> preferences_;
    bool painted_ = false;
};

}  // namespace corvane

// The one window: menu bar, what is always in sight, and the pages.
#pragma once

#include <QKeySequence>
#include <QMainWindow>
#include <functional>
#include <utility>
#include <vector>

#include "controller/serial_port_demo_controller.h"

namespace corvane {

class TabPages;

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
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void makeMenus();
    void addPreference(QMenu& menu, MenuItem& item);
    void addChoice(QMenu& menu, PopUpButton& choice);
    void makePages();
    QSize roomForWindow() const;
    void enterPage(int index);
    // Shortcuts that only move the keyboard work while a menu or a pop-up is open, too: they close it.
    void addWay(const QKeySequence& keys, std::function<void()> go);
    void addWayTo(const Control& control, int page);
    void addCommand(QMenu& menu, const QString& text, Button& button);
    void chooseTheme(const QString& name);

    SerialPortDemoController& controller_;
    ChangeQueue queue_;
    TabPages* pages_ = nullptr;
    std::vector<std::pair<QKeySequence, std::function<void()>>> ways_;
    std::vector<ViewHandle> preferences_;
    bool painted_ = false;
};

}  // namespace corvane

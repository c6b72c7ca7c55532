#include "qt/window/main_window.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "qt/window/accessible_roles.h"
#include "qt/window/control_texts.h"
#include "qt/window/control_views.h"
#include "qt/window/directory_server_dialog.h"
#include "qt/window/focus_steps.h"
#include "qt/window/header_bar.h"
#include "qt/window/memory_import_preview.h"
#include "qt/window/pages.h"
#include "qt/window/painted_style.h"
#include "qt/window/program_facts.h"
#include "qt/window/shortcuts.h"
#include "qt/window/tab_pages.h"
#include "qt/window/theme.h"

namespace corvane {

namespace {

constexpr int helpPage = Display::settingsPage + 1;
constexpr auto themeKey = "theme";
constexpr auto geometryKey = "windowGeometry";

}  // namespace

MainWindow::MainWindow(SerialPortDemoController& controller) : controller_(controller) {
    QApplication::setStyle(new PaintedStyle);
    chooseTheme(QString::fromStdString(controller_.userDefaults.text(themeKey).value_or("dark")));
    installAccessibleRoles();
    setWindowTitle("Corvane");
    setObjectName("mainWindow");
    // All reports that arrive in one turn of the event loop cause one refresh.
    queue_.onFirstChange = [this] {
        QMetaObject::invokeMethod(
            this, [this] { queue_.refresh(); }, Qt::QueuedConnection);
    };
    controller_.memories.onImport = [this](MemoryImport import, const MemoryTable& shown,
                                           MemoryChannels::TakeChannels take) {
        MemoryImportPreview::open(std::move(import), shown, this, std::move(take));
    };
    controller_.lineWatch.facts = programFacts;
    makePages();
    makeMenus();
    addShortcuts(*this, controller_.display);
    Display& display = controller_.display;
    addWayTo(display.sendTextField, Display::stationPage);
    for (const Control* control :
         std::initializer_list<Control*>{&display.freqTextField, &display.modesPopUpButton, &display.memPopUpButton,
                                         &display.AGCPopUpButton, &display.afGainSlider, &display.rfGainSlider})
        addWayTo(*control, Display::radioPage);
    addWayTo(display.textMemoryField, Display::keyerPage);
    addWayTo(display.autoMemSquelchSlider, Display::memoriesPage);
    addWay(QKeySequence("F6"), [this] { stepPanel(*this, true); });
    addWay(QKeySequence("Shift+F6"), [this] { stepPanel(*this, false); });
    qApp->installEventFilter(this);
    // An operator connects first: Space alone does it.
    if (auto* connectKey = findChild<QPushButton*>("openCloseButton")) connectKey->setFocus();
    resize(QSize(1280, 800).boundedTo(roomForWindow()));
    const std::string geometry = controller_.userDefaults.text(geometryKey).value_or("");
    if (!geometry.empty()) restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(geometry)));
    if (!isMaximized() && !isFullScreen()) resize(size().boundedTo(roomForWindow()));
}

// What the screen has left for the window inside its frame, which is not there before the window is shown.
QSize MainWindow::roomForWindow() const {
    constexpr int titleBar = 32, edges = 4;
    return screen()->availableSize() - QSize(edges, titleBar);
}

void MainWindow::makePages() {
    Display& display = controller_.display;
    auto* body = new QWidget;
    auto* rows = new QVBoxLayout(body);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(new HeaderBar(display, queue_));
    auto* pages = pages_ = new TabPages(display.mainTab, queue_);
    connect(pages, &TabPages::pageShown, this,
            [&display](const QString& title) { display.announcements.say(title.toStdString() + " page"); });
    pages->addPage("Station", [this, &display] { return makeStationPage(controller_.lineWatch, display, queue_); });
    pages->addPage("Radio", [this, &display] { return makeRadioPage(controller_.bandMap, display, queue_); });
    pages->addPage("Keyer", [this, &display] { return makeKeyerPage(display, queue_); });
    pages->addPage("Memories", [this, &display] { return makeMemoriesPage(display, queue_); });
    pages->addPage("Lists", [this, &display] { return makeListsPage(display, queue_); });
    pages->addPage("Settings", [this, &display] { return makeSettingsPage(display, queue_); });
    pages->addPage("Help", [&display] { return makeHelpPage(display); });
    pages->addPage("Band map", [this, &display] { return makeBandMapPage(controller_.bandMap, display, queue_); });
    rows->addWidget(pages, 1);
    setCentralWidget(body);
    for (int index = 0; index <= Display::bandMapPage; ++index) {
        addWay(QKeySequence("Alt+" + QString::number(index + 1)), [this, index] { enterPage(index); });
    }
}

void MainWindow::makeMenus() {
    Display& display = controller_.display;
    auto* program = menuBar()->addMenu("&Corvane");
    addCommand(*program, "&Connect or disconnect", display.openCloseButton);
    addCommand(*program, "&Say the state", display.sayStateButton);
    addCommand(*program, "&What is on this band", display.readOutBandButton);
    program->addSeparator();
    program->addAction("&Quit", QKeySequence("Ctrl+Q"), this, &QWidget::close);

    auto* presets = menuBar()->addMenu("P&resets");
    addGroupedEntries(*presets, display.presetPopUpButton);

    auto* preferences = menuBar()->addMenu("&Preferences");
    preferences->setToolTipsVisible(true);
    addPreference(*preferences, display.menuItemPreferencesVoice);
    addPreference(*preferences, display.menuItemPreferencesSounds);
    addPreference(*preferences, display.menuItemPreferencesIPO);
    addPreference(*preferences, display.menuItemPreferencesBandMap);
    addChoice(*preferences, display.onAirTimeOutPopUpButton);
    addPreference(*preferences, display.menuItemPreferencesReopen);
    preferences->addSeparator();
    auto* server =
        preferences->addAction("&Directory server\u2026", this, [this] { askForDirectoryServer(*this, controller_); });
    server->setObjectName("chooseDirectoryServer");
    server->setEnabled(!controller_.hosts.directoryIsGiven);
    server->setToolTip(server->isEnabled()
                           ? "The server of the nets, the check-ins, the medium-wave stations and the help."
                           : "Set by the variable CORVANE_DIRECTORY or CORVANE_SERVICES.");
    preferences->addSeparator();
    auto* themes = new QActionGroup(this);
    for (const char* name : {"dark", "light"}) {
        auto* action = preferences->addAction(QString(name).replace(0, 1, QChar(name[0]).toUpper()) + " theme");
        action->setCheckable(true);
        action->setChecked((Theme::currentKind() == ThemeKind::dark) == (QLatin1String(name) == QLatin1String("dark")));
        themes->addAction(action);
        connect(action, &QAction::triggered, this, [this, name] {
            chooseTheme(name);
            controller_.userDefaults.setText(themeKey, name);
        });
    }

    auto* help = menuBar()->addMenu("&Help");
    const auto showShortcuts = [this] { enterPage(helpPage); };
    help->addAction("&Shortcuts", QKeySequence("F1"), this, showShortcuts);
    ways_.emplace_back(QKeySequence("F1"), showShortcuts);
    help->addAction("&Help on the web", this, [this] { controller_.showHelp(); })->setObjectName("showHelp");
    Button& productPage = display.key(805);
    help->addAction(toQString(productPage.title()), this, [&productPage] { productPage.performClick(); })
        ->setObjectName(QString::fromStdString(productPage.objectName()));
    Button& report = display.lineReportButton;
    help->addAction("Save a &report\u2026", this, [&report] { report.performClick(); })->setToolTip(toolTipOf(report));
    help->addSeparator();
    help->addAction("&About Corvane", this, [this] {
        QMessageBox::about(
            this, "About Corvane",
            "<b>Corvane " + QApplication::applicationVersion() +
                "</b><p>Operates an HF transceiver from the desktop.<p>Free software under the GNU General "
                "Public License, version 3 or later.");
    });
}

void MainWindow::addPreference(QMenu& menu, MenuItem& item) {
    auto* action = menu.addAction(toQString(item.outlet().title));
    action->setObjectName(QString::fromStdString(item.objectName()));
    action->setToolTip(toolTipOf(item));
    action->setCheckable(true);
    connect(action, &QAction::triggered, this, [this, action, &item] {
        item.performClick();
        action->setChecked(item.checked());
        controller_.display.announcements.say(std::string(item.outlet().label) + (item.checked() ? " on" : " off"));
    });
    const auto show = [action, &item] { action->setChecked(item.checked()); };
    preferences_.push_back(item.addView(queue_, show));
    show();
}

// A menu of its own, whose entries exclude one another.
void MainWindow::addChoice(QMenu& menu, PopUpButton& choice) {
    auto* entries = menu.addMenu(toQString(choice.outlet().title));
    entries->setObjectName(QString::fromStdString(choice.objectName()));
    entries->menuAction()->setToolTip(toolTipOf(choice));
    auto* group = new QActionGroup(entries);
    for (const std::string& entry : choice.entries()) {
        const int index = static_cast<int>(group->actions().size());
        auto* action = group->addAction(QString::fromStdString(entry));
        action->setCheckable(true);
        entries->addAction(action);
        connect(action, &QAction::triggered, this, [this, index, &choice] {
            choice.choose(index);
            controller_.display.announcements.say(std::string(choice.outlet().label) + ", " +
                                                  choice.titleOfSelectedItem());
        });
    }
    const auto show = [group, &choice] {
        const int index = choice.indexOfSelectedItem();
        if (index >= 0) group->actions().at(index)->setChecked(true);
    };
    preferences_.push_back(choice.addView(queue_, show));
    show();
}

// The menu shows the shortcut and takes it.
void MainWindow::addCommand(QMenu& menu, const QString& text, Button& button) {
    auto* action = menu.addAction(text, QKeySequence(toQString(button.outlet().shortcut)), this,
                                  [&button] { button.performClick(); });
    action->setToolTip(toolTipOf(button));
}

void MainWindow::enterPage(int index) { pages_->enterPage(index); }

void MainWindow::addWay(const QKeySequence& keys, std::function<void()> go) {
    auto* shortcut = new QShortcut(keys, this);
    connect(shortcut, &QShortcut::activated, this, go);
    ways_.emplace_back(keys, std::move(go));
}

// Shows the page, and moves the keyboard into the control; of a field it selects the text, so that typing replaces it.
void MainWindow::addWayTo(const Control& control, int page) {
    addWay(QKeySequence(toQString(control.outlet().shortcut)), [this, &control, page] {
        queue_.refresh();
        pages_->enterPage(page, QString::fromStdString(control.objectName()));
        if (!control.enabled())
            controller_.display.announcements.say(std::string(control.outlet().label) + ", not available now");
    });
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !QApplication::activePopupWidget())
        return QMainWindow::eventFilter(watched, event);
    const QKeySequence keys(static_cast<QKeyEvent*>(event)->keyCombination());
    const auto way = std::ranges::find(ways_, keys, &std::pair<QKeySequence, std::function<void()>>::first);
    if (way == ways_.end()) return QMainWindow::eventFilter(watched, event);
    while (QWidget* popUp = QApplication::activePopupWidget()) popUp->close();
    way->second();
    return true;
}

void MainWindow::chooseTheme(const QString& name) {
    Theme::apply(name == "light" ? ThemeKind::light : ThemeKind::dark);
}

void MainWindow::comeToFront(const QString& token) {
    if (!token.isEmpty()) qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());  // Qt's Wayland plugin takes it from there
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

bool MainWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowStateChange) controller_.standingRefresh.setInSight(!isMinimized());
    const bool handled = QMainWindow::event(event);
    if (event->type() == QEvent::Paint && !painted_) {
        painted_ = true;
        QTimer::singleShot(0, this, &MainWindow::firstPainted);
    }
    return handled;
}

void MainWindow::closeEvent(QCloseEvent* event) {
    controller_.userDefaults.setText(geometryKey, saveGeometry().toBase64().toStdString());
    event->accept();
}

}  // namespace corvane

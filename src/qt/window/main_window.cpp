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

#include "qt/window/control_texts.h"
#include "qt/window/control_views.h"
#include "qt/window/directory_server_dialog.h"
#include "qt/window/header_bar.h"
#include "qt/window/memory_import_preview.h"
#include "qt/window/pages.h"
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
    makePages();
    // Applied before the pages are made, the style sheet would polish every widget twice, which takes 50 ms.
    chooseTheme(QString::fromStdString(controller_.userDefaults.text(themeKey).value_or("dark")));
    makeMenus();
    addShortcuts(*this, controller_.display);
    addFieldShortcut(controller_.display.sendTextField, Display::stationPage);
    addFieldShortcut(controller_.display.freqTextField, Display::radioPage);
    addFieldShortcut(controller_.display.textMemoryField, Display::keyerPage);
    // An operator connects first: Space alone does it.
    if (auto* connectKey = findChild<QPushButton*>("openCloseButton")) connectKey->setFocus();
    resize(1280, 800);
    const std::string geometry = controller_.userDefaults.text(geometryKey).value_or("");
    if (!geometry.empty()) restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(geometry)));
}

void MainWindow::makePages() {
    Display& display = controller_.display;
    auto* body = new QWidget;
    auto* rows = new QVBoxLayout(body);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(new HeaderBar(display, queue_));
    auto* pages = new TabPages(display.mainTab, queue_);
    pages->addPage("Station", [this, &display] { return makeStationPage(display, queue_); });
    pages->addPage("Radio", [this, &display] { return makeRadioPage(display, queue_); });
    pages->addPage("Keyer", [this, &display] { return makeKeyerPage(display, queue_); });
    pages->addPage("Memories", [this, &display] { return makeMemoriesPage(display, queue_); });
    pages->addPage("Lists", [this, &display] { return makeListsPage(display, queue_); });
    pages->addPage("Settings", [this, &display] { return makeSettingsPage(display, queue_); });
    pages->addPage("Help", [&display] { return makeHelpPage(display); });
    rows->addWidget(pages, 1);
    setCentralWidget(body);
    for (int index = 0; index <= helpPage; ++index) {
        auto* shortcut = new QShortcut(QKeySequence("Alt+" + QString::number(index + 1)), this);
        connect(shortcut, &QShortcut::activated, this, [this, index] { showPage(index); });
    }
}

void MainWindow::makeMenus() {
    Display& display = controller_.display;
    auto* program = menuBar()->addMenu("&Corvane");
    program->addAction("&Connect or disconnect\t" + toQString(display.openCloseButton.outlet().shortcut), this,
                       [&display] { display.openCloseButton.performClick(); });
    program->addSeparator();
    program->addAction("&Quit", QKeySequence("Ctrl+Q"), this, &QWidget::close);

    auto* presets = menuBar()->addMenu("P&resets");
    addGroupedEntries(*presets, display.presetPopUpButton);

    auto* preferences = menuBar()->addMenu("&Preferences");
    preferences->setToolTipsVisible(true);
    addPreference(*preferences, display.menuItemPreferencesVoice);
    addPreference(*preferences, display.menuItemPreferencesSounds);
    addPreference(*preferences, display.menuItemPreferencesIPO);
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
    help->addAction("&Shortcuts", QKeySequence("F1"), this, [this] { showPage(helpPage); });
    help->addAction("&Help on the web", this, [this] { controller_.showHelp(); })->setObjectName("showHelp");
    Button& productPage = display.key(805);
    help->addAction(toQString(productPage.title()), this, [&productPage] { productPage.performClick(); })
        ->setObjectName(QString::fromStdString(productPage.objectName()));
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
    connect(action, &QAction::triggered, this, [action, &item] {
        item.performClick();
        action->setChecked(item.checked());
    });
    const auto show = [action, &item] { action->setChecked(item.checked()); };
    preferences_.push_back(item.addView(queue_, show));
    show();
}

void MainWindow::showPage(int index) { controller_.display.mainTab.selectItem(index); }

// Shows the page, moves the keyboard into the field and selects its text, so that typing replaces it.
void MainWindow::addFieldShortcut(const TextField& field, int page) {
    auto* shortcut = new QShortcut(QKeySequence(toQString(field.outlet().shortcut)), this);
    connect(shortcut, &QShortcut::activated, this, [this, &field, page] {
        showPage(page);
        queue_.refresh();
        if (auto* view = findChild<QLineEdit*>(QString::fromStdString(field.objectName())))
            view->setFocus(Qt::ShortcutFocusReason);
    });
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

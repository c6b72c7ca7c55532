// The pages of the window. Each is made when it is first shown.
#pragma once

#include <QWidget>

#include "display/display.h"

namespace corvane {

QWidget* makeStationPage(Display& display, ChangeQueue& queue);
QWidget* makeRadioPage(Display& display, ChangeQueue& queue);
QWidget* makeKeyerPage(Display& display, ChangeQueue& queue);
QWidget* makeMemoriesPage(Display& display, ChangeQueue& queue);
QWidget* makeListsPage(Display& display, ChangeQueue& queue);
QWidget* makeSettingsPage(Display& display, ChangeQueue& queue);
QWidget* makeHelpPage(const Display& display);

}  // namespace corvane

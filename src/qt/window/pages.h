// The pages of the window. Each is made when it is first shown.
#pragma once

#include <QWidget>

#include "display/display.h"

namespace corvane {

class BandMap;
class LineWatch;

QWidget* makeStationPage(LineWatch& line, Display& display, ChangeQueue& queue);
QWidget* makeRadioPage(BandMap& map, Display& display, ChangeQueue& queue);
QWidget* makeKeyerPage(Display& display, ChangeQueue& queue);
QWidget* makeMemoriesPage(Display& display, ChangeQueue& queue);
QWidget* makeListsPage(Display& display, ChangeQueue& queue);
QWidget* makeSettingsPage(Display& display, ChangeQueue& queue);
QWidget* makeHelpPage(const Display& display);
QWidget* makeBandMapPage(BandMap& map, Display& display, ChangeQueue& queue);

// The active band's row of the map, for the foot of the radio page; nothing while the preference is off.
QWidget* makeBandMapStrip(BandMap& map, Display& display, ChangeQueue& queue);

}  // namespace corvane

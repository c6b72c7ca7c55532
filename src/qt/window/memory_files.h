// The memory channels to a file and from one.
#pragma once

#include <QWidget>

#include "controller/serial_port_demo_controller.h"

namespace corvane {

// Lets the Export and Import keys ask for a file over `window`. An export replaces the file whole or not at all; an
// import shows what would change before it changes the table. Neither holds up the event loop.
void bindMemoryFiles(QWidget& window, SerialPortDemoController& controller);

}  // namespace corvane

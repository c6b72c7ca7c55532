// Export and import of the memory channels.
#pragma once

#include <QWidget>

#include "controller/serial_port_demo_controller.h"

namespace corvane {

// Lets the Export and Import keys ask for a file in a dialog of `window`. An export replaces the whole file or nothing;
// an import shows what would change before it changes the table. Neither blocks the event loop.
void bindMemoryFiles(QWidget& window, SerialPortDemoController& controller);

}  // namespace corvane

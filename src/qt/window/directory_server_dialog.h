// Asks for the server of the nets directory and the help.
#pragma once

#include <QString>

class QWidget;

namespace corvane {

class SerialPortDemoController;

// Opens a dialog on `window`. It opens again, with the text that was `refused`, for what is no server's address.
void askForDirectoryServer(QWidget& window, SerialPortDemoController& controller, const QString& refused = {});

}  // namespace corvane

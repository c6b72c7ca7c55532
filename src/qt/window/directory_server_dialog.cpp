#include "qt/window/directory_server_dialog.h"

#include <QInputDialog>
#include <QLineEdit>

#include "controller/serial_port_demo_controller.h"
#include "qt/window/control_texts.h"

namespace corvane {

void askForDirectoryServer(QWidget& window, SerialPortDemoController& controller, const QString& refused) {
    const QString server = refused.isEmpty() ? toQString(controller.hosts.directory) : refused;
    auto* dialog = new QInputDialog(&window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setObjectName("directoryServer");
    dialog->setWindowTitle("Directory server");
    dialog->setLabelText(
        (refused.isEmpty() ? QString() : refused + " is no server's address: it begins with https:// or http://.\n\n") +
        "Server of the nets, the check-ins, the medium-wave stations and the help\n(empty: this computer):");
    dialog->setTextValue(server);
    auto* field = dialog->findChild<QLineEdit*>();
    field->setToolTip("A club's server, for example https://club.example");
    field->setAccessibleName("Directory server");
    QObject::connect(dialog, &QInputDialog::textValueSelected, &window, [&window, &controller](const QString& chosen) {
        if (!controller.setDirectoryServer(chosen.trimmed().toStdString()))
            askForDirectoryServer(window, controller, chosen.trimmed());
    });
    dialog->open();
}

}  // namespace corvane

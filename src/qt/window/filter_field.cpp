#include "qt/window/filter_field.h"

#include <QAbstractButton>
#include <QTimer>
#include <utility>

namespace corvane {

void makeFilterSpeak(QLineEdit& field, Display& display, std::function<QString()> result) {
    using namespace std::chrono_literals;
    auto* pause = new QTimer(&field);
    pause->setSingleShot(true);
    pause->setInterval(500ms);
    QObject::connect(&field, &QLineEdit::textChanged, pause, qOverload<>(&QTimer::start));
    QObject::connect(pause, &QTimer::timeout, &field,
                     [&display, result = std::move(result)] { display.announcements.say(result().toStdString()); });
    for (auto* clear : field.findChildren<QAbstractButton*>()) {
        clear->setObjectName(field.objectName() + "Clear");
        clear->setAccessibleName(field.accessibleName() + ", clear");
        clear->setToolTip("Empty the field.");
    }
}

}  // namespace corvane

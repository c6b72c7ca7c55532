// Hands the announcements to the screen reader, as a notification: a screen reader speaks the name of one when it
// shows.
#pragma once

#include <QElapsedTimer>
#include <QStringList>
#include <QTimer>
#include <QWidget>
#include <vector>

#include "display/display.h"

namespace corvane {

// Its accessible name is the last announcement: "20 meters, 14.250.000 MHz, USB". It takes no room.
class Announcer : public QWidget {
    Q_OBJECT

public:
    Announcer(Display& display, ChangeQueue& queue, QWidget* parent = nullptr);

signals:
    void announced(const QString& text);

private:
    void follow(TextField& field, ChangeQueue& queue, const std::string& before);
    void collect();
    void announce();

    Display& display_;
    QStringList texts_;    // not said yet
    bool tuning_ = false;  // what the transceiver reports of its frequency is to be said, too
    QTimer due_;
    QElapsedTimer said_;
    std::vector<ViewHandle> views_;
};

}  // namespace corvane

// Quits the application when the system asks for it: at the end of a session, or by Ctrl+C.
#pragma once

#include <QSocketNotifier>

#include <memory>

namespace corvane {

// Without it SIGTERM, SIGINT and SIGHUP end the program at once: a transceiver that a program has keyed would go on
// transmitting. One at a time; needs the application object.
class QuitSignals {
public:
    QuitSignals();
    ~QuitSignals();
    QuitSignals(const QuitSignals&) = delete;
    QuitSignals& operator=(const QuitSignals&) = delete;

private:
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace corvane

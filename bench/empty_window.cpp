// The least that a start can cost: an application with one empty window of the same size. Run it like corvane, on the
// same screen and with CORVANE_STOP_AFTER_FIRST_PAINT=1, too, to have the time printed.
#include <QApplication>
#include <QTimer>
#include <QWidget>

#include "qt/window/start_report.h"

namespace {

class EmptyWindow : public QWidget {
protected:
    void paintEvent(QPaintEvent*) override {
        if (!qEnvironmentVariableIsSet("CORVANE_STOP_AFTER_FIRST_PAINT")) return;
        QTimer::singleShot(0, [] {
            corvane::printStart();
            QApplication::quit();
        });
    }
};

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    EmptyWindow window;
    window.resize(1280, 800);
    window.show();
    return QApplication::exec();
}

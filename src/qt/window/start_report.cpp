#include "qt/window/start_report.h"

#include <unistd.h>

#include <QApplication>
#include <QFile>
#include <cstdio>
#include <ctime>

#include "qt/window/main_window.h"

namespace corvane {

namespace {

// Milliseconds since the start of this process. The system keeps the start in hundredths of a second since booting.
double processAge() {
    QFile file("/proc/self/stat");
    if (!file.open(QIODevice::ReadOnly)) return 0;
    // The program name in brackets may contain spaces; the start time is the 20th field after it.
    const QByteArray text = file.readAll();
    const QList<QByteArray> fields = text.mid(text.lastIndexOf(')') + 2).split(' ');
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    const double started = fields.value(19).toDouble() / static_cast<double>(sysconf(_SC_CLK_TCK));
    return (static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9 - started) * 1000;
}

}  // namespace

double residentMemory() {
    QFile file("/proc/self/statm");
    if (!file.open(QIODevice::ReadOnly)) return 0;
    return file.readAll().split(' ').value(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1024 * 1024);
}

void printStart() {
    std::printf("first paint %.0f ms, resident %.1f MiB\n", processAge(), residentMemory());
    std::fflush(stdout);
}

void reportStart(MainWindow& window) {
    if (!qEnvironmentVariableIsSet("CORVANE_STOP_AFTER_FIRST_PAINT")) return;
    QObject::connect(&window, &MainWindow::firstPainted, &window, [] {
        printStart();
        QApplication::quit();
    });
}

}  // namespace corvane

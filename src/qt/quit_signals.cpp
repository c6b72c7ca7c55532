#include "qt/quit_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <array>
#include <csignal>

namespace corvane {

namespace {

constexpr std::array quitSignals{SIGTERM, SIGINT, SIGHUP};
std::array<int, 2> ends{-1, -1};  // of a pipe: a handler may do little more than write

void tell(int) {
    const char byte = 0;
    [[maybe_unused]] const auto written = write(ends[1], &byte, 1);
}

}  // namespace

QuitSignals::QuitSignals() {
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    notifier_ = std::make_unique<QSocketNotifier>(ends[0], QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] {
        notifier_->setEnabled(false);
        QCoreApplication::quit();
    });
    for (const int number : quitSignals) std::signal(number, tell);
}

QuitSignals::~QuitSignals() {
    if (!notifier_) return;
    for (const int number : quitSignals) std::signal(number, SIG_DFL);
    notifier_.reset();
    for (const int end : ends) close(end);
}

}  // namespace corvane

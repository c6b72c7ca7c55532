// The whole program with its on-line lists at a server on this machine.
#pragma once

#include "local_server.h"
#include "station.h"

namespace corvane {

struct ListsStation : Station {
    ListsStation(double schedulerSpeed, LocalServer::Answer answer,
                 const std::optional<QSslConfiguration>& tls = std::nullopt)
        : Station(schedulerSpeed), server(std::move(answer), tls) {}

    // Shows the window and waits until it has been painted, which takes longer than anything after it.
    void showWindow() {
        bool painted = false;
        QObject::connect(&listsWindow, &MainWindow::firstPainted, &listsWindow, [&] { painted = true; });
        listsWindow.show();
        ASSERT_TRUE(eventually([&] { return painted; }));
    }

    LocalServer server;
    SerialPortDemoController lists{platform, ServiceHosts::from(server.url())};
    MainWindow listsWindow{lists};
};

}  // namespace corvane

// What is always in sight: both VFOs, the S-meter, mode, operator class, memory channel and the state of the link.
#pragma once

#include <QWidget>

#include "display/display.h"

namespace corvane {

class HeaderBar : public QWidget {
    Q_OBJECT

public:
    HeaderBar(Display& display, ChangeQueue& queue, QWidget* parent = nullptr);

private:
    QWidget* makeStatusBlock(Display& display, ChangeQueue& queue);
};

}  // namespace corvane

// The lamp beside the S-meter: red with the words "ON AIR" while the transceiver transmits.
#pragma once

#include <QLabel>

#include "display/display.h"

namespace corvane {

// While it does not transmit, or is not known to, the lamp is a frame. Below stands whether the frequency to transmit
// on is out of the operator's segments.
class OnAirLamp : public QLabel {
    Q_OBJECT

public:
    OnAirLamp(Display& display, ChangeQueue& queue);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void showModel();

    const TextField& transmitter_;
    const TextField& segment_;
    ViewHandle transmitterView_;
    ViewHandle segmentView_;
};

}  // namespace corvane

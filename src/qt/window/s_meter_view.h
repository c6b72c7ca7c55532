// The S-meter: a row of segments, S1 to S9 and above.
#pragma once

#include <QProgressBar>

#include "display/level_indicator.h"

namespace corvane {

class SMeterView : public QProgressBar {
    Q_OBJECT

public:
    SMeterView(LevelIndicator& model, ChangeQueue& queue, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    ViewHandle view_;
};

}  // namespace corvane

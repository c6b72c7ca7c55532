// The chips beside each other: what of the lists is shown.
#pragma once

#include <QAbstractButton>
#include <QLayout>
#include <functional>
#include <initializer_list>

#include "display/display.h"

namespace corvane {

// A switch in the shape of a pill. While it is lit it is filled and has a tick.
class ChipButton : public QAbstractButton {
    Q_OBJECT

public:
    // Paints what stands before the title, around its middle; `ink` reads well on a lit chip.
    using Mark = std::function<void(QPainter& painter, const QPointF& middle, bool lit, const QColor& ink)>;

    // Shows `model` as long as both live.
    ChipButton(MenuItem& model, Mark mark, ChangeQueue& queue, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void nextCheckState() override {}  // only the model lights a chip

private:
    void showModel();

    MenuItem& model_;
    const Mark mark_;
    ViewHandle view_;
};

// One chip after the other, of these groups; a little room between two groups. `markOf` gives the mark of a chip.
QLayout* chipRow(Display& display, std::initializer_list<ChipGroup> groups, ChangeQueue& queue,
                 const std::function<ChipButton::Mark(Chip chip)>& markOf = {});

}  // namespace corvane

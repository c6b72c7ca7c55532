// A box to tick: a switch of the operator's on a page.
#pragma once

#include <QCheckBox>

#include "display/menu_item.h"

namespace corvane {

class TickBox : public QCheckBox {
    Q_OBJECT

public:
    // Shows `model` as long as both live.
    TickBox(MenuItem& model, ChangeQueue& queue, QWidget* parent = nullptr);

private:
    ViewHandle view_;
};

}  // namespace corvane

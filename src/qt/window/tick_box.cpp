#include "qt/window/tick_box.h"

#include "qt/window/control_texts.h"

namespace corvane {

TickBox::TickBox(MenuItem& model, ChangeQueue& queue, QWidget* parent)
    : QCheckBox(toQString(model.outlet().title), parent) {
    describe(*this, model);
    connect(this, &QCheckBox::clicked, this, [this, &model] {
        model.performClick();
        setChecked(model.checked());
    });
    const auto show = [this, &model] { setChecked(model.checked()); };
    view_ = model.addView(queue, show);
    show();
}

}  // namespace corvane

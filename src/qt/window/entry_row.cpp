#include "qt/window/entry_row.h"

#include "qt/window/control_views.h"
#include "qt/window/key_button.h"
#include "qt/window/theme.h"

namespace corvane {

QLayout* entryRow(TextField& field, const QString& example, const std::vector<Button*>& keys, ChangeQueue& queue) {
    auto* row = new QHBoxLayout;
    row->setSpacing(2 * gridStep);
    auto* view = new TextFieldView(field, queue);
    view->setPlaceholderText(example);
    row->addWidget(titleLabel(field, *view));
    row->addWidget(view, 1);
    for (Button* key : keys) {
        auto* keyView = new KeyButton(*key, queue);
        keyView->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        view->addOwnKey(*keyView);
        row->addWidget(keyView);
    }
    return row;
}

}  // namespace corvane

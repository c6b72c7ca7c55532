#include "qt/window/control_views.h"

#include <QKeyEvent>

#include "qt/window/control_texts.h"
#include "qt/window/theme.h"

namespace corvane {

PopUpView::PopUpView(PopUpButton& model, ChangeQueue& queue, QWidget* parent) : QComboBox(parent), model_(model) {
    describe(*this, model);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(6);
    setPlaceholderText(QStringLiteral("\u2013"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setProperty("shown", !model.action);
    setFocusPolicy(model.action ? Qt::StrongFocus : Qt::TabFocus);
    connect(this, &QComboBox::activated, this, [this](int index) { model_.choose(index); });
    model.addView(queue, [this] { showModel(); });
    showModel();
}

void PopUpView::showModel() {
    if (shownEntries_ != model_.entriesVersion()) {
        shownEntries_ = model_.entriesVersion();
        clear();
        for (const std::string& entry : model_.entries()) addItem(QString::fromStdString(entry));
    }
    if (isEnabled() != model_.enabled()) setEnabled(model_.enabled());
    setCurrentIndex(model_.indexOfSelectedItem());
    setAccessibleName(model_.action ? labelOf(model_) : spokenWithValue(model_, model_.titleOfSelectedItem()));
}

void PopUpView::wheelEvent(QWheelEvent* event) { event->ignore(); }

void PopUpView::mousePressEvent(QMouseEvent* event) {
    if (model_.action) QComboBox::mousePressEvent(event);
}

void PopUpView::keyPressEvent(QKeyEvent* event) {
    const bool leaves = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
    if (model_.action || leaves)
        QComboBox::keyPressEvent(event);
    else
        event->ignore();
}

SliderView::SliderView(Slider& model, ChangeQueue& queue, QWidget* parent) : QSlider(Qt::Horizontal, parent) {
    describe(*this, model);
    setRange(model.minimum(), model.maximum());
    setEnabled(false);  // shows the transceiver's gain
    const auto show = [this, &model] {
        setValue(model.integerValue());
        setAccessibleName(spokenWithValue(model, std::to_string(model.integerValue())));
    };
    model.addView(queue, show);
    show();
}

TextFieldView::TextFieldView(TextField& model, ChangeQueue& queue, QWidget* parent) : QLineEdit(parent) {
    describe(*this, model);
    setReadOnly(!model.action);
    setProperty("shown", !model.action);
    connect(this, &QLineEdit::textEdited, this,
            [&model](const QString& text) { model.setStringValue(text.toStdString()); });
    connect(this, &QLineEdit::returnPressed, this, [&model] { model.performReturn(); });
    const auto show = [this, &model] {
        const QString shown = QString::fromStdString(model.stringValue());
        if (text() != shown) setText(shown);
        setEnabled(model.enabled());
    };
    model.addView(queue, show);
    show();
}

TextLabel::TextLabel(TextField& model, ChangeQueue& queue, QWidget* parent) : QLabel(parent) {
    describe(*this, model);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setWordWrap(true);
    const auto show = [this, &model] {
        setText(QString::fromStdString(model.stringValue()));
        setAccessibleName(spokenWithValue(model, model.stringValue()));
    };
    model.addView(queue, show);
    show();
}

QLabel* titleLabel(const Control& control, QWidget& buddy) {
    auto* label = new QLabel(toQString(control.outlet().title));
    label->setForegroundRole(QPalette::PlaceholderText);
    label->setBuddy(&buddy);
    return label;
}

}  // namespace corvane

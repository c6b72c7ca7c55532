#include "qt/window/control_views.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QSignalBlocker>
#include <algorithm>
#include <utility>

#include "qt/window/busy_widget.h"
#include "qt/window/control_texts.h"
#include "qt/window/painted_style.h"
#include "qt/window/theme.h"

namespace corvane {

SliderView::SliderView(Slider& model, ChangeQueue& queue, QWidget* parent)
    : QSlider(Qt::Horizontal, parent), model_(model) {
    describe(*this, model);
    setRange(model.minimum(), model.maximum());
    setPageStep(std::max(1, (model.maximum() - model.minimum()) / 16));
    const auto show = [this, &model] {
        enableWidget(*this, model.enabled() && model.action);
        if (model.busy()) setSliderDown(false);
        fade(*this, conditionOf(model));
        if (!isSliderDown() && value() != model.integerValue()) {
            const QSignalBlocker quiet(this);
            setValue(model.integerValue());
        }
        setSpokenName(*this, conditionOf(model), spokenWithValue(model, std::to_string(model.integerValue())));
    };
    connect(this, &QSlider::valueChanged, this, [&model](int value) { model.drag(value); });
    connect(this, &QSlider::sliderReleased, this, show);
    view_ = model.addView(queue, show);
    show();
}

SliderValue::SliderValue(Slider& model, ChangeQueue& queue, QWidget* parent) : QLabel(parent) {
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setMinimumWidth(fontMetrics().horizontalAdvance(QString::number(model.maximum())) + gridStep);
    setToolTip(toolTipOf(model));
    setAccessibleName(spokenWithValue(model, std::to_string(model.integerValue())));
    const auto show = [this, &model] {
        setText(QString::number(model.integerValue()));
        setAccessibleName(spokenWithValue(model, std::to_string(model.integerValue())));
        fade(*this, conditionOf(model));
    };
    view_ = model.addView(queue, show);
    show();
}

bool SliderView::event(QEvent* event) { return heldBack(model_, *event) || QSlider::event(event); }

void SliderView::wheelEvent(QWheelEvent* event) { event->ignore(); }

TextFieldView::TextFieldView(TextField& model, ChangeQueue& queue, QWidget* parent)
    : QLineEdit(parent), model_(model), resignations_(model.resignations()) {
    describe(*this, model);
    if (model.maximumLength() > 0) setMaxLength(model.maximumLength());
    setOnlyShows(*this, !takesText());
    connect(this, &QLineEdit::textEdited, this, [this](const QString& text) { model_.edit(text.toStdString()); });
    connect(this, &QLineEdit::returnPressed, this, [this] { model_.performReturn(); });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* from, QWidget* to) {
        if (isOwnKey(from) && to && to != this && !isOwnKey(to)) model_.endEditing();
    });
    view_ = model.addView(queue, [this] { showModel(); });
    showModel();
}

void TextFieldView::showModel() {
    const QString shown = QString::fromStdString(model_.stringValue());
    if (text() != shown) setText(shown);
    enableWidget(*this, model_.enabled());
    setReadOnly(!takesText() || model_.busy());
    const Condition condition = model_.busy() ? Condition::busy : Condition::usual;  // a text to type is no report
    fade(*this, condition);
    setSpokenName(*this, condition, labelOf(model_));
    if (std::exchange(resignations_, model_.resignations()) != model_.resignations()) {
        if (hasFocus()) emit resigned();
        clearFocus();
    }
}

void TextFieldView::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape || !model_.editing()) return QLineEdit::keyPressEvent(event);
    model_.cancelEditing();
    showModel();
}

void TextFieldView::focusOutEvent(QFocusEvent* event) {
    // A menu or another window takes the keyboard only for a moment: editing goes on after it.
    const bool leaves = event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason;
    if (leaves && !isOwnKey(QApplication::focusWidget())) model_.endEditing();
    QLineEdit::focusOutEvent(event);
}

TextLabel::TextLabel(TextField& model, ChangeQueue& queue, QWidget* parent) : ReadLabel({}, parent), model_(model) {
    describe(*this, model);
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    view_ = model.addView(queue, [this] { showModel(); });
    showModel();
}

void TextLabel::showModel() {
    const bool empty = model_.stringValue().empty();
    // What makes a text selectable costs time and memory, and an empty one needs it not.
    setTextInteractionFlags(empty ? Qt::NoTextInteraction : Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setText(QString::fromStdString(model_.stringValue()));
    setAccessibleName(spokenWithValue(model_, model_.stringValue()));
    setFocusPolicy(empty ? Qt::NoFocus : Qt::StrongFocus);  // the text can be copied
    if (hidesWhileEmpty_) setVisible(!empty);
}

void TextLabel::hideWhileEmpty() {
    hidesWhileEmpty_ = true;
    if (model_.stringValue().empty()) hide();
}

NoticeLabel::NoticeLabel(TextField& model, ChangeQueue& queue, QWidget* parent) : TextLabel(model, queue, parent) {
    setContentsMargins(3 * gridStep, 2 * gridStep, 3 * gridStep, 2 * gridStep);
    hideWhileEmpty();
}

void NoticeLabel::paintEvent(QPaintEvent* event) {
    QPainter(this).fillRect(rect(), Theme::current().warning);
    TextLabel::paintEvent(event);
}

ProgressView::ProgressView(LevelIndicator& model, ChangeQueue& queue, QWidget* parent) : QProgressBar(parent) {
    describe(*this, model);
    setRange(0, model.maximum());
    setTextVisible(false);
    setFixedHeight(sizeHint().height());  // Qt would not let it be lower than a line of text
    const auto show = [this, &model] {
        setValue(model.integerValue());
        setVisible(model.visible());
    };
    view_ = model.addView(queue, show);
    setValue(model.integerValue());
    if (!model.visible()) hide();
}

GroupedPopUpView::GroupedPopUpView(PopUpButton& model, QWidget* parent) : QPushButton(parent) {
    describe(*this, model);
    setText(toQString(model.outlet().title));
    setFont(typeface(TypeSize::key, QFont::DemiBold));
    auto* menu = new QMenu(this);
    menu->setAccessibleName(labelOf(model));
    addGroupedEntries(*menu, model);
    setMenu(menu);
}

void addGroupedEntries(QMenu& menu, PopUpButton& model) {
    const auto& entries = model.entries();
    for (auto group = model.groups().begin(); group != model.groups().end(); ++group) {
        auto* entriesOfGroup = menu.addMenu(QString::fromStdString(group->title));
        const auto next = std::next(group);
        const int end = next == model.groups().end() ? static_cast<int>(entries.size()) : next->first;
        for (int index = group->first; index < end; ++index)
            entriesOfGroup->addAction(QString::fromStdString(entries[static_cast<std::size_t>(index)]),
                                      [&model, index] { model.choose(index); });
    }
}

QLabel* titleLabel(const Control& control, QWidget& buddy) {
    auto* label = new QLabel(toQString(control.outlet().title));
    label->setForegroundRole(QPalette::PlaceholderText);
    label->setBuddy(&buddy);
    return label;
}

}  // namespace corvane

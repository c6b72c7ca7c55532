// Widgets of the other kinds of controls. Each shows its model as long as both live, and passes on what the operator
// does. A model without an action is only shown.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <algorithm>
#include <vector>

#include "display/level_indicator.h"
#include "display/pop_up_button.h"
#include "display/slider.h"
#include "display/text_field.h"
#include "qt/window/read_label.h"

class QMenu;

namespace corvane {

// While the operator holds the knob, reports do not move it.
class SliderView : public QSlider {
    Q_OBJECT

public:
    SliderView(Slider& model, ChangeQueue& queue, QWidget* parent = nullptr);

protected:
    bool event(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    const Slider& model_;
    ViewHandle view_;
};

// The value of a slider, as a number beside it.
class SliderValue : public QLabel {
    Q_OBJECT

public:
    SliderValue(Slider& model, ChangeQueue& queue, QWidget* parent = nullptr);

private:
    ViewHandle view_;
};

class TextFieldView : public QLineEdit {
    Q_OBJECT

signals:
    void resigned();  // the program takes the keyboard away; who takes it, may

public:
    TextFieldView(TextField& model, ChangeQueue& queue, QWidget* parent = nullptr);

    // A key that uses the text. Going there by keyboard does not end the editing; going on from there does.
    void addOwnKey(const QWidget& key) { ownKeys_.push_back(&key); }

protected:
    void keyPressEvent(QKeyEvent* event) override;  // Escape takes back what was typed
    void focusOutEvent(QFocusEvent* event) override;

private:
    void showModel();
    bool takesText() const { return model_.action || model_.onEdit; }
    bool isOwnKey(const QWidget* widget) const { return std::ranges::find(ownKeys_, widget) != ownKeys_.end(); }

    TextField& model_;
    std::vector<const QWidget*> ownKeys_;
    int resignations_;
    ViewHandle view_;
};

// A text that is only read. Tab reaches it while there is something to read.
class TextLabel : public ReadLabel {
    Q_OBJECT

public:
    TextLabel(TextField& model, ChangeQueue& queue, QWidget* parent = nullptr);

    // It takes no room then.
    void hideWhileEmpty();

private:
    void showModel();

    const TextField& model_;
    bool hidesWhileEmpty_ = false;
    ViewHandle view_;
};

// A text that says why something was refused. It is visible while it is not empty.
class NoticeLabel : public TextLabel {
    Q_OBJECT

public:
    NoticeLabel(TextField& model, ChangeQueue& queue, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

// How much of something is done.
class ProgressView : public QProgressBar {
    Q_OBJECT

public:
    ProgressView(LevelIndicator& model, ChangeQueue& queue, QWidget* parent = nullptr);

private:
    ViewHandle view_;
};

// A pop-up with grouped entries: a key that opens a menu with a sub-menu for each group.
class GroupedPopUpView : public QPushButton {
    Q_OBJECT

public:
    GroupedPopUpView(PopUpButton& model, QWidget* parent = nullptr);
};

// Adds the entries of a pop-up to a menu, a menu of its own for every group.
void addGroupedEntries(QMenu& menu, PopUpButton& model);

// The title of a control, as the label in front of its widget.
QLabel* titleLabel(const Control& control, QWidget& buddy);

}  // namespace corvane

// Widgets that show the other kinds of controls. Each shows its model for as long as both live, and hands what the
// operator does to it; a model without an action is only shown.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>

#include "display/pop_up_button.h"
#include "display/slider.h"
#include "display/text_field.h"

namespace corvane {

class PopUpView : public QComboBox {
    Q_OBJECT

public:
    PopUpView(PopUpButton& model, ChangeQueue& queue, QWidget* parent = nullptr);

protected:
    // The wheel scrolls the page; it must not change a transceiver by the way.
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void showModel();

    PopUpButton& model_;
    int shownEntries_ = -1;
};

class SliderView : public QSlider {
    Q_OBJECT

public:
    SliderView(Slider& model, ChangeQueue& queue, QWidget* parent = nullptr);
};

class TextFieldView : public QLineEdit {
    Q_OBJECT

public:
    TextFieldView(TextField& model, ChangeQueue& queue, QWidget* parent = nullptr);
};

// A text that is only read.
class TextLabel : public QLabel {
    Q_OBJECT

public:
    TextLabel(TextField& model, ChangeQueue& queue, QWidget* parent = nullptr);
};

// The title of a control, as the label in front of its widget.
QLabel* titleLabel(const Control& control, QWidget& buddy);

}  // namespace corvane

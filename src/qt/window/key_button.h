// A key of the window: a button model painted as a key cap, its bezel colour filling it while it is lit.
#pragma once

#include <QAccessible>
#include <QPushButton>

#include "display/button.h"
#include "qt/window/busy_widget.h"

namespace corvane {

class ChangeQueue;

class KeyButton : public QPushButton {
    Q_OBJECT

public:
    // Shows `model` as long as both live. A lit key that switches something is "checked" to a screen reader.
    KeyButton(Button& model, ChangeQueue& queue, QWidget* parent = nullptr);

    // A band is a radio button, a switch a check box, a key that does nothing a text.
    QAccessible::Role role() const;
    bool acts() const { return static_cast<bool>(model_.action); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    // Takes the font here, as a style sheet makes Qt ignore a later one.
    KeyButton(Button& model, ChangeQueue& queue, const QFont& font, QWidget* parent);

    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void nextCheckState() override {}  // only the model lights a key

    const Button& model() const { return model_; }
    // The face of the key on its cap; `ink` reads well on it.
    virtual void paintFace(QPainter& painter, const QRect& face, const QColor& ink);
    virtual QString spokenName() const;
    virtual Condition condition() const;

private:
    void showModel();
    void paintCap(QPainter& painter, const QColor& fill);

    Button& model_;
    bool showing_ = false;
    bool shown_ = true;
    ViewHandle view_;
};

}  // namespace corvane

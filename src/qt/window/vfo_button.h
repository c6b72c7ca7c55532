// The frequency of a VFO in large digits; pressing it selects the VFO.
#pragma once

#include "display/text_field.h"
#include "qt/window/key_button.h"

namespace corvane {

class VfoButton : public KeyButton {
    Q_OBJECT

public:
    // `letter` is "A" or "B"; the digits are bright while `activeVfo` shows it.
    VfoButton(Button& model, TextField& activeVfo, std::string letter, ChangeQueue& queue, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    QString spokenName() const override;

private:
    bool active() const { return activeVfo_.stringValue() == letter_; }

    TextField& activeVfo_;
    const std::string letter_;
    ViewHandle view_;
};

}  // namespace corvane

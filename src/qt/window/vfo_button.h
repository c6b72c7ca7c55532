// The frequency of a VFO in large digits; pressing it selects the VFO.
#pragma once

#include "display/text_field.h"
#include "qt/window/key_button.h"

namespace corvane {

class VfoButton : public KeyButton {
    Q_OBJECT

public:
    // `letter` is "A" or "B"; the digits are bright while `activeVfo` shows it. While `channel` has a frequency, the
    // side is on a memory channel, and that frequency stands in the place of the VFO's.
    VfoButton(Button& model, TextField& activeVfo, TextField& channel, std::string letter, ChangeQueue& queue,
              QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    QString spokenName() const override;
    Condition condition() const override;

private:
    bool active() const { return activeVfo_.stringValue() == letter_; }
    bool onChannel() const { return !channel_.stringValue().empty(); }
    const std::string& frequency() const { return onChannel() ? channel_.stringValue() : model().title(); }
    QString corner() const;
    QFont fitting(const QString& digits, int width) const;  // the words at the upper right

    TextField& activeVfo_;
    TextField& channel_;
    const std::string letter_;
    ViewHandle activeView_;
    ViewHandle channelView_;
};

}  // namespace corvane

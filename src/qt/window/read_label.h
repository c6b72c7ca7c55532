// A text that the keyboard can go to, so that a screen reader reads it.
#pragma once

#include <QLabel>

namespace corvane {

// It shows by a frame that it has the keyboard. Who makes it chooses the focus policy.
class ReadLabel : public QLabel {
    Q_OBJECT

public:
    explicit ReadLabel(const QString& text = {}, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace corvane

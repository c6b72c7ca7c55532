// A titled group of controls on a page.
#pragma once

#include <QFrame>
#include <QString>
#include <functional>

#include "display/control.h"

class QLabel;
class QVBoxLayout;

namespace corvane {

class Panel : public QFrame {
    Q_OBJECT

public:
    explicit Panel(const QString& title, QWidget* parent = nullptr);

    void setTitle(const QString& title);
    void setTitleQuiet(bool quiet);  // quiet at first
    // Calls `show`, now and after changes of the control.
    void follow(Control& control, ChangeQueue& queue, const std::function<void()>& show);
    QVBoxLayout& content() { return *content_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* title_;
    QVBoxLayout* content_;
    ViewHandle view_;
};

}  // namespace corvane

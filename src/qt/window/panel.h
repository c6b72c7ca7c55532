// A titled group of controls on a page.
#pragma once

#include <QFrame>
#include <QString>

class QLabel;
class QVBoxLayout;

namespace corvane {

class Panel : public QFrame {
    Q_OBJECT

public:
    explicit Panel(const QString& title, QWidget* parent = nullptr);

    void setTitle(const QString& title);
    void setTitleQuiet(bool quiet);  // quiet at first
    QVBoxLayout& content() { return *content_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* title_;
    QVBoxLayout* content_;
};

}  // namespace corvane

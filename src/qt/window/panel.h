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
    void setTitleColor(const QColor& color);  // an invalid colour is the ordinary one
    QVBoxLayout& content() { return *content_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* title_;
    QVBoxLayout* content_;
};

}  // namespace corvane

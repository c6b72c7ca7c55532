// A tab view whose pages are made when they are first shown or asked for.
#pragma once

#include <QPointer>
#include <QScrollArea>
#include <QTabWidget>
#include <functional>
#include <vector>

#include "display/tab_view.h"

namespace corvane {

// What a page stands in: on a small screen it scrolls. A screen reader calls it by the page's title.
class PageArea : public QScrollArea {
    Q_OBJECT

public:
    explicit PageArea(const QString& title);

    QPointer<QWidget> lastFocus;  // where the keyboard was when the page was left
};

class TabPages : public QTabWidget {
    Q_OBJECT

public:
    TabPages(TabView& model, ChangeQueue& queue, QWidget* parent = nullptr);

    // Brings a page to the front and gives the keyboard to the control with this object name. Without one, or if it
    // cannot be used, the keyboard goes to where it was on the page, at first to its first control.
    void enterPage(int index, const QString& control = {});

signals:
    void pageShown(const QString& title);  // while the keyboard was elsewhere, so that a screen reader says nothing

public:
    // `make` is called once, for a widget that the page then owns.
    void addPage(const QString& title, std::function<QWidget*()> make);

private:
    void showModel();
    void makePage(int index);
    bool bringToFront(int index);  // whether the keyboard was on the page before; then it is nowhere
    void takeKeyboard();

    TabView& model_;
    std::vector<std::function<QWidget*()>> makers_;  // empty once the page is made
    ViewHandle view_;
};

}  // namespace corvane

// A tab view whose pages are made when they are first shown or asked for.
#pragma once

#include <QTabWidget>
#include <functional>
#include <vector>

#include "display/tab_view.h"

namespace corvane {

class TabPages : public QTabWidget {
    Q_OBJECT

public:
    TabPages(TabView& model, ChangeQueue& queue, QWidget* parent = nullptr);

    // `make` is called once, for a widget that the page then owns.
    void addPage(const QString& title, std::function<QWidget*()> make);

private:
    void showModel();
    void makePage(int index);

    TabView& model_;
    std::vector<std::function<QWidget*()>> makers_;  // empty once the page is made
    ViewHandle view_;
};

}  // namespace corvane

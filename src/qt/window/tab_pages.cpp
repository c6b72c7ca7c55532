#include "qt/window/tab_pages.h"

#include <QScrollArea>
#include <QSignalBlocker>
#include <QTabBar>
#include <QVBoxLayout>
#include <utility>

#include "qt/window/control_texts.h"

namespace corvane {

TabPages::TabPages(TabView& model, ChangeQueue& queue, QWidget* parent) : QTabWidget(parent), model_(model) {
    describe(*this, model);
    tabBar()->setAccessibleName(labelOf(model));
    setDocumentMode(true);
    tabBar()->setDrawBase(false);
    connect(this, &QTabWidget::currentChanged, this, [this](int index) {
        makePage(index);
        model_.selectItem(index);
    });
    view_ = model.addView(queue, [this] { showModel(); });
}

void TabPages::addPage(const QString& title, std::function<QWidget*()> make) {
    makers_.push_back(std::move(make));
    auto* place = new QScrollArea;  // on a small screen the page scrolls
    place->setWidgetResizable(true);
    place->setFrameShape(QFrame::NoFrame);
    place->setFocusPolicy(Qt::NoFocus);
    // Qt selects the first tab by itself; the operator did not.
    const QSignalBlocker quiet(this);
    const int index = addTab(place, title);
    if (index == model_.indexOfSelectedItem()) setCurrentIndex(index);
    if (index == currentIndex() || model_.viewRequested(index)) makePage(index);
}

void TabPages::showModel() {
    for (int index = 0; index < count(); ++index)
        if (model_.viewRequested(index)) makePage(index);
    if (model_.indexOfSelectedItem() < count()) setCurrentIndex(model_.indexOfSelectedItem());
}

void TabPages::makePage(int index) {
    if (index < 0 || index >= static_cast<int>(makers_.size())) return;
    const auto make = std::exchange(makers_[static_cast<std::size_t>(index)], {});
    if (make) static_cast<QScrollArea*>(widget(index))->setWidget(make());
}

}  // namespace corvane

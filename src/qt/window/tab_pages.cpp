#include "qt/window/tab_pages.h"

#include <QApplication>
#include <QSignalBlocker>
#include <QTabBar>
#include <QVBoxLayout>
#include <utility>

#include "qt/window/control_texts.h"
#include "qt/window/focus_steps.h"

namespace corvane {

PageArea::PageArea(const QString& title) {
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName(title);
}

TabPages::TabPages(TabView& model, ChangeQueue& queue, QWidget* parent) : QTabWidget(parent), model_(model) {
    describe(*this, model);
    tabBar()->setAccessibleName(labelOf(model));
    setDocumentMode(true);
    tabBar()->setDrawBase(false);
    connect(this, &QTabWidget::currentChanged, this, [this](int index) {
        makePage(index);
        model_.selectItem(index);
        // A page that was not made yet had nothing that could take the keyboard from the page before it.
        QWidget* focused = QApplication::focusWidget();
        if (!focused || focused == currentWidget() || !focused->isVisible()) return takeKeyboard();
        if (focused != tabBar() && !currentWidget()->isAncestorOf(focused)) emit pageShown(tabText(index));
    });
    view_ = model.addView(queue, [this] { showModel(); });
}

void TabPages::addPage(const QString& title, std::function<QWidget*()> make) {
    makers_.push_back(std::move(make));
    auto* place = new PageArea(title);
    // Qt selects the first tab by itself; the operator did not.
    const QSignalBlocker quiet(this);
    const int index = addTab(place, title);
    if (index == model_.indexOfSelectedItem()) setCurrentIndex(index);
    if (index == currentIndex() || model_.viewRequested(index)) makePage(index);
}

void TabPages::enterPage(int index) {
    setCurrentIndex(index);
    const QWidget* focused = QApplication::focusWidget();
    if (!focused || !currentWidget()->isAncestorOf(focused)) takeKeyboard();
}

void TabPages::takeKeyboard() {
    QWidget* before = currentWidget()->focusWidget();
    const bool usable = before && before->isVisible() && before->isEnabled() && before != currentWidget();
    QWidget* next = usable ? before : firstTabStop(*currentWidget());
    (next ? next : tabBar())->setFocus(Qt::OtherFocusReason);
}

void TabPages::showModel() {
    for (int index = 0; index < count(); ++index)
        if (model_.viewRequested(index)) makePage(index);
    if (model_.indexOfSelectedItem() < count()) setCurrentIndex(model_.indexOfSelectedItem());
}

void TabPages::makePage(int index) {
    if (index < 0 || index >= static_cast<int>(makers_.size())) return;
    const auto make = std::exchange(makers_[static_cast<std::size_t>(index)], {});
    if (make) static_cast<PageArea*>(widget(index))->setWidget(make());
}

}  // namespace corvane

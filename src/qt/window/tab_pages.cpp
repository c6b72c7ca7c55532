#include "qt/window/tab_pages.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QSignalBlocker>
#include <QTabBar>
#include <QVBoxLayout>
#include <utility>

#include "qt/window/control_texts.h"
#include "qt/window/focus_steps.h"

namespace corvane {

namespace {

// Qt would tell a screen reader of the widget that loses the keyboard, as if it got it.
void clearFocusQuietly(QWidget& widget) {
    const QAccessible::UpdateHandler before = QAccessible::installUpdateHandler([](QAccessibleEvent*) {});
    widget.clearFocus();
    QAccessible::installUpdateHandler(before);
}

}  // namespace

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

void TabPages::enterPage(int index, const QString& control) {
    bringToFront(index);
    auto* wanted = control.isEmpty() ? nullptr : currentWidget()->findChild<QWidget*>(control);
    if (wanted && wanted->isEnabled()) return wanted->setFocus(Qt::ShortcutFocusReason);
    const QWidget* focused = window()->focusWidget();
    if (!focused || !currentWidget()->isAncestorOf(focused)) takeKeyboard();
}

// By itself Qt would give the keyboard to whatever comes next, and then to the empty place of a page not made yet: a
// screen reader would say them all.
bool TabPages::bringToFront(int index) {
    if (index == currentIndex()) return false;
    QWidget* focused = window()->focusWidget();
    const bool leaves = focused && currentWidget()->isAncestorOf(focused);
    if (leaves) {
        // An editor in a table ends with its focus.
        auto* table = qobject_cast<QAbstractItemView*>(focused->parentWidget()->parentWidget());
        static_cast<PageArea*>(currentWidget())->lastFocus = table ? table : focused;
        clearFocusQuietly(*focused);
    }
    makePage(index);
    setCurrentIndex(index);
    return leaves;
}

void TabPages::takeKeyboard() {
    QWidget* last = static_cast<PageArea*>(currentWidget())->lastFocus;
    const bool usable = last && last->isVisibleTo(this) && last->isEnabled();
    QWidget* next = usable ? last : firstTabStop(*currentWidget());
    (next ? next : tabBar())->setFocus(Qt::OtherFocusReason);
}

void TabPages::showModel() {
    for (int index = 0; index < count(); ++index)
        if (model_.viewRequested(index)) makePage(index);
    const int selected = model_.indexOfSelectedItem();
    if (selected >= count() || selected == currentIndex()) return;
    if (bringToFront(selected))
        takeKeyboard();
    else if (!tabBar()->hasFocus())
        emit pageShown(tabText(selected));
}

void TabPages::makePage(int index) {
    if (index < 0 || index >= static_cast<int>(makers_.size())) return;
    const auto make = std::exchange(makers_[static_cast<std::size_t>(index)], {});
    if (make) static_cast<PageArea*>(widget(index))->setWidget(make());
}

}  // namespace corvane

#include "qt/window/band_map_accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>
#include <map>

#include "qt/window/band_map_view.h"

namespace corvane {

namespace {

class PlaceItem : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    PlaceItem(BandMapView& view, int place) : view_(&view), place_(place) {}

    bool isValid() const override { return view_ && place_ < view_->places(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return view_ ? view_->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(view_); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name && isValid() ? view_->placeText(place_) : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override {
        if (!isValid()) return {};
        const QRect place = view_->placeRect(place_);
        return {view_->mapToGlobal(place.topLeft()), place.size()};
    }
    QAccessible::State state() const override {
        QAccessible::State state;
        if (!isValid()) return state;
        state.focusable = true;
        state.selectable = true;
        state.invisible = !view_->isVisible();
        state.focused = state.selected = view_->hasFocus() && view_->currentPlace() == place_;
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& name) override {
        if (!isValid()) return;
        if (name == pressAction()) return view_->pressPlace(place_);
        view_->setFocus();
        view_->goToPlace(place_);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    const QPointer<BandMapView> view_;
    const int place_;
};

class PlaceList : public QAccessibleWidget {
public:
    explicit PlaceList(BandMapView& view) : QAccessibleWidget(&view, QAccessible::List), view_(view) {}
    ~PlaceList() override { forget(); }

    int childCount() const override { return view_.places(); }
    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= view_.places()) return nullptr;
        const auto known = items_.find(index);
        if (known != items_.end()) return QAccessible::accessibleInterface(known->second);
        auto* item = new PlaceItem(view_, index);
        items_[index] = QAccessible::registerAccessibleInterface(item);
        return item;
    }
    int indexOfChild(const QAccessibleInterface* item) const override {
        for (const auto& [index, id] : items_)
            if (QAccessible::accessibleInterface(id) == item) return index;
        return -1;
    }
    QAccessibleInterface* focusChild() const override {
        return view_.hasFocus() ? child(view_.currentPlace()) : nullptr;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        for (int index = view_.places() - 1; index > 0; --index)
            if (child(index)->rect().contains(x, y)) return child(index);
        return nullptr;
    }
    void forget() {
        for (const auto& [index, id] : items_) QAccessible::deleteAccessibleInterface(id);
        items_.clear();
    }

private:
    BandMapView& view_;
    mutable std::map<int, QAccessible::Id> items_;
};

QAccessibleInterface* listFor(const QString&, QObject* object) {
    auto* view = qobject_cast<BandMapView*>(object);
    return view ? new PlaceList(*view) : nullptr;
}

}  // namespace

void makeBandMapAccessible() {
    static const bool installed = (QAccessible::installFactory(listFor), true);
    static_cast<void>(installed);
}

void placesChanged(BandMapView& view) {
    if (!QAccessible::isActive()) return;
    if (auto* list = dynamic_cast<PlaceList*>(QAccessible::queryAccessibleInterface(&view))) list->forget();
    QAccessibleEvent event(&view, QAccessible::ObjectReorder);
    QAccessible::updateAccessibility(&event);
}

void placeReached(BandMapView& view) {
    if (!QAccessible::isActive() || !view.hasFocus()) return;
    QAccessibleEvent event(&view, QAccessible::Focus);
    event.setChild(view.currentPlace());
    QAccessible::updateAccessibility(&event);
}

}  // namespace corvane

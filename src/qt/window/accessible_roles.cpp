#include "qt/window/accessible_roles.h"

#include <QAccessibleWidget>
#include <QScrollArea>

#include "qt/window/announcer.h"
#include "qt/window/key_button.h"
#include "qt/window/panel.h"
#include "qt/window/s_meter_view.h"
#include "qt/window/tab_pages.h"

namespace corvane {

namespace {

class NamedWidget : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;
};

// Pressing is its one action, whatever its role.
class KeyInterface : public QAccessibleWidget {
public:
    explicit KeyInterface(KeyButton& key) : QAccessibleWidget(&key), key_(key) {}

    // Qt may ask for the interface before the key is complete.
    QAccessible::Role role() const override { return key_.role(); }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = key_.isCheckable();
        state.checked = key_.isChecked();
        state.pressed = key_.isDown();
        return state;
    }
    QStringList actionNames() const override {
        QStringList names;
        if (key_.isEnabled() && key_.acts()) names << pressAction();
        return names + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override {
        if (name == pressAction() && key_.acts()) return key_.click();
        QAccessibleWidget::doAction(name);
    }

private:
    KeyButton& key_;
};

QAccessibleInterface* roleInterface(const QString&, QObject* object) {
    if (!object || !object->isWidgetType()) return nullptr;
    const QAccessible::Role role = accessibleRole(*object);
    if (role == QAccessible::NoRole) return nullptr;
    if (auto* key = qobject_cast<KeyButton*>(object)) return new KeyInterface(*key);
    return new NamedWidget(static_cast<QWidget*>(object), role);
}

}  // namespace

QAccessible::Role accessibleRole(const QObject& widget) {
    if (const auto* key = qobject_cast<const KeyButton*>(&widget)) return key->role();
    if (qobject_cast<const SMeterView*>(&widget)) return QAccessible::StaticText;
    if (qobject_cast<const Panel*>(&widget) || qobject_cast<const PageArea*>(&widget)) return QAccessible::Grouping;
    return qobject_cast<const Announcer*>(&widget) ? QAccessible::Notification : QAccessible::NoRole;
}

void installAccessibleRoles() { QAccessible::installFactory(roleInterface); }

}  // namespace corvane

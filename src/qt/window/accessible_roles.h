// What the window's own widgets are to a screen reader: a band key is a radio button, a key without an action is a
// text.
#pragma once

#include <QAccessible>

namespace corvane {

QAccessible::Role accessibleRole(const QObject& widget);  // NoRole: Qt knows best

// From now on Qt asks for the roles here.
void installAccessibleRoles();

}  // namespace corvane

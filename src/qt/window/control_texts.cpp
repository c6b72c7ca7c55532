#include "qt/window/control_texts.h"

namespace corvane {

QString toQString(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

QString labelOf(const Control& control) { return toQString(control.outlet().label); }

QString spokenWithValue(const Control& control, std::string_view value) {
    const QString spoken = toQString(value).trimmed();
    return spoken.isEmpty() ? labelOf(control) : labelOf(control) + ", " + spoken;
}

QString toolTipOf(const Control& control) {
    const QString help = toQString(control.outlet().help);
    const QString shortcut = toQString(control.outlet().shortcut);
    return shortcut.isEmpty() ? help : help + " (" + shortcut + ")";
}

QString plainToolTip(const QString& text) { return "<p>" + text.toHtmlEscaped().replace('\n', "<br>") + "</p>"; }

void describe(QWidget& widget, const Control& control) {
    widget.setObjectName(QString::fromStdString(control.objectName()));
    widget.setAccessibleName(labelOf(control));
    widget.setToolTip(toolTipOf(control));
    widget.setAccessibleDescription(toolTipOf(control));
}

}  // namespace corvane

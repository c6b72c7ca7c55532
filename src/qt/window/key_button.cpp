#include "qt/window/key_button.h"

#include <QPainter>
#include <algorithm>

#include "display/front_panel_keys.h"
#include "qt/window/busy_widget.h"
#include "qt/window/control_texts.h"
#include "qt/window/theme.h"

namespace corvane {

namespace {

// A loudspeaker, with waves or crossed out, in a square of 16 units.
void paintLoudspeaker(QPainter& painter, const QRectF& square, bool mute, const QColor& ink) {
    painter.save();
    painter.translate(square.topLeft());
    painter.scale(square.width() / 16, square.height() / 16);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawPolygon(QPolygonF({{1, 6}, {4, 6}, {8, 2}, {8, 14}, {4, 10}, {1, 10}}));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(ink, 1.6, Qt::SolidLine, Qt::RoundCap));
    if (mute) {
        painter.drawLine(QPointF(10.5, 5.5), QPointF(15, 10.5));
        painter.drawLine(QPointF(15, 5.5), QPointF(10.5, 10.5));
    } else {
        painter.drawArc(QRectF(6.5, 4.5, 6, 7), -60 * 16, 120 * 16);
        painter.drawArc(QRectF(6, 2, 9.5, 12), -60 * 16, 120 * 16);
    }
    painter.restore();
}

// Two thirds of `ground`, one of `color`.
QColor blended(const QColor& color, const QColor& ground) {
    const auto mix = [](int a, int b) { return (a + 2 * b) / 3; };
    return {mix(color.red(), ground.red()), mix(color.green(), ground.green()), mix(color.blue(), ground.blue())};
}

const FrontPanelKey* keyOf(const Button& model) {
    const std::size_t index = frontPanelKeyIndex(model.outlet().tag);
    return index < frontPanelKeys.size() ? &frontPanelKeys[index] : nullptr;
}

bool isBand(const Button& model) {
    const FrontPanelKey* key = keyOf(model);
    return key && key->panel == KeyPanel::bands;
}

// A mode key stays lit after another has been pressed: its light is no state that a screen reader may tell.
bool lights(const Button& model) {
    const FrontPanelKey* key = keyOf(model);
    return key && corvane::lights(key->action) && !std::holds_alternative<ModeKey>(key->action);
}

}  // namespace

KeyButton::KeyButton(Button& model, ChangeQueue& queue, QWidget* parent)
    : KeyButton(model, queue, typeface(TypeSize::key, QFont::DemiBold), parent) {}

KeyButton::KeyButton(Button& model, ChangeQueue& queue, const QFont& font, QWidget* parent)
    : QPushButton(parent), model_(model) {
    describe(*this, model);
    setFont(font);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusPolicy(model.action ? Qt::StrongFocus : Qt::TabFocus);
    setCheckable(lights(model));
    connect(this, &QPushButton::clicked, this, [this] { model_.performClick(); });
    // A screen reader toggles a checkable button; that is a press.
    connect(this, &QPushButton::toggled, this, [this](bool on) {
        if (showing_) return;
        showing_ = true;
        setChecked(!on);
        showing_ = false;
        model_.performClick();
    });
    view_ = model.addView(queue, [this] { showModel(); });
    showModel();
}

void KeyButton::showModel() {
    showing_ = true;
    if (isCheckable()) setChecked(model_.bezelColor() != Color::none);
    showing_ = false;
    enableWidget(*this, model_.enabled());
    if (model_.busy()) setDown(false);
    if (shown_ != model_.visible()) {
        shown_ = model_.visible();
        setVisible(shown_);
    }
    const QString title = QString::fromStdString(model_.title());
    // A "&" in a text from the transceiver must not make a keyboard shortcut.
    const QString plain = QString(title).replace('&', "&&");
    if (text() != plain) setText(plain);
    // A title from the transceiver may be longer than its key.
    if (model_.outlet().title.empty())
        setToolTip(plainToolTip(title.isEmpty() ? toolTipOf(model_) : title.trimmed() + "\n" + toolTipOf(model_)));
    setSpokenName(*this, condition(), spokenName());
    update();
}

// A dark key says nothing about the transceiver, so it has nothing to be last known.
Condition KeyButton::condition() const {
    if (model_.busy()) return Condition::busy;
    const bool shows = model_.bezelColor() != Color::none || model_.outlet().title.empty();
    return shows && model_.lastKnown() ? Condition::lastKnown : Condition::usual;
}

// A title that changes says what state the key is in: "Connected, Connect or disconnect".
QString KeyButton::spokenName() const {
    if (model_.outlet().title.empty()) return spokenWithValue(model_, model_.title());
    const QString title = QString::fromStdString(model_.title());
    if (isCheckable() || model_.title() == model_.outlet().title) return labelOf(model_);
    return title + ", " + labelOf(model_);
}

QAccessible::Role KeyButton::role() const {
    if (!acts()) return QAccessible::StaticText;
    if (isBand(model_)) return QAccessible::RadioButton;
    return isCheckable() ? QAccessible::CheckBox : QAccessible::Button;
}

QSize KeyButton::sizeHint() const {
    const QFontMetrics metrics(font());
    return {metrics.horizontalAdvance(QString::fromStdString(model_.title())) + 5 * gridStep,
            metrics.height() + 4 * gridStep};
}

// A fixed title is never cut off.
QSize KeyButton::minimumSizeHint() const {
    const int wanted = QFontMetrics(font()).horizontalAdvance(toQString(model_.outlet().title)) + 2 * gridStep;
    return {std::max(wanted, 7 * gridStep), sizeHint().height()};
}

bool KeyButton::event(QEvent* event) { return heldBack(model_, *event) || QPushButton::event(event); }

void KeyButton::paintEvent(QPaintEvent*) {
    const Theme& theme = Theme::current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool lit = model_.bezelColor() != Color::none;
    QColor fill = theme.of(model_.bezelColor(), underMouse() && model_.action ? theme.keyHover : theme.key);
    if (!model_.action && !lit) fill = theme.panel;
    const bool stale = condition() == Condition::lastKnown;
    if (stale) fill = blended(fill, theme.panel);
    if (isDown()) fill = fill.darker(120);
    const bool grey = !isEnabled() || model_.busy();
    if (grey) fill = theme.panel;
    paintCap(painter, fill);
    QColor ink = lit ? readableOn(fill) : stale ? theme.quietText : theme.text;
    if (grey) ink = palette().color(QPalette::Disabled, QPalette::ButtonText);
    paintFace(painter, rect().adjusted(2, 0, -2, 0), ink);
}

void KeyButton::paintCap(QPainter& painter, const QColor& fill) {
    const Theme& theme = Theme::current();
    painter.setBrush(fill);
    painter.setPen(hasFocus() ? QPen(theme.accent, 2) : QPen(theme.line, 1));
    const double inset = hasFocus() ? 1.0 : 0.5;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), 6, 6);
}

void KeyButton::paintFace(QPainter& painter, const QRect& face, const QColor& ink) {
    painter.setPen(ink);
    painter.setFont(font());
    QRect textFace = face;
    if (model_.image() != Image::none) {
        const int side = QFontMetrics(font()).height();
        paintLoudspeaker(painter, QRectF(face.left() + gridStep, face.center().y() - side / 2.0, side, side),
                         model_.image() == Image::NSImageNameTouchBarAudioOutputMuteTemplate, ink);
        textFace.setLeft(face.left() + side + 2 * gridStep);
    }
    const QString shown =
        QFontMetrics(font()).elidedText(QString::fromStdString(model_.title()), Qt::ElideRight, textFace.width());
    painter.drawText(textFace, Qt::AlignCenter | Qt::TextSingleLine, shown);
}

}  // namespace corvane

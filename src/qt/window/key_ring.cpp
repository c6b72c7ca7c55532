#include "qt/window/key_ring.h"

#include <QKeyEvent>
#include <algorithm>

namespace corvane {

namespace {

// The distance to the next member in this direction; 0 for another key.
int stepOf(int key, int columns) {
    switch (key) {
        case Qt::Key_Left:
            return -1;
        case Qt::Key_Right:
            return 1;
        case Qt::Key_Up:
            return -columns;
        case Qt::Key_Down:
            return columns;
        default:
            return 0;
    }
}

bool usable(const QWidget& widget) { return widget.isEnabled() && !widget.isHidden(); }

void setTabStop(QWidget& widget, bool stop) {
    const int policy = widget.focusPolicy();
    widget.setFocusPolicy(static_cast<Qt::FocusPolicy>(stop ? policy | Qt::TabFocus : policy & ~Qt::TabFocus));
}

}  // namespace

void KeyRing::add(QWidget& member) {
    members_.push_back(&member);
    setTabStop(member, false);
    member.installEventFilter(this);
    connect(&member, &QObject::destroyed, this, [this](QObject* gone) {
        std::erase(members_, gone);
        if (stop_ == gone) stop_ = nullptr;
    });
    if (!stop_ && usable(member)) makeStop(&member);
}

void KeyRing::makeStop(QWidget* member) {
    if (stop_ == member) return;
    if (stop_) setTabStop(*stop_, false);
    stop_ = member;
    if (stop_) setTabStop(*stop_, true);
}

bool KeyRing::eventFilter(QObject* watched, QEvent* event) {
    auto* member = static_cast<QWidget*>(watched);
    switch (event->type()) {
        case QEvent::FocusIn:
            makeStop(member);
            return false;
        case QEvent::EnabledChange:
        case QEvent::ShowToParent:
        case QEvent::HideToParent:
            if (!stop_ || !usable(*stop_)) {
                const auto next = std::ranges::find_if(members_, [](const QWidget* each) { return usable(*each); });
                if (next != members_.end()) makeStop(*next);
            }
            return false;
        case QEvent::KeyPress: {
            const auto& key = static_cast<QKeyEvent&>(*event);
            const bool plain = (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
            return plain && move(*member, key.key());
        }
        default:
            return false;
    }
}

// Whether it was a key for the ring; at its edge nothing moves.
bool KeyRing::move(const QWidget& from, int key) {
    const int count = static_cast<int>(members_.size());
    int place = static_cast<int>(std::ranges::find(members_, &from) - members_.begin());
    int step = stepOf(key, columns_);
    if (key == Qt::Key_Home || key == Qt::Key_End) {
        step = key == Qt::Key_Home ? 1 : -1;
        place = key == Qt::Key_Home ? -1 : count;
    }
    if (step == 0) return false;
    for (place += step; place >= 0 && place < count; place += step) {
        QWidget& next = *members_[static_cast<std::size_t>(place)];
        if (!usable(next)) continue;
        next.setFocus(Qt::OtherFocusReason);
        break;
    }
    return true;
}

}  // namespace corvane

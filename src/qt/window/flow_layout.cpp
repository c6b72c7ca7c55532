#include "qt/window/flow_layout.h"

#include <algorithm>

namespace corvane {

FlowLayout::FlowLayout(int gap, QWidget* parent) : QLayout(parent), gap_(gap) { setContentsMargins(0, 0, 0, 0); }

FlowLayout::~FlowLayout() {
    for (const QLayoutItem* item : items_) delete item;
}

QLayoutItem* FlowLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)] : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
    QLayoutItem* item = itemAt(index);
    if (item) items_.erase(items_.begin() + index);
    return item;
}

QSize FlowLayout::sizeHint() const {
    QSize size;
    for (const QLayoutItem* item : items_) {
        const QSize hint = item->sizeHint();
        size = {size.width() + hint.width() + gap_, std::max(size.height(), hint.height())};
    }
    return size;
}

QSize FlowLayout::minimumSize() const {
    QSize size;
    for (const QLayoutItem* item : items_) size = size.expandedTo(item->minimumSize());
    return size;
}

void FlowLayout::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    // Beside something higher the lines stand in the middle.
    const int spare = std::max(0, rect.height() - heightForWidth(rect.width()));
    layOut(rect.translated(0, spare / 2), true);
}

// The height of all lines.
int FlowLayout::layOut(const QRect& rect, bool moves) const {
    int x = rect.x(), y = rect.y(), line = 0;
    for (QLayoutItem* item : items_) {
        const QSize size = item->sizeHint();
        const bool fits = x == rect.x() || x + size.width() <= rect.right() + 1;
        if (!fits) {
            x = rect.x();
            y += line + gap_;
            line = 0;
        }
        if (item->spacerItem()) {
            if (x > rect.x()) x += size.width();
            continue;
        }
        if (moves) item->setGeometry(QRect(QPoint(x, y), size));
        x += size.width() + gap_;
        line = std::max(line, size.height());
    }
    return y + line - rect.y();
}

}  // namespace corvane

#include "qt/window/style_parts.h"

#include <QIconEngine>
#include <QPainter>
#include <algorithm>

#include "qt/window/theme.h"

namespace corvane {

namespace {

// In device-independent pixels.
constexpr int editorRadius = 3;
constexpr int keyRadius = 6;
constexpr int menuRadius = 4;
constexpr int scrollRadius = 4;
constexpr QSize tabMargins{36, 18};  // both sides together
constexpr int tabLine = 3;           // under the selected tab
constexpr int titleHeight = 15;      // above and below the title of a column, with the line
constexpr int menuMark = 22;         // the place of the mark of an entry, left
constexpr int menuArrow = 26;        // the place of the arrow of a sub-menu, right
constexpr int menuHeight = 10;       // above and below an entry together
constexpr int menuSeparator = 9;

void paintTick(QPainter& painter, const QPointF& middle, const QColor& ink) {
    painter.setPen(QPen(ink, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({middle + QPointF(-3.5, 0), middle + QPointF(-1, 3), middle + QPointF(4, -3.5)}));
}

void paintPill(QPainter& painter, const QRect& rect, const QColor& color) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(rect, progressHeight / 2.0, progressHeight / 2.0);
    painter.restore();
}

// The part of a progress bar that is done.
QRect doneOf(const QStyleOptionProgressBar& option) {
    const double range = std::max(1, option.maximum - option.minimum);
    QRect done = option.rect;
    done.setWidth(static_cast<int>(option.rect.width() * (option.progress - option.minimum) / range));
    return done;
}

QRect handleOf(const QStyleOptionSlider& option) {
    const bool lies = option.orientation == Qt::Horizontal;
    const int length = lies ? option.rect.width() : option.rect.height();
    const qint64 range = std::max(0, option.maximum - option.minimum);
    const auto share = range == 0 ? length : length * option.pageStep / std::max<qint64>(1, range + option.pageStep);
    const int handle = std::min(length, std::max(leastScrollHandle, static_cast<int>(share)));
    const int start = QStyle::sliderPositionFromValue(option.minimum, option.maximum, option.sliderPosition,
                                                      length - handle, option.upsideDown);
    return lies ? QRect(start, 0, handle, option.rect.height()) : QRect(0, start, option.rect.width(), handle);
}

// Two chevrons to the right, in the colour of the theme that is in use when it is painted.
class MoreMark : public QIconEngine {
public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(Theme::current().text, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        for (const int right : {0, 5}) {
            const QPointF tip = QRectF(rect).center() + QPointF(right, 0);
            painter->drawPolyline(QPolygonF({tip + QPointF(-4, -4), tip, tip + QPointF(-4, 4)}));
        }
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }
    QIconEngine* clone() const override { return new MoreMark(*this); }
};

}  // namespace

void paintBox(QPainter& painter, const QRect& rect, const QBrush& ground, const QColor& edge, int radius,
              double width) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(edge, width));
    painter.setBrush(ground);
    const double inset = width / 2;
    painter.drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), radius, radius);
    painter.restore();
}

void paintChevron(QPainter& painter, const QStyleOption& option) {
    const Theme& theme = Theme::current();
    const QColor none = option.palette.color(QPalette::Disabled, QPalette::ButtonText);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(isIn(option, QStyle::State_Enabled) ? theme.quietText : none, 1.6, Qt::SolidLine, Qt::RoundCap,
                        Qt::RoundJoin));
    const QPointF tip(option.rect.right() - 3.0 * gridStep + 1, option.rect.center().y() + 2.5);
    painter.drawPolyline(QPolygonF({tip + QPointF(-4, -4), tip, tip + QPointF(4, -4)}));
    painter.restore();
}

void paintField(QPainter& painter, const QStyleOption& option, FieldKind kind) {
    const Theme& theme = Theme::current();
    const bool editor = kind == FieldKind::inTable;
    const bool focused = isIn(option, QStyle::State_HasFocus) || editor;
    paintBox(painter, option.rect, kind == FieldKind::onlyShows ? QBrush(Qt::NoBrush) : QBrush(theme.key),
             focused ? theme.accent : theme.line, editor ? editorRadius : fieldRadius);
}

void paintKey(QPainter& painter, const QStyleOptionButton& option) {
    const Theme& theme = Theme::current();
    const bool isDefault = option.features.testFlag(QStyleOptionButton::DefaultButton);
    const bool focused = isIn(option, QStyle::State_HasFocus);
    QColor ground = isIn(option, QStyle::State_MouseOver) ? theme.keyHover : theme.key;
    if (isIn(option, QStyle::State_Sunken)) ground = ground.darker(120);
    if (!isIn(option, QStyle::State_Enabled)) ground = theme.panel;
    paintBox(painter, option.rect, ground, focused || isDefault ? theme.accent : theme.line, keyRadius,
             focused ? 2 : 1);
    if (option.features.testFlag(QStyleOptionButton::HasMenu)) paintChevron(painter, option);
}

void paintTab(QPainter& painter, const QStyleOptionTab& option) {
    const Theme& theme = Theme::current();
    if (isIn(option, QStyle::State_HasFocus)) painter.fillRect(option.rect, theme.key);
    if (isIn(option, QStyle::State_Selected))
        painter.fillRect(option.rect.adjusted(0, option.rect.height() - tabLine, 0, 0), theme.accent);
}

QSize tabSize(const QStyleOptionTab& option) {
    return option.fontMetrics.size(Qt::TextShowMnemonic, option.text) + tabMargins + QSize(0, tabLine);
}

void paintTabTitle(QPainter& painter, const QStyleOptionTab& option) {
    const Theme& theme = Theme::current();
    const bool bright = isIn(option, QStyle::State_Selected) || isIn(option, QStyle::State_MouseOver);
    painter.setPen(bright ? theme.text : theme.quietText);
    painter.drawText(option.rect.adjusted(0, 0, 0, -tabLine), Qt::AlignCenter | Qt::TextShowMnemonic, option.text);
}

void paintTitle(QPainter& painter, const QStyleOptionHeader& option, int margin) {
    const Theme& theme = Theme::current();
    painter.fillRect(option.rect, theme.panel);
    painter.fillRect(QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1), theme.line);
    painter.setPen(theme.quietText);
    // Only the dialog that chooses a file has an indicator; the program's own tables have it in their titles.
    // Qt says "down" of an ascending order.
    const char* sorted = option.sortIndicator == QStyleOptionHeader::SortDown ? " \u25b4"
                         : option.sortIndicator == QStyleOptionHeader::SortUp ? " \u25be"
                                                                              : "";
    painter.drawText(option.rect.adjusted(margin, 0, -margin, -1),
                     static_cast<int>(option.textAlignment | Qt::AlignVCenter) | Qt::TextSingleLine,
                     option.text + QString::fromUtf8(sorted));
}

QSize titleSize(const QStyleOptionHeader& option, int margin) {
    return option.fontMetrics.size(0, option.text) + QSize(2 * margin, titleHeight);
}

void paintMenuTitle(QPainter& painter, const QStyleOptionMenuItem& option) {
    const Theme& theme = Theme::current();
    painter.fillRect(option.rect, theme.window);
    const bool selected = isIn(option, QStyle::State_Selected) && isIn(option, QStyle::State_Enabled);
    if (selected) paintBox(painter, option.rect, theme.accent, theme.accent, menuRadius);
    painter.setPen(selected ? readableOn(theme.accent) : theme.text);
    painter.drawText(option.rect, Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextDontClip | Qt::TextSingleLine,
                     option.text);
}

void paintMenuEntry(QPainter& painter, const QStyleOptionMenuItem& option) {
    const Theme& theme = Theme::current();
    const QRect& rect = option.rect;
    if (option.menuItemType == QStyleOptionMenuItem::Separator) {
        painter.fillRect(QRect(rect.left() + gridStep, rect.center().y(), rect.width() - 2 * gridStep, 1), theme.line);
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(option.font);
    const bool enabled = isIn(option, QStyle::State_Enabled);
    const bool selected = isIn(option, QStyle::State_Selected) && enabled;
    if (selected) paintBox(painter, rect, theme.accent, theme.accent, menuRadius);
    const QColor ink = selected  ? readableOn(theme.accent)
                       : enabled ? theme.text
                                 : option.palette.color(QPalette::Disabled, QPalette::Text);
    if (option.checked) paintTick(painter, QPointF(rect.left() + menuMark / 2.0, rect.center().y() + 1), ink);
    painter.setPen(ink);
    const QRect words = rect.adjusted(menuMark, 0, -menuArrow, 0);
    constexpr int flags = Qt::AlignVCenter | Qt::TextShowMnemonic | Qt::TextDontClip | Qt::TextSingleLine;
    const auto tab = option.text.indexOf('\t');
    painter.drawText(words, flags | Qt::AlignLeft, option.text.left(tab));
    if (tab >= 0)
        painter.drawText(words.adjusted(0, 0, menuArrow - 2 * gridStep, 0), flags | Qt::AlignRight,
                         option.text.mid(tab + 1));
    if (option.menuItemType == QStyleOptionMenuItem::SubMenu) {
        const QPointF tip(rect.right() - 2.0 * gridStep, rect.center().y() + 0.5);
        painter.setPen(QPen(ink, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(QPolygonF({tip + QPointF(-4, -4), tip, tip + QPointF(-4, 4)}));
    }
    painter.restore();
}

QRect scrollBarPart(const QStyleOptionSlider& option, QStyle::SubControl part) {
    const bool lies = option.orientation == Qt::Horizontal;
    const QRect handle = handleOf(option);
    QRect rect = option.rect;
    switch (part) {
        case QStyle::SC_ScrollBarGroove:
            return rect;
        case QStyle::SC_ScrollBarSlider:
            return handle;
        case QStyle::SC_ScrollBarSubPage:
            lies ? rect.setRight(handle.left() - 1) : rect.setBottom(handle.top() - 1);
            return rect;
        case QStyle::SC_ScrollBarAddPage:
            lies ? rect.setLeft(handle.right() + 1) : rect.setTop(handle.bottom() + 1);
            return rect;
        default:
            return {};  // no arrows at the ends
    }
}

QSize menuEntrySize(const QStyleOptionMenuItem& option, const QSize& contents) {
    if (option.menuItemType == QStyleOptionMenuItem::Separator) return {contents.width(), menuSeparator};
    const int shortcut = option.text.contains('\t') ? 3 * gridStep : 0;
    return {contents.width() + menuMark + menuArrow + shortcut, option.fontMetrics.height() + menuHeight};
}

void paintProgressGround(QPainter& painter, const QRect& rect) { paintPill(painter, rect, Theme::current().key); }

void paintProgressDone(QPainter& painter, const QStyleOptionProgressBar& option) {
    paintPill(painter, doneOf(option), Theme::current().accent);
}

void paintScrollBar(QPainter& painter, const QStyleOptionSlider& option) {
    const QColor& color = Theme::current().line;
    paintBox(painter, handleOf(option).adjusted(1, 1, -1, -1), color, color, scrollRadius);
}

QIcon moreMark() { return QIcon(new MoreMark); }

}  // namespace corvane

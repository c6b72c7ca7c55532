#include "qt/window/painted_style.h"

#include <QComboBox>
#include <QIconEngine>
#include <QLineEdit>
#include <QPainter>
#include <QStyleOption>
#include <QTabBar>
#include <QTableView>
#include <QVariant>
#include <algorithm>

#include "qt/window/theme.h"

namespace corvane {

namespace {

constexpr auto onlyShowsProperty = "onlyShows";
constexpr auto titleMarginProperty = "titleMargin";

// Around the contents, in device-independent pixels; the edge is one of them.
constexpr QMargins fieldMargins{9, 4, 9, 4};
constexpr QMargins editorMargins{7, 1, 7, 1};  // of a field in a table
constexpr int fieldHeight = 22;                // of the contents, at least
constexpr int dropDown = 20;                   // the place of a pop-up's chevron
constexpr int fieldRadius = 5;
constexpr int editorRadius = 3;
constexpr int tableRadius = 3;
constexpr int tableFrame = 2;  // leaves the corners of the edge uncovered
constexpr int keyRadius = 6;
constexpr QSize keyMargins{22, 12};  // both sides together
constexpr int leastKey = 80;
constexpr QSize tabMargins{36, 18};
constexpr int tabLine = 3;  // under the selected tab
constexpr int titleMargin = 10;
constexpr int titleHeight = 15;  // above and below the title of a column, with the line
constexpr QSize menuBarMargins{20, 10};
constexpr int menuMark = 22;   // the place of the mark of an entry, left
constexpr int menuArrow = 26;  // the place of the arrow of a sub-menu, right
constexpr int menuHeight = 10;
constexpr int menuSeparator = 9;
constexpr int scrollBar = 10;
constexpr int leastScrollHandle = 24;
constexpr int progressHeight = 6;
constexpr int popUpEntryHeight = 8;  // above and below an entry together

template <class Option>
const Option* as(const QStyleOption* option) {
    return qstyleoption_cast<const Option*>(option);
}

bool isIn(const QStyleOption& option, QStyle::StateFlag state) { return option.state.testFlag(state); }

bool onlyShows(const QWidget* widget) { return widget && widget->property(onlyShowsProperty).toBool(); }

bool isEditorOfTable(const QWidget* widget) {
    return widget && widget->parentWidget() && qobject_cast<const QTableView*>(widget->parentWidget()->parentWidget());
}

bool isTable(const QWidget* widget) { return qobject_cast<const QTableView*>(widget); }

bool isListOfPopUp(const QWidget* widget) {
    return widget && widget->parentWidget() && qobject_cast<const QComboBox*>(widget->parentWidget()->parentWidget());
}

int titleMarginOf(const QWidget* header) {
    const QVariant margin = header ? header->property(titleMarginProperty) : QVariant();
    return margin.isValid() ? margin.toInt() : titleMargin;
}

// A rounded box with an edge of one pixel.
void paintBox(QPainter& painter, const QRect& rect, const QBrush& ground, const QColor& edge, int radius,
              double width = 1) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(edge, width));
    painter.setBrush(ground);
    const double inset = width / 2;
    painter.drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), radius, radius);
    painter.restore();
}

// The mark of what opens a list or menu, at the right end of its box.
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

void paintField(QPainter& painter, const QStyleOption& option, const QWidget* widget) {
    const Theme& theme = Theme::current();
    const bool editor = isEditorOfTable(widget);
    const bool focused = isIn(option, QStyle::State_HasFocus) || editor;
    paintBox(painter, option.rect, onlyShows(widget) ? QBrush(Qt::NoBrush) : QBrush(theme.key),
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

void paintTabTitle(QPainter& painter, const QStyleOptionTab& option) {
    const Theme& theme = Theme::current();
    const bool bright = isIn(option, QStyle::State_Selected) || isIn(option, QStyle::State_MouseOver);
    painter.setPen(bright ? theme.text : theme.quietText);
    painter.drawText(option.rect.adjusted(0, 0, 0, -tabLine), Qt::AlignCenter | Qt::TextShowMnemonic, option.text);
}

// Of a column of a table.
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

void paintMenuTitle(QPainter& painter, const QStyleOptionMenuItem& option) {
    const Theme& theme = Theme::current();
    painter.fillRect(option.rect, theme.window);
    const bool selected = isIn(option, QStyle::State_Selected) && isIn(option, QStyle::State_Enabled);
    if (selected) paintBox(painter, option.rect, theme.accent, theme.accent, 4);
    painter.setPen(selected ? readableOn(theme.accent) : theme.text);
    painter.drawText(option.rect, Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextDontClip | Qt::TextSingleLine,
                     option.text);
}

void paintTick(QPainter& painter, const QPointF& middle, const QColor& ink) {
    painter.setPen(QPen(ink, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({middle + QPointF(-3.5, 0), middle + QPointF(-1, 3), middle + QPointF(4, -3.5)}));
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
    if (selected) paintBox(painter, rect, theme.accent, theme.accent, 4);
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

void paintProgress(QPainter& painter, const QRect& rect, const QColor& color) {
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

void setOnlyShows(QWidget& widget, bool onlyShows) { widget.setProperty(onlyShowsProperty, onlyShows); }

void setTitleMargin(QWidget& header, int margin) { header.setProperty(titleMarginProperty, margin); }

PaintedStyle::PaintedStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void PaintedStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    if (qobject_cast<QTabBar*>(widget)) widget->setAttribute(Qt::WA_Hover);
}

void PaintedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    const Theme& theme = Theme::current();
    switch (element) {
        case PE_PanelLineEdit:
        case PE_FrameLineEdit:
            return paintField(*painter, *option, widget);
        case PE_Frame: {
            const bool isWindow = widget && widget->isWindow();  // the list of a pop-up
            const int radius = isWindow ? 0 : isTable(widget) ? tableRadius : fieldRadius;
            return paintBox(*painter, option->rect, isWindow ? QBrush(theme.panel) : option->palette.base(),
                            isIn(*option, State_HasFocus) ? theme.accent : theme.line, radius);
        }
        case PE_PanelMenu:
        case PE_PanelTipLabel:
            painter->fillRect(option->rect, theme.panel);
            [[fallthrough]];
        case PE_FrameMenu:
            painter->setPen(theme.line);
            return painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
        default:
            return QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void PaintedStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    const Theme& theme = Theme::current();
    switch (element) {
        case CE_PushButtonBevel:
            if (const auto* key = as<QStyleOptionButton>(option)) return paintKey(*painter, *key);
            break;
        case CE_TabBarTabShape:
            if (const auto* tab = as<QStyleOptionTab>(option)) return paintTab(*painter, *tab);
            break;
        case CE_TabBarTabLabel:
            if (const auto* tab = as<QStyleOptionTab>(option)) return paintTabTitle(*painter, *tab);
            break;
        case CE_Header:
            if (const auto* title = as<QStyleOptionHeader>(option))
                return paintTitle(*painter, *title, titleMarginOf(widget));
            break;
        case CE_HeaderEmptyArea:
            return painter->fillRect(option->rect, theme.panel);
        case CE_MenuBarItem:
            if (const auto* item = as<QStyleOptionMenuItem>(option)) return paintMenuTitle(*painter, *item);
            break;
        case CE_MenuBarEmptyArea:
            return painter->fillRect(option->rect, theme.window);
        case CE_MenuItem:
            if (const auto* item = as<QStyleOptionMenuItem>(option)) return paintMenuEntry(*painter, *item);
            break;
        case CE_ProgressBarGroove:
            return paintProgress(*painter, option->rect, theme.key);
        case CE_ProgressBarContents:
            if (const auto* bar = as<QStyleOptionProgressBar>(option))
                return paintProgress(*painter, doneOf(*bar), theme.accent);
            break;
        default:
            break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void PaintedStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                      const QWidget* widget) const {
    if (control == CC_ComboBox) {
        paintField(*painter, *option, widget);
        return onlyShows(widget) ? void() : paintChevron(*painter, *option);
    }
    if (const auto* bar = as<QStyleOptionSlider>(option); control == CC_ScrollBar && bar)
        return paintBox(*painter, handleOf(*bar).adjusted(1, 1, -1, -1), Theme::current().line, Theme::current().line,
                        4);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect PaintedStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                   const QWidget* widget) const {
    if (control == CC_ComboBox && part == SC_ComboBoxEditField)
        return option->rect.marginsRemoved(fieldMargins).adjusted(0, 0, onlyShows(widget) ? 0 : -dropDown, 0);
    if (const auto* bar = as<QStyleOptionSlider>(option); control == CC_ScrollBar && bar)
        return scrollBarPart(*bar, part);
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QRect PaintedStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
    switch (element) {
        case SE_LineEditContents:
            return option->rect.marginsRemoved(isEditorOfTable(widget) ? editorMargins : fieldMargins);
        case SE_ProgressBarGroove:
        case SE_ProgressBarContents:
            return option->rect;
        default:
            return QProxyStyle::subElementRect(element, option, widget);
    }
}

QSize PaintedStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                     const QWidget* widget) const {
    switch (type) {
        case CT_LineEdit:
            if (isEditorOfTable(widget)) return contents.grownBy(editorMargins);
            return contents.expandedTo(QSize(0, fieldHeight)).grownBy(fieldMargins);
        case CT_ComboBox:
            return contents.expandedTo(QSize(0, fieldHeight)).grownBy(fieldMargins) +
                   QSize(onlyShows(widget) ? 0 : dropDown, 0);
        case CT_PushButton:
            return (contents + keyMargins).expandedTo(QSize(leastKey, 0));
        case CT_TabBarTab:
            if (const auto* tab = as<QStyleOptionTab>(option))
                return tab->fontMetrics.size(Qt::TextShowMnemonic, tab->text) + tabMargins + QSize(0, tabLine);
            break;
        case CT_HeaderSection:
            if (const auto* title = as<QStyleOptionHeader>(option))
                return title->fontMetrics.size(0, title->text) + QSize(2 * titleMarginOf(widget), titleHeight);
            break;
        case CT_MenuBarItem:
            return contents + menuBarMargins;
        case CT_MenuItem:
            if (const auto* item = as<QStyleOptionMenuItem>(option)) return menuEntrySize(*item, contents);
            break;
        case CT_ProgressBar:
            return {contents.width(), progressHeight};
        case CT_ItemViewItem: {
            const QSize entry = QProxyStyle::sizeFromContents(type, option, contents, widget);
            return isListOfPopUp(widget) ? entry + QSize(0, popUpEntryHeight) : entry;
        }
        default:
            break;
    }
    return QProxyStyle::sizeFromContents(type, option, contents, widget);
}

int PaintedStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
        case PM_ScrollBarExtent:
            return scrollBar;
        case PM_ScrollBarSliderMin:
            return leastScrollHandle;
        case PM_MenuPanelWidth:
            return 1;
        case PM_DefaultFrameWidth:
            return isTable(widget) ? tableFrame : 1;
        case PM_FocusFrameHMargin:  // in front of the text of an entry
            return isListOfPopUp(widget) ? fieldMargins.left() - 2 : QProxyStyle::pixelMetric(metric, option, widget);
        case PM_MenuHMargin:
        case PM_MenuVMargin:
            return gridStep;
        case PM_MenuBarVMargin:
        case PM_MenuBarPanelWidth:
        case PM_TabBarTabShiftVertical:
        case PM_TabBarTabOverlap:
            return 0;
        case PM_ToolTipLabelFrameWidth:
            return gridStep + 1;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

// Every menu bar asks for the mark of what has no room. Qt's own is a file: to read it, Qt would load all its image
// formats before the window is there, which takes 5 ms.
QIcon PaintedStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const {
    if (icon == SP_ToolBarHorizontalExtensionButton) return QIcon(new MoreMark);
    return QProxyStyle::standardIcon(icon, option, widget);
}

int PaintedStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* data) const {
    switch (hint) {
        case SH_ComboBox_Popup:  // opens below the box, not over the whole screen
        case SH_DialogButtonBox_ButtonsHaveIcons:
            return 0;
        default:
            return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

}  // namespace corvane

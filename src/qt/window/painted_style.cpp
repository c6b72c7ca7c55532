#include "qt/window/painted_style.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPainter>
#include <QStyleOption>
#include <QTabBar>
#include <QTableView>
#include <QVariant>
#include <algorithm>

#include "qt/window/style_parts.h"
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
constexpr int tableRadius = 3;
constexpr int tableFrame = 2;        // leaves the corners of the edge uncovered
constexpr QSize keyMargins{22, 12};  // both sides together
constexpr int leastKey = 80;
constexpr int titleMargin = 10;
constexpr QSize menuBarMargins{20, 10};
constexpr int scrollBar = 10;
constexpr int popUpEntryHeight = 8;  // above and below an entry together

template <class Option>
const Option* as(const QStyleOption* option) {
    return qstyleoption_cast<const Option*>(option);
}

bool onlyShows(const QWidget* widget) { return widget && widget->property(onlyShowsProperty).toBool(); }

bool isEditorOfTable(const QWidget* widget) {
    return widget && widget->parentWidget() && qobject_cast<const QTableView*>(widget->parentWidget()->parentWidget());
}

FieldKind kindOf(const QWidget* widget) {
    if (isEditorOfTable(widget)) return FieldKind::inTable;
    return onlyShows(widget) ? FieldKind::onlyShows : FieldKind::entry;
}

bool isTable(const QWidget* widget) { return qobject_cast<const QTableView*>(widget); }

bool isListOfPopUp(const QWidget* widget) {
    return widget && widget->parentWidget() && qobject_cast<const QComboBox*>(widget->parentWidget()->parentWidget());
}

int titleMarginOf(const QWidget* header) {
    const QVariant margin = header ? header->property(titleMarginProperty) : QVariant();
    return margin.isValid() ? margin.toInt() : titleMargin;
}

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
            return paintField(*painter, *option, kindOf(widget));
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
            return paintProgressGround(*painter, option->rect);
        case CE_ProgressBarContents:
            if (const auto* bar = as<QStyleOptionProgressBar>(option)) return paintProgressDone(*painter, *bar);
            break;
        default:
            break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void PaintedStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                      const QWidget* widget) const {
    if (control == CC_ComboBox) {
        paintField(*painter, *option, kindOf(widget));
        return onlyShows(widget) ? void() : paintChevron(*painter, *option);
    }
    if (const auto* bar = as<QStyleOptionSlider>(option); control == CC_ScrollBar && bar)
        return paintScrollBar(*painter, *bar);
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
            if (const auto* tab = as<QStyleOptionTab>(option)) return tabSize(*tab);
            break;
        case CT_HeaderSection:
            if (const auto* title = as<QStyleOptionHeader>(option)) return titleSize(*title, titleMarginOf(widget));
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
    if (icon == SP_ToolBarHorizontalExtensionButton) return moreMark();
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

// How each part of a standard widget looks, and the room that it takes. Sizes are in device-independent pixels.
#pragma once

#include <QIcon>
#include <QStyleOption>

class QPainter;

namespace corvane {

inline constexpr int fieldRadius = 5;
inline constexpr int progressHeight = 6;
inline constexpr int leastScrollHandle = 24;

inline bool isIn(const QStyleOption& option, QStyle::StateFlag state) { return option.state.testFlag(state); }

// A rounded box with an edge.
void paintBox(QPainter& painter, const QRect& rect, const QBrush& ground, const QColor& edge, int radius,
              double width = 1);

// The mark of what opens a list or menu, at the right end of its box.
void paintChevron(QPainter& painter, const QStyleOption& option);

enum class FieldKind { entry, onlyShows, inTable };
void paintField(QPainter& painter, const QStyleOption& option, FieldKind kind);

void paintKey(QPainter& painter, const QStyleOptionButton& option);

void paintTab(QPainter& painter, const QStyleOptionTab& option);
void paintTabTitle(QPainter& painter, const QStyleOptionTab& option);
QSize tabSize(const QStyleOptionTab& option);

// The title of a column of a table, `margin` away from its edges.
void paintTitle(QPainter& painter, const QStyleOptionHeader& option, int margin);
QSize titleSize(const QStyleOptionHeader& option, int margin);

// Of a menu in the menu bar.
void paintMenuTitle(QPainter& painter, const QStyleOptionMenuItem& option);
void paintMenuEntry(QPainter& painter, const QStyleOptionMenuItem& option);
QSize menuEntrySize(const QStyleOptionMenuItem& option, const QSize& contents);

void paintProgressGround(QPainter& painter, const QRect& rect);
void paintProgressDone(QPainter& painter, const QStyleOptionProgressBar& option);

// A scroll bar has a handle, and no arrows at its ends.
void paintScrollBar(QPainter& painter, const QStyleOptionSlider& option);
QRect scrollBarPart(const QStyleOptionSlider& option, QStyle::SubControl part);

// The mark of a menu bar that has no room for all its menus.
QIcon moreMark();

}  // namespace corvane

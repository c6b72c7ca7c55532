#include "qt/window/cell_delegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QLineEdit>
#include <QPainter>
#include <QToolTip>

#include "qt/window/control_texts.h"
#include "qt/window/table_rows.h"
#include "qt/window/theme.h"

namespace corvane {

namespace {

constexpr int margin = 10;  // at both ends of a cell, as of a header
constexpr int chevron = 7;  // width of the mark of a pop-up
constexpr auto rowTextProperty = "rowText";

QRect textRect(const QRect& cell) { return cell.adjusted(margin, 0, -margin, 0); }

struct Painting {
    QPainter& painter;
    const QRect cell;
    const Theme& theme;
    const Qt::Alignment alignment;
    const bool hovered;
    const bool focused;
    const QString shownText;  // of a text cell

    void text(const QString& text, const QRect& rect, const QColor& color) const {
        painter.setPen(color);
        painter.drawText(rect, static_cast<int>(alignment) | Qt::TextSingleLine,
                         painter.fontMetrics().elidedText(text, Qt::ElideRight, rect.width()));
    }

    void operator()(const TextCell& shown) const {
        text(shownText, textRect(cell), shown.quiet ? theme.quietText : theme.text);
    }
    void operator()(const EditableCell& shown) const {
        text(QString::fromStdString(shown.text), textRect(cell), theme.text);
    }
    void operator()(const LinkCell& shown) const {
        QFont font = painter.font();
        font.setUnderline(hovered || focused);
        painter.setFont(font);
        text(QString::fromStdString(shown.text), textRect(cell), theme.link);
    }
    void operator()(const ButtonCell& shown) const {
        painter.setPen(QPen(hovered ? theme.accent : theme.line, 1));
        painter.setBrush(hovered ? QBrush(theme.keyHover) : QBrush(Qt::NoBrush));
        painter.drawRoundedRect(QRectF(cell).adjusted(4.5, 3.5, -4.5, -3.5), 5, 5);
        painter.setPen(theme.text);
        painter.drawText(cell, Qt::AlignCenter, QString::fromStdString(shown.title));
    }
    void operator()(const PopUpCell& shown) const {
        const QRect inside = textRect(cell);
        text(QString::fromStdString(textOf(shown)), inside.adjusted(0, 0, -2 * chevron, 0),
             shown.selection == 0 ? theme.quietText : theme.text);
        const QPointF tip(inside.right() - chevron / 2.0, inside.center().y() + 2.5);
        painter.setPen(QPen(hovered || focused ? theme.accent : theme.quietText, 1.5));
        painter.drawPolyline(QPolygonF(
            {tip - QPointF(chevron / 2.0, chevron / 2.0), tip, tip + QPointF(chevron / 2.0, -chevron / 2.0)}));
    }
    void operator()(const HandleCell&) const {
        painter.setPen(Qt::NoPen);
        painter.setBrush(hovered ? theme.accent : theme.line);
        const QPointF middle = QRectF(cell).center();
        for (const double x : {-2.5, 2.5})
            for (const double y : {-5.0, 0.0, 5.0}) painter.drawEllipse(middle + QPointF(x, y), 1.3, 1.3);
    }
};

}  // namespace

CellDelegate::CellDelegate(TableView& table, TableRows& rows, QObject* parent)
    : QStyledItemDelegate(parent), table_(table), rows_(rows) {}

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const Theme& theme = Theme::current();
    const auto alignment = index.data(Qt::TextAlignmentRole).value<Qt::Alignment>();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setFont(option.font);
    const bool focused = option.state.testFlag(QStyle::State_HasFocus);
    if (option.state.testFlag(QStyle::State_Selected)) painter->fillRect(option.rect, theme.key);
    std::visit(Painting{*painter, option.rect, theme, alignment, option.state.testFlag(QStyle::State_MouseOver),
                        focused, rows_.shownText(index)},
               rows_.cell(index));
    if (focused) {
        painter->setPen(QPen(theme.accent, 1.5));
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(QRectF(option.rect).adjusted(1.5, 1.5, -1.5, -1.5), 4, 4);
    }
    painter->restore();
}

QRect CellDelegate::linkRect(const QRect& cell, const QFont& font, const QModelIndex& index) const {
    const TableCell shown = rows_.cell(index);
    if (!std::holds_alternative<LinkCell>(shown)) return {};
    const QRect room = textRect(cell);
    const int width = QFontMetrics(font).horizontalAdvance(QString::fromStdString(textOf(shown)));
    const auto alignment = index.data(Qt::TextAlignmentRole).value<Qt::Alignment>();
    return QStyle::alignedRect(Qt::LeftToRight, alignment, QSize(std::min(width, room.width()), room.height()), room);
}

QWidget* CellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const {
    auto* field = new QLineEdit(parent);
    if (const Control* control = table_.cellControl(index.column())) describe(*field, *control);
    field->setProperty(rowTextProperty, QByteArray::fromStdString(rows_.rowText(rows_.tableRow(index))));
    field->setAlignment(index.data(Qt::TextAlignmentRole).value<Qt::Alignment>());
    editor_ = field;
    return field;
}

// A reload sets the text again, but never overwrites what is being typed.
void CellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    auto* field = static_cast<QLineEdit*>(editor);
    if (!field->isModified()) field->setText(index.data(Qt::EditRole).toString());
}

void CellDelegate::setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex& index) const {
    auto* field = static_cast<QLineEdit*>(editor);
    if (!field->isModified()) return;
    const std::string rowText = field->property(rowTextProperty).toByteArray().toStdString();
    const auto row = rows_.find(rowText, rows_.tableRow(index));
    field->setModified(false);
    if (row) table_.editCell(*row, index.column(), field->text().toStdString());
}

void CellDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option, const QModelIndex&) const {
    editor->setGeometry(option.rect);
}

bool CellDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                             const QModelIndex& index) {
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const TableCell shown = rows_.cell(index);
    QString text;
    if (const auto* link = std::get_if<LinkCell>(&shown)) {
        text = QString::fromStdString(link->address);
    } else if (const Control* control = table_.cellControl(index.column())) {
        text = toolTipOf(*control);
    } else {
        text = QString::fromStdString(textOf(shown));
        if (option.fontMetrics.horizontalAdvance(text) <= textRect(option.rect).width()) return false;
    }
    // A text from a service may look like mark-up, but is plain text.
    const QString style = std::holds_alternative<LinkCell>(shown) ? " style='white-space:nowrap'" : "";
    QToolTip::showText(event->globalPos(), "<p" + style + ">" + text.toHtmlEscaped() + "</p>", view->viewport());
    return true;
}

}  // namespace corvane

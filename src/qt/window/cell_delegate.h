// Paints the cells of a table: numbers in line, quiet buttons and links, pop-ups with a mark; and edits text in place.
#pragma once

#include <QPointer>
#include <QStyledItemDelegate>

#include "display/table_view.h"

namespace corvane {

class TableRows;

class CellDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    CellDelegate(TableView& table, TableRows& rows, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    // The area of the text of a link: only a press there opens it.
    QRect linkRect(const QRect& cell, const QFont& font, const QModelIndex& index) const;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    // Hands over what was typed; not when nothing was changed, or when the row is gone or has other contents by now.
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    QWidget* editor() const { return editor_; }  // the one that is open

    // The text of a cell that has no room for it, or where a link leads.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

private:
    TableView& table_;
    TableRows& rows_;
    mutable QPointer<QWidget> editor_;
};

}  // namespace corvane

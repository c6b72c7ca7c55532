// The widget of a table. It shows its model as long as both live. The keyboard can do all that the mouse can.
#pragma once

#include <QTableView>
#include <optional>
#include <utility>

#include "display/table_view.h"

class QMenu;

namespace corvane {

class CellDelegate;
class TableRows;

class TableWidget : public QTableView {
    Q_OBJECT

public:
    TableWidget(TableView& model, ChangeQueue& queue, QWidget* parent = nullptr);

    // Shows only the rows whose texts contain all words of `text`; without words, every row.
    void setFilter(const QString& text);
    int shownRows() const;
    int allRows() const;
    // Asks for room for this many rows and the titles; it takes what else its place has left.
    void askForRows(int rows);
    QSize sizeHint() const override;

signals:
    void rowsChanged();                 // the number of rows, or of those that are shown
    void sorted(const QString& order);  // "Sorted by Memory Name, ascending"

protected:
    // Enter and Space do what a cell is there for: press, open, choose, edit. Ctrl+Enter presses the row's first
    // button, Alt+Up and Alt+Down move the row; Tab leaves the table.
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    // To a screen reader the current cell has the keyboard: there is none while the keyboard is elsewhere.
    // Only a table with the keyboard tells a screen reader of its current cell; it does so as soon as it gets it.
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

    // A row is dragged as plain text, its index; a line shows the gap where it would be dropped.
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void setUpHeaders();
    QString emptyText() const;
    void reload();
    void tellCurrentCell();
    void leaveCell();
    void act(const QModelIndex& cell);
    void pressCell(const QModelIndex& cell);
    void openPopUp(const QModelIndex& cell);
    void pressFirstButton();
    void openMenu(QPoint position);  // a null position opens it at the current cell
    void sortBy(int column);
    void moveRow(int tableRow, int gap);
    void addRowActions(QMenu& menu);
    void finishEditing();
    void abandonEditing();
    int gapAt(const QPoint& position) const;
    void showGap(std::optional<int> gap);

    TableView& model_;
    TableRows* rows_;
    CellDelegate* delegate_;
    int shownVersion_;
    int stretched_ = 0;                         // the column that takes the spare room
    int leastStretched_ = 0;                    // its least width
    std::optional<std::pair<int, int>> place_;  // row and column of the last current cell
    int scrolled_ = 0;                          // how far, while there were rows
    QPersistentModelIndex left_;                // the current cell when the keyboard went elsewhere
    QPoint released_;                           // where the mouse button was released
    std::optional<int> gap_;                    // above this row the dragged one would be dropped
    ViewHandle view_;
};

}  // namespace corvane

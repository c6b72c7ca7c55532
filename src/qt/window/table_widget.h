// A table of the window: shows a table model for as long as both live. Everything that the mouse does in it the
// keyboard does, too.
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

    // Only rows that contain all the words of `text` in some cell are shown; no words show every row.
    void setFilter(const QString& text);
    int shownRows() const;
    int allRows() const;

signals:
    void rowsChanged();  // how many there are, or are shown

protected:
    // Enter and Space do what a cell is there for: press, open, choose, edit. Ctrl+Enter presses the row's first
    // button, Alt+Up and Alt+Down move the row; Tab leaves the table.
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

    // Rows are dragged as plain text, their index; a line shows the gap where one would go.
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void setUpHeaders();
    void reload();
    void act(const QModelIndex& cell);
    void pressCell(const QModelIndex& cell);
    void openPopUp(const QModelIndex& cell);
    void pressFirstButton();
    void openMenu(QPoint position);  // at the cell that has the keyboard when the position is null
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
    std::optional<std::pair<int, int>> place_;  // row and column that last had the keyboard
    QPoint released_;                           // where the mouse was let go
    std::optional<int> gap_;                    // above this row what is dragged would go
    ViewHandle view_;
};

}  // namespace corvane

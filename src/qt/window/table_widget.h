// A table of the window: shows a table model for as long as both live.
#pragma once

#include <QTableView>
#include <optional>
#include <utility>

#include "display/table_view.h"

namespace corvane {

class FilteredRows;

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
    // Return and Space press the button cell that has the keyboard; Tab leaves the table.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void reload();
    void pressCell(const QModelIndex& cell);

    TableView& model_;
    FilteredRows* shown_;
    int shownVersion_;
    std::optional<std::pair<int, int>> place_;  // row and column that last had the keyboard
};

}  // namespace corvane

// A table of the window: shows a table model for as long as both live.
#pragma once

#include <QTableView>

#include "display/table_view.h"

namespace corvane {

class TableWidget : public QTableView {
    Q_OBJECT

public:
    TableWidget(TableView& model, ChangeQueue& queue, QWidget* parent = nullptr);

protected:
    // Return and Space press the button cell that has the keyboard; Tab leaves the table.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void pressCell(const QModelIndex& cell);

    TableView& model_;
};

}  // namespace corvane

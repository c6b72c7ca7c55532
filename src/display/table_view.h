// A table: columns that stay, rows that are asked for. The lists behind the rows are the program's; the table only
// knows how to ask.
#pragma once

#include <functional>
#include <span>

#include "display/control.h"

namespace corvane {

struct TableColumn {
    enum class Kind { text, button };

    std::string_view identifier;  // e.g. "memChan"
    std::string_view title;       // above the column
    int width;                    // in characters; the last column takes what is left
    Kind kind = Kind::text;
    bool numeric = false;  // stands on the right
};

class TableView : public Control {
public:
    TableView(const Outlet& outlet, std::span<const TableColumn> columns) : Control(outlet), columns_(columns) {}

    std::span<const TableColumn> columns() const { return columns_; }

    // The data source. Without one the table is empty. `text` is called for rows and columns that exist, counted from
    // 0; a button cell's text is what stands on the button.
    std::function<int()> rowCount;
    std::function<std::string(int row, int column)> text;
    int rows() const { return rowCount ? rowCount() : 0; }
    std::string cell(int row, int column) const { return text ? text(row, column) : std::string(); }

    // What the press of a button cell does.
    std::function<void(int row, int column)> onPress;
    void pressCell(int row, int column) {
        if (onPress && row >= 0 && row < rows()) onPress(row, column);
    }

    // The rows are asked for again.
    void reloadData() {
        ++version_;
        markChanged();
    }
    int version() const { return version_; }

private:
    const std::span<const TableColumn> columns_;
    int version_ = 0;
};

}  // namespace corvane

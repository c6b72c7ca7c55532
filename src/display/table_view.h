// A table: fixed columns, and rows that it asks a data source for. It passes on what the operator does in a cell.
#pragma once

#include <optional>
#include <span>

#include "display/button.h"
#include "display/pop_up_button.h"
#include "display/table_cell.h"
#include "display/text_field.h"

namespace corvane {

struct TableColumn {
    enum class Alignment { left, center, right };

    std::string_view identifier;  // e.g. "memChan"
    std::string_view title;       // above the column
    int width;                    // in characters; one column takes what is left
    Alignment alignment = Alignment::left;
    bool sorts = false;  // whether a press of the header sorts the rows
    // What the column says of its row, for one who hears it: whose row it is, or its frequency in this unit.
    enum class Tells { nothing, name, hertz, kilohertz, megahertz };
    Tells tells = Tells::nothing;
    bool changes = false;  // while its row stays the same one, as an age does
};

struct CellPlace {
    int row;
    int column;

    bool operator==(const CellPlace&) const = default;
};

enum class SortDirection { unknown, ascending, descending };

class TableView;

// Where tables get their rows from, and what they hand over. Rows and columns count from 0.
class TableViewDataSource {
public:
    virtual ~TableViewDataSource() = default;

    virtual int numberOfRows(const TableView& table) const = 0;
    // What a cell shows; never asked for a column of buttons. The row and the column exist.
    virtual TableCell viewFor(const TableView& table, int row, int column) const = 0;
    // The rows that are shown, and their order; each at most once. At first all, as they stand.
    virtual std::vector<int> rowOrder(const TableView& table) const;
    virtual void openLink(std::string_view address) = 0;
    // What was dragged is dropped on the gap above `row`; below the last row that is the number of rows. Gives where
    // the row stands now, nothing for a drop that is refused.
    virtual std::optional<int> acceptDrop(TableView& table, std::string_view plainText, int row) = 0;
    // Whether the rows were sorted.
    virtual bool mouseDownInHeader(TableView& table, int column) = 0;
};

class TableView : public Control {
public:
    static constexpr int rowHeight = 27;  // points, of every row of every table

    TableView(const Outlet& outlet, std::span<const TableColumn> columns);

    std::span<const TableColumn> columns() const { return columns_; }
    const TableColumn& column(int index) const { return columns_[static_cast<std::size_t>(index)]; }
    int columnWithIdentifier(std::string_view identifier) const;  // -1: there is none

    // Without a data source the table is empty.
    void setDataSource(TableViewDataSource& source) { source_ = &source; }
    int rows() const { return source_ ? source_->numberOfRows(*this) : 0; }
    // Those of the rows that are shown, in their order: the chips hold some back, a header sorts.
    std::vector<int> rowOrder() const { return source_ ? source_->rowOrder(*this) : std::vector<int>(); }
    // The contents of a cell, which must exist, and its text.
    TableCell view(int row, int column) const;
    std::string cell(int row, int column) const { return textOf(view(row, column)); }
    // The row and its cells as a screen reader says them: "K1ABC, 14.285 MHz"; "Tune to K1ABC, 14.285 MHz, button".
    std::string spokenRow(int row) const;
    std::string spokenCell(int row, int column) const;
    std::string spokenPress(int row, int column) const;  // of a button: "Tune to K1ABC, 14.285 MHz"
    int tellingColumn() const;                           // the first that tells of its row; 0: none does

    // The control that serves all rows of a column: what the operator does in a cell is done to it.
    void setCellControl(std::string_view column, Button& control) { controlOf(column).button = &control; }
    void setCellControl(std::string_view column, PopUpButton& control) { controlOf(column).popUp = &control; }
    void setCellControl(std::string_view column, TextField& control) { controlOf(column).field = &control; }
    const Control* cellControl(int column) const;
    bool isButton(int column) const { return controlOf(column).button != nullptr; }
    bool isEditable(int column) const { return controlOf(column).field != nullptr; }
    // The cell in which such a control was used last; nothing for another control.
    std::optional<CellPlace> placeOf(const Control& control) const;

    // What the operator does to a cell. Nothing happens where there is no such cell, or it is of another kind.
    void pressCell(int row, int column);                               // a button, a link
    void chooseInCell(int row, int column, int entry);                 // an entry of a pop-up
    void editCell(int row, int column, std::string_view replacement);  // text that may be replaced

    // Dragging a row hands over its index as plain text: "12".
    void registerForDraggedText() { assign(takesDraggedText_, true); }
    bool takesDraggedText() const { return takesDraggedText_; }
    static std::string pasteboardText(int row) { return std::to_string(row); }
    std::optional<int> drop(std::string_view plainText, int row) {
        return source_ && takesDraggedText_ ? source_->acceptDrop(*this, plainText, row) : std::nullopt;
    }

    // The data source gives a prototype to the column that it has just sorted by and takes it from the others; the next
    // press of that header reverses the direction.
    struct SortDescriptor {
        std::string key;  // e.g. "Col2"
        bool ascending = true;

        bool operator==(const SortDescriptor&) const = default;
    };
    void setSortDescriptorPrototype(int column, std::optional<SortDescriptor> prototype);
    const std::optional<SortDescriptor>& sortDescriptorPrototype(int column) const;
    SortDirection sortDirection(int column) const;
    void pressHeader(int column);

    // What an empty table says: why, and what to do.
    std::string_view emptyText() const { return emptyText_; }
    void setEmptyText(std::string_view text) { emptyText_ = text; }  // lives as long as the program

    // The rows are asked for again.
    void reloadData() {
        ++version_;
        markChanged();
    }
    int version() const { return version_; }

private:
    struct CellControl {
        Button* button = nullptr;
        PopUpButton* popUp = nullptr;
        TextField* field = nullptr;
    };
    CellControl& controlOf(std::string_view column);
    const CellControl& controlOf(int column) const { return controls_[static_cast<std::size_t>(column)]; }
    bool exists(int row, int column) const;
    void put(const Control& control, CellPlace place);

    const std::span<const TableColumn> columns_;
    std::vector<CellControl> controls_;                      // by column
    std::vector<std::optional<SortDescriptor>> prototypes_;  // by column
    std::optional<SortDescriptor> sortedBy_;                 // of the prototypes the one in force
    TableViewDataSource* source_ = nullptr;
    std::string_view emptyText_;
    const Control* used_ = nullptr;
    CellPlace place_{};
    bool takesDraggedText_ = false;
    int version_ = 0;
};

}  // namespace corvane

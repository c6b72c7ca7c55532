#include "display/table_view.h"

#include <algorithm>

namespace corvane {

TableView::TableView(const Outlet& outlet, std::span<const TableColumn> columns)
    : Control(outlet), columns_(columns), controls_(columns.size()), prototypes_(columns.size()) {}

int TableView::columnWithIdentifier(std::string_view identifier) const {
    const auto found = std::ranges::find(columns_, identifier, &TableColumn::identifier);
    return found == columns_.end() ? -1 : static_cast<int>(found - columns_.begin());
}

TableView::CellControl& TableView::controlOf(std::string_view column) {
    return controls_.at(static_cast<std::size_t>(columnWithIdentifier(column)));
}

const Control* TableView::cellControl(int column) const {
    const CellControl& control = controlOf(column);
    if (control.button) return control.button;
    if (control.popUp) return control.popUp;
    return control.field;
}

TableCell TableView::view(int row, int column) const {
    if (const Button* button = controlOf(column).button)
        return ButtonCell{button->title(), std::string(button->outlet().label), row};
    return source_ ? source_->viewFor(*this, row, column) : TableCell{};
}

bool TableView::exists(int row, int column) const {
    return row >= 0 && row < rows() && column >= 0 && column < static_cast<int>(columns_.size());
}

void TableView::put(const Control& control, CellPlace place) {
    used_ = &control;
    place_ = place;
}

std::optional<CellPlace> TableView::placeOf(const Control& control) const {
    return used_ == &control ? std::optional(place_) : std::nullopt;
}

void TableView::pressCell(int row, int column) {
    if (!exists(row, column)) return;
    if (Button* button = controlOf(column).button) {
        put(*button, {row, column});
        button->setTag(row);
        return button->performClick();
    }
    const TableCell cell = view(row, column);
    if (const auto* link = std::get_if<LinkCell>(&cell)) source_->openLink(link->address);
}

void TableView::chooseInCell(int row, int column, int entry) {
    PopUpButton* popUp = exists(row, column) ? controlOf(column).popUp : nullptr;
    if (!popUp || entry < 0 || entry >= popUp->titles().size()) return;
    put(*popUp, {row, column});
    popUp->choose(entry);
}

void TableView::editCell(int row, int column, std::string_view replacement) {
    TextField* field = exists(row, column) ? controlOf(column).field : nullptr;
    if (!field) return;
    put(*field, {row, column});
    field->setStringValue(replacement);
    field->performReturn();
}

void TableView::setSortDescriptorPrototype(int column, std::optional<SortDescriptor> prototype) {
    auto& present = prototypes_[static_cast<std::size_t>(column)];
    if (!prototype && present && sortedBy_ && sortedBy_->key == present->key) assign(sortedBy_, {});
    assign(present, std::move(prototype));
}

const std::optional<TableView::SortDescriptor>& TableView::sortDescriptorPrototype(int column) const {
    return prototypes_[static_cast<std::size_t>(column)];
}

SortDirection TableView::sortDirection(int column) const {
    const auto& prototype = sortDescriptorPrototype(column);
    if (!prototype || !sortedBy_ || sortedBy_->key != prototype->key) return SortDirection::unknown;
    return sortedBy_->ascending ? SortDirection::ascending : SortDirection::descending;
}

// What is pressed first sees the direction as it was.
void TableView::pressHeader(int column) {
    if (!source_ || column < 0 || column >= static_cast<int>(columns_.size())) return;
    const SortDirection before = sortDirection(column);
    if (!source_->mouseDownInHeader(*this, column)) return;
    if (auto next = sortDescriptorPrototype(column)) {
        next->ascending = before != SortDirection::ascending;
        assign(sortedBy_, std::move(next));
    }
}

}  // namespace corvane
